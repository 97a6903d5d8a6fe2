#include "ui/DateDiff.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Span
{
    int years;
    int months;
    int days;
};

int wholeYears(QDate from, QDate to)
{
    if (from.year() == to.year())
        return 0;
    const bool beforeAnniversary = std::pair(to.month(), to.day()) < std::pair(from.month(), from.day());
    return to.year() - from.year() - (beforeAnniversary ? 1 : 0);
}

Span spanBetween(QDate from, QDate to)
{
    const bool dayShort = to.day() < from.day();
    const int calendarMonths = (to.year() - from.year()) * 12 + to.month() - from.month();
    Span span{wholeYears(from, to), (calendarMonths - (dayShort ? 1 : 0)) % 12, to.day() - from.day()};
    if (!dayShort)
        return span;
    if (to.day() == to.daysInMonth()) { // a month's end counts as the whole month
        span.days = 0;
        if (++span.months == 12) {
            span.months = 0;
            ++span.years;
        }
        return span;
    }
    const QDate monthBefore = QDate(to.year(), to.month(), 1).addMonths(-1);
    const int reached = std::min(from.day(), monthBefore.daysInMonth());
    span.days = int(QDate(monthBefore.year(), monthBefore.month(), reached).daysTo(to));
    return span;
}

QString part(int number, const QString& name, bool singular)
{
    return QString::number(number) + u' ' + name + (singular && number == 1 ? QString() : u"s"_s);
}

} // namespace

QString DateDiffText(QDate from, QDate to, bool allParts, bool singular)
{
    if (from > to)
        return {};
    const Span span = spanBetween(from, to);
    const bool withYears = allParts || span.years >= 1;
    const bool withMonths = withYears || span.months >= 1;
    QString text = part(span.days, u"day"_s, singular);
    if (withMonths)
        text.prepend(part(span.months, u"month"_s, singular) + u", "_s);
    if (withYears)
        text.prepend(part(span.years, u"year"_s, singular) + u", "_s);
    return text;
}
