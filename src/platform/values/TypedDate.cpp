#include "platform/values/TypedDate.h"

#include <QLocale>
#include <QRegularExpression>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace values {

namespace {

constexpr int firstYear = 1900;
constexpr int lastYear = 2199;
constexpr int yearsAhead = 30; ///< that two digits can mean
constexpr int yearsOff = 15;   ///< from where on a reading is doubtful
constexpr int twoMonths = 61;  ///< in days

/// Some of what was typed, and where.
struct Piece
{
    QString text;
    qsizetype start = 0;

    bool isName() const { return !text.isEmpty() && text.front().isLetter(); }
};

/// What was typed by its meaning; parts left out are empty.
struct TypedParts
{
    Piece day, month, year;
};

/// A number of one or two digits; 0 for anything else.
int shortNumber(const QString& text) { return text.size() <= 2 ? text.toInt() : 0; }

bool isYear(int year) { return year >= firstYear && year <= lastYear; }

/// Digits alone as day, month and year; 20250310 is the year first, as it is no date the other way.
QList<Piece> cutDigits(const Piece& piece)
{
    const QString& digits = piece.text;
    const auto cut = [&piece](qsizetype first, qsizetype second) {
        return QList<Piece>{{piece.text.left(first), piece.start},
                            {piece.text.mid(first, second), piece.start + first},
                            {piece.text.mid(first + second), piece.start + first + second}};
    };
    switch (digits.size()) {
    case 8: {
        const int year = digits.right(4).toInt();
        const bool dayFirst =
            isYear(year) && QDate(year, digits.mid(2, 2).toInt(), digits.left(2).toInt()).isValid();
        return dayFirst ? cut(2, 2) : cut(4, 2);
    }
    case 6:
        return cut(2, 2);
    case 4: {
        const int number = digits.toInt();
        const bool thisCenturyOrLast = number >= firstYear && number < firstYear + 200;
        return thisCenturyOrLast ? QList<Piece>{} : cut(2, 2).mid(0, 2);
    }
    default:
        return {piece};
    }
}

QList<Piece> pieces(const QString& text)
{
    static const QRegularExpression form(u"^[0-9A-Za-z][-/., 0-9A-Za-z]*$"_s);
    static const QRegularExpression part(u"[0-9]+|[A-Za-z]+"_s);
    QList<Piece> found;
    if (!form.match(text.simplified()).hasMatch())
        return found;
    for (auto match = part.globalMatch(text); match.hasNext();) {
        const auto piece = match.next();
        found += Piece{piece.captured(), piece.capturedStart()};
    }
    return found.size() == 1 ? cutDigits(found[0]) : found;
}

QDate dateOf(const TypedParts& parts, const QDate& reference, Looks looks)
{
    const int day = shortNumber(parts.day.text);
    const int month = readTypedMonth(parts.month.text);
    const QDate date(readTypedYear(parts.year.text, reference, looks), month, day);
    const bool tooLate = looks == Looks::Birth && parts.year.text.size() == 2 && date > reference;
    return tooLate ? QDate(date.year() - 100, month, day) : date;
}

/// Three numbers of which the year may be the first.
TypedParts threeNumbers(const QList<Piece>& found, const QDate& reference, Looks looks)
{
    const TypedParts dayFirst{found[0], found[1], found[2]};
    const TypedParts yearFirst{found[2], found[1], found[0]};
    if (found[0].text.size() == 4)
        return yearFirst;
    const bool alike = found[0].text.size() == 2 && found[2].text.size() == 2 && !found[1].isName();
    if (looks == Looks::Birth || !alike)
        return dayFirst;
    const auto off = [&](const QDate& date) { return qAbs(date.year() - reference.year()); };
    const QDate one = dateOf(dayFirst, reference, looks);
    const QDate other = dateOf(yearFirst, reference, looks);
    const bool meansOther = one.isValid() && other.isValid() && off(one) >= yearsOff && off(other) < yearsOff;
    return meansOther ? yearFirst : dayFirst;
}

std::optional<TypedParts> sortParts(const QString& text, const QDate& reference, Looks looks)
{
    const QList<Piece> found = pieces(text);
    switch (found.size()) {
    case 1:
        return TypedParts{found[0], {}, {}};
    case 2:
        return found[0].isName() ? TypedParts{found[1], found[0], {}} : TypedParts{found[0], found[1], {}};
    case 3:
        return found[0].isName() ? TypedParts{found[1], found[0], found[2]}
                                 : threeNumbers(found, reference, looks);
    default:
        return {};
    }
}

/// The day of a month that is left out.
QDate dayAlone(int day, const QDate& reference, Looks looks)
{
    if (looks == Looks::Around)
        return QDate(reference.year(), reference.month(), day);
    const bool ahead = looks == Looks::Ahead || looks == Looks::Onward;
    constexpr int enough = 3; // months, of which one has a 31st that lies the right way
    const QDate first(reference.year(), reference.month(), 1);
    for (int step = 0; step < enough; ++step) {
        const QDate month = first.addMonths(ahead ? step : -step);
        const QDate date(month.year(), month.month(), day);
        if (date.isValid() && (ahead ? date >= reference : date <= reference))
            return date;
    }
    return {};
}

/// The day and month of a year that is left out.
QDate withoutYear(int day, int month, const QDate& reference, Looks looks)
{
    if (looks == Looks::Ahead || looks == Looks::Onward) {
        const QDate first = looks == Looks::Onward ? reference.addDays(-twoMonths) : reference;
        const QDate date(first.year(), month, day);
        return date.isValid() && date >= first ? date : QDate(first.year() + 1, month, day);
    }
    const QDate last = looks == Looks::Around ? reference.addDays(twoMonths) : reference;
    const QDate date(last.year(), month, day);
    return date.isValid() && date <= last ? date : QDate(last.year() - 1, month, day);
}

} // namespace

