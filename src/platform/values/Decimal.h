#pragma once

#include <QByteArray>

namespace values {

/// A finite double as the decimal number that a reader sees: the shortest one that reads back as the same
/// double. Roundings work on it, so that 1.005 is a true half although its binary form lies below.
struct Decimal
{
    enum class Half { ToEven, AwayFromZero };

    explicit Decimal(double number);

    /// Rounds to so many places behind the point; `digits` then ends exactly there.
    void round(int places, Half half);
    bool isZero() const;

    bool negative = false;
    QByteArray digits; ///< at least one digit stands before the point
    int places = 0;    ///< how many of the digits stand behind the point
};

} // namespace values
