#include "platform/values/Dates.h"

#include "platform/values/Errors.h"

#include <QLocale>
#include <QRegularExpression>

namespace values {

namespace {

/// 1 to 12 for an English month name, whole or of three letters, in any case; 0 for anything else.
int monthNumber(const QString& name)
{
    const QLocale english = QLocale::c();
    for (int month = 1; month <= 12; ++month) {
        if (name.compare(english.monthName(month, QLocale::LongFormat), Qt::CaseInsensitive) == 0 ||
            name.compare(english.monthName(month, QLocale::ShortFormat), Qt::CaseInsensitive) == 0)
            return month;
    }
    return 0;
}

QString formatRun(const QDate& date, QChar letter, qsizetype length)
{
    const QLocale english = QLocale::c();
    const auto digits = [](int number, qsizetype width) {
        return QString::number(number).rightJustified(width, QLatin1Char('0'));
    };
    const auto nameFormat = length == 3 ? QLocale::ShortFormat : QLocale::LongFormat;
    if (letter == QLatin1Char('d'))
        return length <= 2 ? digits(date.day(), length) : english.dayName(date.dayOfWeek(), nameFormat);
    if (letter == QLatin1Char('m'))
        return length <= 2 ? digits(date.month(), length) : english.monthName(date.month(), nameFormat);
    return length <= 2 ? digits(date.year() % 100, 2) : digits(date.year(), 4);
}

} // namespace

QString CStr(const QDate& date) { return date.toString(Qt::ISODate); }

QDate readDate(const QString& text)
{
    static const QString time =
        QStringLiteral("(?:[ T]+\\d{1,2}:\\d{2}(?::\\d{2}(?:\\.\\d+)?)?(?: ?[AaPp][Mm])?)?");
    static const QRegularExpression yearFirst(QStringLiteral("^(\\d{4})[-/](\\d{1,2})[-/](\\d{1,2})") + time +
                                              QStringLiteral("$"));
    static const QRegularExpression named(QStringLiteral("^(\\d{1,2})[-/ ]([A-Za-z]+)[-/ ](\\d{4})") + time +
                                          QStringLiteral("$"));
    static const QRegularExpression yearLast(QStringLiteral("^(\\d{1,2})[-/](\\d{1,2})[-/](\\d{4})") + time +
                                             QStringLiteral("$"));

    const QString trimmed = text.trimmed();
    if (const auto match = yearFirst.match(trimmed); match.hasMatch())
        return QDate(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
    if (const auto match = named.match(trimmed); match.hasMatch())
        return QDate(match.captured(3).toInt(), monthNumber(match.captured(2)), match.captured(1).toInt());
    if (const auto match = yearLast.match(trimmed); match.hasMatch()) {
        const int first = match.captured(1).toInt();
        const int second = match.captured(2).toInt();
        const int year = match.captured(3).toInt();
        const QDate monthFirst(year, first, second);
        return monthFirst.isValid() ? monthFirst : QDate(year, second, first);
    }
    return {};
}

QDate CDate(const QString& text)
{
    const QDate date = readDate(text);
    if (!date.isValid())
        throw TypeMismatchError();
    return date;
}

QString Format(const QDate& date, const QString& pattern)
{
    if (!date.isValid())
        return {};
    QString text;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar letter = pattern[i].toLower();
        qsizetype end = i + 1;
        while (end < pattern.size() && pattern[end].toLower() == letter)
            ++end;
        const bool isField =
            letter == QLatin1Char('d') || letter == QLatin1Char('m') || letter == QLatin1Char('y');
        text += isField ? formatRun(date, letter, end - i) : pattern.mid(i, end - i);
        i = end;
    }
    return text;
}

} // namespace values
