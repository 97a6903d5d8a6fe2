#include "core/store/MobileNumber.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr int fewestDigits = 7;
constexpr int mostDigits = 15;
constexpr int mobileLength = 10;
constexpr int fewestDigitsOfPart = 3; // behind what is dialled before it

/// Its digits, of any script, as 0 to 9.
QString digitsOf(const QString& text)
{
    QString digits;
    for (const QChar c : text)
        if (const int digit = c.digitValue(); digit >= 0)
            digits += QChar(u'0' + digit);
    return digits;
}

/// Only what a number is written with.
bool isWrittenAsNumber(const QString& text)
{
    static const QRegularExpression number(
        QRegularExpression::anchoredPattern(u"\\s*\\+?[\\p{Nd}\\s().\\-\u2010-\u2013]*"_s));
    return number.match(text).hasMatch();
}

/// Without what is dialled before a number: 00, the country's 91, or the 0 of a trunk call.
QString withoutPrefix(QString digits)
{
    if (digits.startsWith("00"_L1))
        digits.remove(0, 2);
    if (digits.size() == mobileLength + 2 && digits.startsWith("91"_L1))
        return digits.sliced(2);
    if (digits.size() == mobileLength + 1 && digits.startsWith(u'0'))
        return digits.sliced(1);
    return digits;
}

} // namespace

QString mobileDigits(const QString& text)
{
    const QString digits = withoutPrefix(digitsOf(text));
    return digits.size() < fewestDigits ? QString() : digits;
}

QString storedMobile(const QString& text)
{
    const QString digits = mobileDigits(text);
    const bool isOne = !digits.isEmpty() && digits.size() <= mostDigits && isWrittenAsNumber(text);
    return isOne ? digits : text.trimmed();
}

NumberPart numberPart(const QString& text)
{
    if (!isWrittenAsNumber(text))
        return {};
    const QString digits = digitsOf(text);
    QString rest = digits;
    if (rest.startsWith("00"_L1))
        rest.remove(0, 2);
    if (rest.startsWith("91"_L1))
        rest.remove(0, 2);
    else if (rest.startsWith(u'0'))
        rest.remove(0, 1);
    const bool prefixed = rest.size() < digits.size() && rest.size() >= fewestDigitsOfPart;
    return {digits, prefixed ? rest : QString()};
}
