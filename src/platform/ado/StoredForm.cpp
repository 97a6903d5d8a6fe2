#include "platform/ado/StoredForm.h"

#include "platform/values/Currency.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace ado {

namespace {

constexpr qint64 unitsPerWhole = 10000;

bool isNothing(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return true;
    case QMetaType::QDate:
        return !value.toDate().isValid();
    case QMetaType::QDateTime:
        return !value.toDateTime().isValid();
    default:
        return false;
    }
}

bool isWhole(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return true;
    default:
        return false;
    }
}

bool isMoney(const QVariant& value) { return value.typeId() == qMetaTypeId<Currency>(); }

double numberOf(const QVariant& value)
{
    if (isMoney(value))
        return value.value<Currency>().toDouble();
    if (isWhole(value) || value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        return value.toDouble();
    if (value.typeId() != QMetaType::QString)
        throw TypeMismatchError();
    bool isNumber = false;
    const double number = value.toString().trimmed().toDouble(&isNumber);
    if (!isNumber)
        throw TypeMismatchError();
    return number;
}

/// Whole amounts are stored as whole numbers, others as the double nearest to their decimals.
QVariant storedMoney(const QVariant& value, const QString& column)
{
    Currency money;
    if (isMoney(value))
        money = value.value<Currency>();
    else
        money = Currency::fromDouble(numberOf(value), column);
    if (money.units() % unitsPerWhole == 0)
        return QVariant(money.units() / unitsPerWhole);
    return QVariant(money.toDouble());
}

QVariant storedInteger(const QVariant& value, const QString& column)
{
    const qint32 number =
        isWhole(value) ? values::toInt32(value.toLongLong(), column) : values::CLng(numberOf(value), column);
    return QVariant(qint64(number));
}

QString dateWithTime(const QDateTime& moment)
{
    const QString date = values::CStr(moment.date());
    return moment.time() == QTime(0, 0) ? date : date + moment.time().toString(u" HH:mm:ss"_s);
}

QVariant storedDateOf(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDate)
        return values::CStr(value.toDate());
    if (value.typeId() == QMetaType::QDateTime)
        return dateWithTime(value.toDateTime());
    const auto date = value.typeId() == QMetaType::QString ? storedDate(value.toString()) : std::nullopt;
    if (!date)
        throw TypeMismatchError();
    return *date;
}

QVariant storedText(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString().isNull() ? u""_s : value.toString();
    if (value.typeId() == QMetaType::QDate || value.typeId() == QMetaType::QDateTime)
        return storedDateOf(value);
    if (isMoney(value))
        return value.value<Currency>().toString();
    if (isWhole(value))
        return QString::number(value.toLongLong());
    return values::CStr(numberOf(value));
}

} // namespace

ColumnType columnType(const char* declaration)
{
    const QByteArray name(declaration);
    if (name == "INTEGER")
        return ColumnType::Integer;
    if (name == "MONEY")
        return ColumnType::Money;
    if (name == "DOUBLE")
        return ColumnType::Double;
    if (name == "DATE")
        return ColumnType::Date;
    return name == "LONGTEXT" ? ColumnType::LongText : ColumnType::Expression;
}

std::optional<QString> storedDate(const QString& text)
{
    const QDate date = values::readDate(text);
    if (!date.isValid())
        return std::nullopt;
    const qsizetype colon = text.indexOf(u':');
    if (colon < 0)
        return values::CStr(date);
    QString time = text.mid(colon - 2).trimmed().toUpper();
    if (time.startsWith(u'T'))
        time.remove(0, 1);
    for (const char* form : {"h:m:s AP", "h:m AP", "H:m:s", "H:m", "H:m:s.z"}) {
        if (const QTime parsed = QTime::fromString(time, QLatin1String(form)); parsed.isValid())
            return dateWithTime(QDateTime(date, parsed));
    }
    return std::nullopt;
}

QVariant storedForm(ColumnType type, const QVariant& value, const QString& column)
{
    if (isNothing(value))
        return {};
    switch (type) {
    case ColumnType::Integer:
        return storedInteger(value, column);
    case ColumnType::Money:
        return storedMoney(value, column);
    case ColumnType::Double:
        return QVariant(numberOf(value));
    case ColumnType::Date:
        return storedDateOf(value);
    case ColumnType::LongText:
    case ColumnType::Expression:
        break;
    }
    return storedText(value);
}

double toNumber(const QVariant& stored) { return stored.isValid() ? numberOf(stored) : 0.0; }

QString toText(ColumnType type, const QVariant& stored)
{
    if (stored.typeId() == QMetaType::LongLong)
        return QString::number(stored.toLongLong());
    if (stored.typeId() == QMetaType::Double) {
        const double number = stored.toDouble();
        return type == ColumnType::Money ? Currency::fromDouble(number).toString() : values::CStr(number);
    }
    return stored.toString();
}

} // namespace ado