int readTypedMonth(const QString& text)
{
    using Names = std::array<QString, 12>;
    static const Names names = [] {
        Names whole;
        for (int month = 1; month <= 12; ++month)
            whole[size_t(month - 1)] = QLocale::c().monthName(month, QLocale::LongFormat);
        return whole;
    }();
    if (text.isEmpty() || !text.front().isLetter()) {
        const int number = shortNumber(text);
        return number <= 12 ? number : 0;
    }
    for (int month = 1; month <= 12 && text.size() >= 3; ++month) {
        if (names[size_t(month - 1)].startsWith(text, Qt::CaseInsensitive))
            return month;
    }
    return 0;
}

int readTypedYear(const QString& text, const QDate& reference, Looks looks)
{
    const int number = text.toInt();
    if (text.size() == 4)
        return isYear(number) ? number : 0;
    if (text.size() != 2)
        return 0;
    const int year = 2000 + number;
    const int last = reference.year() + (looks == Looks::Birth ? 0 : yearsAhead);
    return year > last ? year - 100 : year;
}

QDate readTypedDate(const QString& text, const QDate& reference, Looks looks)
{
    const auto parts = sortParts(text, reference, looks);
    if (!parts)
        return {};
    if (!parts->year.text.isEmpty())
        return dateOf(*parts, reference, looks);
    const int day = shortNumber(parts->day.text);
    if (parts->month.text.isEmpty())
        return dayAlone(day, reference, looks);
    return withoutYear(day, readTypedMonth(parts->month.text), reference, looks);
}

DatePart typedPartAt(const QString& text, qsizetype place, const QDate& reference, Looks looks)
{
    const auto parts = sortParts(text, reference, looks);
    if (!parts)
        return DatePart::Day;
    DatePart found = DatePart::Day;
    qsizetype start = -1;
    const auto look = [&](const Piece& piece, DatePart part) {
        const bool isAt = !piece.text.isEmpty() && piece.start < qMax<qsizetype>(1, place);
        if (isAt && piece.start > start) {
            start = piece.start;
            found = part;
        }
    };
    look(parts->day, DatePart::Day);
    look(parts->month, DatePart::Month);
    look(parts->year, DatePart::Year);
    return found;
}

} // namespace values
