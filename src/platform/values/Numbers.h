#pragma once

#include <QString>
#include <QtGlobal>

/// Numbers and their texts. "." is the decimal point whatever the locale.
namespace values {

/// The leading number of a text: "12abc" is 12, " 1 2" is 12 (blanks are skipped), "-3.5 kg" is -3.5, "1.5.2"
/// is 1.5, a text without one is 0. An exponent counts ("1e3"). A number too large for a double is 0.
double Val(const QString& text);

/// Rounds half to even and narrows; throws OverflowError if the result does not fit, or `number` is not
/// finite. `field` is what the operator calls the number.
qint16 CInt(double number, const QString& field = {});
qint32 CLng(double number, const QString& field = {});
/// Narrow a whole number; throws OverflowError if it does not fit.
qint16 toInt16(qint64 number, const QString& field = {});
qint32 toInt32(qint64 number, const QString& field = {});

/// The shortest text that reads back as the same number, never in exponent form below 1e15: 301 is "301", 0.1
/// is "0.1".
QString CStr(double number);

/// Formats by a pattern of the kind "0", "0.00", "#,##0.00" with an optional second section for negatives,
/// as in "#,##0.00;(#,##0.00)". Rounds half away from zero, on the decimal text of the number (1.005 is
/// "1.01").
QString Format(double number, const QString& pattern);
/// Money as the screens show it: Format(Val(text), "0.00").
QString formatMoneyText(const QString& text);

} // namespace values
