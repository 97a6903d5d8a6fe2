#include "core/store/Texts.h"

#include "core/store/SerialNumber.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

QString dateText(const QDate& date) { return values::Format(date, u"dd-MMM-yyyy"_s); }

QString sqlDate(const QDate& date) { return u'#' + dateText(date) + u'#'; }

QString sqlDates(const QDate& from, const QDate& to) { return sqlDate(from) + u" and "_s + sqlDate(to); }

QString moneyText(double amount) { return values::Format(amount, u"0.00"_s); }

double shownMoney(double amount) { return values::Val(moneyText(amount)); }

QString balanceText(double balance)
{
    if (balance == 0)
        return u"None"_s;
    return moneyText(std::abs(balance)) + (balance > 0 ? u" Cr"_s : u" Dr"_s);
}

QString lineCodeText(const QString& job, const QString& item) { return job + u'/' + item; }

QString lineCodeText(const LineCode& code)
{
    return lineCodeText(QString::number(code.job), QString::number(code.item));
}

std::optional<LineCode> readLineCode(const QString& text)
{
    const QStringList parts = text.trimmed().split(u'/');
    if (parts.size() != 2)
        return {};
    const std::optional<qint32> job = readSerialNumber(parts[0]);
    const std::optional<qint32> item = readSerialNumber(parts[1]);
    if (!job || !item)
        return {};
    return LineCode{*job, *item};
}

qint32 cardNumber(const QString& text)
{
    if (const std::optional<LineCode> code = readLineCode(text))
        return code->job;
    return readSerialNumber(text.trimmed()).value_or(0);
}

QString sqlText(const QString& text) { return QString(text).replace(u'\'', "''"_L1); }
