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

/// Formats a date by patterns such as "dd-MMM-yyyy", "DD-MMM-YYYY", "DD_MM_YYYY", "dd-mmm-yy": letters count
/// in either case, as months are all that "m" can mean in a date. An invalid date is empty text.
QString Format(const QDate& date, const QString& pattern);

} // namespace values
