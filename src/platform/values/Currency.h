#pragma once

#include <QString>
#include <QtGlobal>
#include <compare>

/// An amount of money: exact, four decimals, 64 bits wide (up to about 922 million million).
/// Arithmetic that leaves the range throws OverflowError.
class Currency
{
public:
    constexpr Currency() = default;
    /// Rounds half to even at the fourth decimal, on the decimal text of the number. `field` is what the
    /// operator calls the amount.
    static Currency fromDouble(double amount, const QString& field = {});
    /// `units` are ten-thousandths.
    static constexpr Currency fromUnits(qint64 units)
    {
        Currency c;
        c.m_units = units;
        return c;
    }

    constexpr qint64 units() const { return m_units; }
    double toDouble() const { return static_cast<double>(m_units) / 10000.0; }
    /// "12.5", "-0.25", "100": no trailing zeros.
    QString toString() const;

    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency operator-() const;
    Currency& operator+=(Currency other) { return *this = *this + other; }
    constexpr auto operator<=>(const Currency&) const = default;

private:
    qint64 m_units = 0;
};
