#pragma once

#include <QDate>
#include <QString>

/// Dates as people type them.
namespace values {

/// Which way a date is meant that is typed without its month or its year, seen from a day of reference.
enum class Looks {
    Around, ///< what has happened, as a rule: the day alone is of the same month; a day and month lie at most
            ///< ten months back and two ahead
    Ahead,  ///< what is promised: the first such day from the reference on
    Onward, ///< where a list ends that begins on the reference: as Ahead, but a day and month lie at most ten
            ///< months ahead and two back, where the list's beginning may yet be typed
    Back,   ///< where a list begins: the last such day up to the reference
    Birth,  ///< as Back; a date of two digits for its year never lies behind the reference
};

enum class DatePart { Day, Month, Year };

/// Reads a date as people type it, the day first: digits alone (`31032024`, `310324`, `3103`, `31`), parts
/// with `-`, `/`, `.`, "," or blanks between (or none beside a month's name), a month by its name or three or
/// more of its letters, the year first where it has four digits. What is left out follows from `reference`
/// and `looks`.
/// A year of two digits is the one of 20yy, or 19yy where that is more than thirty years ahead. Three numbers
/// of two digits are the year first where the day first is fifteen years off and the year first is not
/// (26-11-05 in 2026), except for births. Returns an invalid date for anything else: 31-02, digits that read
/// two ways (1201926), four digits that can be a year (2012 is not 20 December), a year outside 1900 to 2199.
QDate readTypedDate(const QString& text, const QDate& reference, Looks looks = Looks::Around);

/// Which part of a date that readTypedDate can read stands at, or before, a place of its text.
DatePart typedPartAt(const QString& text, qsizetype place, const QDate& reference, Looks looks);

/// 1 to 12 for a month's number, name or three or more letters of it; 0 for anything else.
int readTypedMonth(const QString& text);
/// The year of two or four digits; 0 for anything else.
int readTypedYear(const QString& text, const QDate& reference, Looks looks);

} // namespace values
