#pragma once

#include "platform/values/Numbers.h"

#include <QColor>
#include <QString>
#include <cmath>
#include <limits>

/// The colour of a cloth as the number that job lines keep: red in the low byte, then green, then blue.
namespace itemcolor {

inline constexpr qint32 White = 0xFFFFFF;

inline QColor fromNumber(qint32 number)
{
    return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}

inline qint32 toNumber(const QColor& color)
{
    return color.red() | (color.green() << 8) | (color.blue() << 16);
}

/// The number in a stored text; white when it does not fit 32 bits.
inline qint32 readNumber(const QString& text)
{
    const double number = values::Val(text);
    return std::abs(number) <= std::numeric_limits<qint32>::max() ? values::CLng(number) : White;
}

} // namespace itemcolor
