#pragma once

#include <QString>
#include <QVariant>
#include <optional>

/// How values lie in the file.
namespace ado {

/// What a column was declared as. An expression has no declaration.
enum class ColumnType { Integer, Money, Double, Date, LongText, Expression };

ColumnType columnType(const char* declaration);

/// A date as it is stored, ISO text, with its time of day behind it where it has one. Empty for a text that
/// is no date.
std::optional<QString> storedDate(const QString& text);

/// Brings a value to its column's form: a whole number, a double, a text, or nothing. Throws
/// TypeMismatchError for a text that is no number or date where one is due, OverflowError for a number that
/// leaves the column's range.
QVariant storedForm(ColumnType type, const QVariant& value, const QString& column = {});

/// Reads a stored value as a number. Null is 0; throws TypeMismatchError for a text that is none.
double toNumber(const QVariant& stored);

/// Reads a stored value as a text.
QString toText(ColumnType type, const QVariant& stored);

} // namespace ado
