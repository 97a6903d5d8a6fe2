#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The one place that knows how the system's SQL differs from the engine's.
namespace ado::dialect {

/// A statement in the engine's dialect.
struct Statement
{
    QString sql;      ///< for the engine; a select without an order gets one by insertion
    QString reversed; ///< the last row of the same select; empty when it cannot be turned round
    QString countSql; ///< gives the number of rows; empty when the statement is no select
    QString table; ///< the table whose rows can be written: `sql` then yields the row's key in front of the
                   ///< columns
    bool isSelect = false;
};

/// Translates `#...#` dates, "Delete * from", a number that runs into the next word ("5and"), and the like.
/// Throws DatabaseError for a text that cannot be cut into tokens (an open quote, a date that is none).
Statement translate(const QString& sql);

/// A statement as it stands, or the select of all rows where the text is the mere name of a table.
QString expandTableName(const QString& command);

/// The select in the engine's dialect, with these columns alone where it gives all columns of one table.
QString withColumns(const QString& select, const QStringList& columns);

/// The select with one more condition on its rows.
QString withCondition(const QString& select, const QString& condition);

/// A hierarchical query: SHAPE {parent} [AS a] APPEND ({child} [AS b] RELATE parentField TO childField) [AS
/// chapter], or SHAPE {rows} AS a COMPUTE a, SUM(a.'field') AS name BY 'field'.
struct Shape
{
    QString parentSql; ///< the parents; for COMPUTE the select of the groups
    QString childSql;
    QString chapter; ///< the name under which a parent's children are found
    QString parentField;
    QString childField;
};

/// Empty when the text is no SHAPE query. Throws DatabaseError when it begins as one and cannot be read.
std::optional<Shape> parseShape(const QString& sql);

} // namespace ado::dialect
