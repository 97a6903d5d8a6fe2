#include "platform/values/Decimal.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace values {

namespace {

/// Adds one to the last digit; a carry may put a digit in front.
void increment(QByteArray& digits)
{
    for (qsizetype i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            digits[i] = static_cast<char>(digits[i] + 1);
            return;
        }
        digits[i] = '0';
    }
    digits.prepend('1');
}

} // namespace

Decimal::Decimal(double number)
    : negative(std::signbit(number))
    , digits(QByteArray::number(std::fabs(number), 'f', QLocale::FloatingPointShortest))
{
    if (const qsizetype point = digits.indexOf('.'); point >= 0) {
        places = static_cast<int>(digits.size() - point - 1);
        digits.remove(point, 1);
    }
}

void Decimal::round(int wanted, Half half)
{
    if (wanted >= places) {
        digits.append(wanted - places, '0');
        places = wanted;
        return;
    }
    const qsizetype kept = digits.size() - (places - wanted);
    const char first = digits[kept];
    const bool beyondHalf =
        std::any_of(digits.cbegin() + kept + 1, digits.cend(), [](char c) { return c != '0'; });
    const bool odd = ((digits[kept - 1] - '0') & 1) != 0;
    digits.truncate(kept);
    places = wanted;
    if (first > '5' || (first == '5' && (beyondHalf || half == Half::AwayFromZero || odd)))
        increment(digits);
}

bool Decimal::isZero() const
{
    return std::all_of(digits.cbegin(), digits.cend(), [](char c) { return c == '0'; });
}

} // namespace values
