#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

/// Dates and their texts. Month names are English whatever the locale.
namespace values {

/// The default short form, ISO: "2024-02-10".
QString CStr(const QDate& date);

/// Reads a date: ISO `yyyy-MM-dd`, `DD-MMM-YYYY` and `d-MMMM-yyyy` (month names in any case), and all-digit
/// `a-b-yyyy` (or with "/"): month first where it can be, else day first. A time behind it ("... 13:45:00")
/// is dropped. Returns an invalid date when the text is none.
QDate readDate(const QString& text);
/// The same, but throws TypeMismatchError when the text is no date.
QDate CDate(const QString& text);

/// Reads a date as people type it, the day first: digits alone (`31032024`, `310324`, `3103`, `31`), parts
/// with
/// `-`, `/`, `.`, "," or blanks between (or none beside a month's name), a month by its name or three or more
/// of its letters, the year first where it has four digits. Parts left out are those of `stood`, but a day
/// and month more than ten months away belong to the next or the last year: 15-01 at 28-Dec-2024 is in 2025.
/// A year of two digits is 20yy. With `latest` (births) a date behind it by such a year is the one a century,
/// or a year, before. Returns an invalid date for anything else: 31-02, digits that read two ways, a year
/// outside 1900 to 2199.
QDate readTypedDate(const QString& text, const QDate& stood, const QDate& latest = {});

/// Formats a date by patterns such as "dd-MMM-yyyy", "DD-MMM-YYYY", "DD_MM_YYYY", "dd-mmm-yy": letters count
/// in either case, as months are all that "m" can mean in a date. An invalid date is empty text.
QString Format(const QDate& date, const QString& pattern);

} // namespace values
