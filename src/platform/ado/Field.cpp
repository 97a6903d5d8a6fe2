#include "platform/ado/Recordset.h"
#include "platform/ado/RecordsetPrivate.h"

#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

namespace ado {

const QVariant& Field::stored() const
{
    if (!m_owner.d->current)
        throw NoCurrentRecordError();
    return m_owner.d->value(m_column);
}

ColumnType Field::type() const { return m_owner.d->column(static_cast<size_t>(m_column)).type; }

const QString& Field::name() const { return m_owner.d->column(static_cast<size_t>(m_column)).name; }

bool Field::isNull() const { return !stored().isValid(); }

QVariant Field::value() const
{
    const QVariant& raw = stored();
    if (type() == ColumnType::Date && raw.isValid()) {
        if (const QDate day = QDate::fromString(raw.toString(), Qt::ISODate); day.isValid())
            return day;
    }
    return raw;
}

QString Field::text() const { return toText(type(), stored()); }

qint32 Field::integer() const
{
    const QVariant& raw = stored();
    if (raw.typeId() == QMetaType::LongLong)
        return values::toInt32(raw.toLongLong(), name());
    return values::CLng(toNumber(raw), name());
}

double Field::number() const { return toNumber(stored()); }

Currency Field::money() const { return Currency::fromDouble(number(), name()); }

QDate Field::date() const { return isNull() ? QDate() : values::CDate(text()); }

Field& Field::operator=(const QVariant& value)
{
    m_owner.d->requireWritable();
    m_owner.d->setValue(m_column, storedForm(type(), value, name()));
    return *this;
}

Field& Field::operator=(Currency value) { return *this = QVariant::fromValue(value); }

} // namespace ado
