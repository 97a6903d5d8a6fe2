#include "platform/values/Currency.h"

#include "platform/values/Decimal.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int decimals = 4;

OverflowError overflow(double amount, const QString& field = {})
{
    using Limits = std::numeric_limits<qint64>;
    const bool above = !(amount < 0);
    const bool readable = std::fabs(amount) < 1e15;
    return {field.isEmpty() ? u"the amount"_s : field, readable ? values::CStr(amount) : QString(),
            above ? OverflowError::Beyond::Highest : OverflowError::Beyond::Lowest,
            Currency::fromUnits(above ? Limits::max() : Limits::min()).toString()};
}

} // namespace

Currency Currency::fromDouble(double amount, const QString& field)
{
    if (!std::isfinite(amount))
        throw overflow(amount, field);
    values::Decimal decimal(amount);
    decimal.round(decimals, values::Decimal::Half::ToEven);
    if (decimal.negative)
        decimal.digits.prepend('-');
    bool fits = false;
    const qint64 units = decimal.digits.toLongLong(&fits);
    if (!fits)
        throw overflow(amount, field);
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
        throw overflow(toDouble() + other.toDouble());
    return fromUnits(sum);
}

Currency Currency::operator-(Currency other) const
{
    qint64 difference = 0;
    if (qSubOverflow(m_units, other.m_units, &difference))
        throw overflow(toDouble() - other.toDouble());
    return fromUnits(difference);
}

Currency Currency::operator-() const { return Currency() - *this; }
