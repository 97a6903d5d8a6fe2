#include "core/store/Texts.h"

#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

QString dateText(const QDate& date) { return values::Format(date, u"dd-MMM-yyyy"_s); }

QString sqlDate(const QDate& date) { return u'#' + dateText(date) + u'#'; }

QString sqlDates(const QDate& from, const QDate& to) { return sqlDate(from) + u" and "_s + sqlDate(to); }

QString moneyText(double amount) { return values::Format(amount, u"0.00"_s); }

QString balanceText(double balance)
{
    if (balance == 0)
        return u"None"_s;
    return moneyText(std::abs(balance)) + (balance > 0 ? u" Cr"_s : u" Dr"_s);
}

QString sqlText(const QString& text) { return QString(text).replace(u'\'', "''"_L1); }
