#include "platform/values/Currency.h"

#include "platform/values/Decimal.h"
#include "platform/values/Errors.h"

#include <cmath>

namespace {

constexpr int decimals = 4;

} // namespace

Currency Currency::fromDouble(double amount)
{
    if (!std::isfinite(amount))
        throw OverflowError();
    values::Decimal decimal(amount);
    decimal.round(decimals, values::Decimal::Half::ToEven);
    if (decimal.negative)
        decimal.digits.prepend('-');
    bool fits = false;
    const qint64 units = decimal.digits.toLongLong(&fits);
    if (!fits)
        throw OverflowError();
    return fromUnits(units);
}

QString Currency::toString() const
{
    const bool negative = m_units < 0;
    // Negating the smallest number would overflow; its digits do not.
    QString text = QString::number(m_units).mid(negative ? 1 : 0).rightJustified(decimals + 1, u'0');
    text.insert(text.size() - decimals, u'.');
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return negative ? u'-' + text : text;
}

Currency Currency::operator+(Currency other) const
{
    qint64 sum = 0;
    if (qAddOverflow(m_units, other.m_units, &sum))
        throw OverflowError();
    return fromUnits(sum);
}

Currency Currency::operator-(Currency other) const
{
    qint64 difference = 0;
    if (qSubOverflow(m_units, other.m_units, &difference))
        throw OverflowError();
    return fromUnits(difference);
}

Currency Currency::operator-() const { return Currency() - *this; }
