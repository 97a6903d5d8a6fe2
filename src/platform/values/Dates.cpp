#include "platform/values/Dates.h"

#include "platform/values/Errors.h"

#include <QLocale>
#include <QRegularExpression>
#include <array>

using namespace Qt::StringLiterals;

namespace values {

namespace {

/// The English names, whole and of three letters; number 1 is January's.
const QString& monthName(int month, QLocale::FormatType form)
{
    using Names = std::array<QString, 12>;
    const auto namesOf = [](QLocale::FormatType format) {
        Names names;
        for (int i = 0; i < 12; ++i)
            names[size_t(i)] = QLocale::c().monthName(i + 1, format);
        return names;
    };
    static const Names whole = namesOf(QLocale::LongFormat);
    static const Names three = namesOf(QLocale::ShortFormat);
    return (form == QLocale::LongFormat ? whole : three)[size_t(month - 1)];
}

/// 1 to 12 for a month's name in any case; 0 for anything else.
int monthNumber(const QString& name)
{
    for (int month = 1; month <= 12; ++month) {
        if (name.compare(monthName(month, QLocale::LongFormat), Qt::CaseInsensitive) == 0 ||
            name.compare(monthName(month, QLocale::ShortFormat), Qt::CaseInsensitive) == 0)
            return month;
    }
    return 0;
}

/// A date as the file keeps it, "2024-02-10"; invalid for any other text.
QDate readStored(const QString& text)
{
    if (text.size() != 10 || text[4] != u'-' || text[7] != u'-')
        return {};
    int numbers[3] = {};
    for (int i = 0, part = 0; i < 10; ++i) {
        const ushort letter = text[i].unicode();
        if (i == 4 || i == 7)
            ++part;
        else if (letter >= '0' && letter <= '9')
            numbers[part] = 10 * numbers[part] + (letter - '0');
        else
            return {};
    }
    return QDate(numbers[0], numbers[1], numbers[2]);
}

QString formatRun(const QDate& date, QChar letter, qsizetype length)
{
    const auto digits = [](int number, qsizetype width) {
        return QString::number(number).rightJustified(width, u'0');
    };
    const auto nameFormat = length == 3 ? QLocale::ShortFormat : QLocale::LongFormat;
    if (letter == u'd')
        return length <= 2 ? digits(date.day(), length) : QLocale::c().dayName(date.dayOfWeek(), nameFormat);
    if (letter == u'm')
        return length <= 2 ? digits(date.month(), length) : monthName(date.month(), nameFormat);
    return length <= 2 ? digits(date.year() % 100, 2) : digits(date.year(), 4);
}

} // namespace

QString CStr(const QDate& date) { return date.toString(Qt::ISODate); }

QDate readDate(const QString& text)
{
    if (const QDate stored = readStored(text); stored.isValid())
        return stored;
    static const QString time = u"(?:[ T]+\\d{1,2}:\\d{2}(?::\\d{2}(?:\\.\\d+)?)?(?: ?[AaPp][Mm])?)?"_s;
    static const QRegularExpression yearFirst(u"^(\\d{4})[-/](\\d{1,2})[-/](\\d{1,2})"_s + time + u"$"_s);
    static const QRegularExpression named(u"^(\\d{1,2})[-/ ]([A-Za-z]+)[-/ ](\\d{4})"_s + time + u"$"_s);
    static const QRegularExpression yearLast(u"^(\\d{1,2})[-/](\\d{1,2})[-/](\\d{4})"_s + time + u"$"_s);

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
        const bool isField = letter == u'd' || letter == u'm' || letter == u'y';
        text += isField ? formatRun(date, letter, end - i) : pattern.mid(i, end - i);
        i = end;
    }
    return text;
}

} // namespace values
