#include "core/store/SerialNumber.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::optional<qint32> readSerialNumber(const QString& text)
{
    const QString digits = text.trimmed();
    if (!std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }))
        return std::nullopt;
    const qint32 number = digits.toInt(); // no digits are 0, as are too many
    return isSerialNumber(number) ? std::optional(number) : std::nullopt;
}

OperatorError serialNumberRefused(const QString& field)
{
    return OperatorError(
        u"The %1 must be a number from 1 to %2, in digits alone. Nothing has been saved."_s.arg(
            field, QString::number(HighestSerialNumber)));
}
