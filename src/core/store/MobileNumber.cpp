#include "core/store/MobileNumber.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr int fewestDigits = 7;
constexpr int mostDigits = 15;
constexpr int mobileLength = 10;

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
    QString digits;
    for (const QChar c : text)
        if (const int digit = c.digitValue(); digit >= 0)
            digits += QChar(u'0' + digit);
    digits = withoutPrefix(digits);
    return digits.size() < fewestDigits ? QString() : digits;
}

QString storedMobile(const QString& text)
{
    static const QRegularExpression number(
        QRegularExpression::anchoredPattern(u"\\s*\\+?[\\p{Nd}\\s().\\-\u2010-\u2013]*"_s));
    const QString digits = mobileDigits(text);
    const bool isOne = !digits.isEmpty() && digits.size() <= mostDigits && number.match(text).hasMatch();
    return isOne ? digits : text.trimmed();
}
