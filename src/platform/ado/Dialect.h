#pragma once

#include <QString>
#include <optional>

/// The one place that knows how the system's SQL differs from the engine's.
namespace ado::dialect {

/// A statement in the engine's words.
struct Statement
{
    QString sql;          ///< for the engine; a select without an order gets one by insertion
    QString reversed;     ///< the same select from its last row on; empty when it cannot be turned round
    QString countSql;     ///< gives the number of rows; empty when it cannot be made
    QString table;        ///< the table whose rows can be written; empty when there is none
    bool isSelect = false;
};

/// Translates `#...#` dates, "Delete * from", a number that runs into the next word ("5and"), and the like.
/// Throws DatabaseError for a text that cannot be cut into words (an open quote, a date that is none).
Statement translate(const QString& sql);

/// A hierarchical query: SHAPE {parent} [AS a] APPEND ({child} [AS b] RELATE parentField TO childField) [AS chapter], or
/// SHAPE {rows} AS a COMPUTE a, SUM(a.'field') AS name BY 'field'.
struct Shape
{
    QString parentSql;
    QString childSql;
    QString chapter;
    QString parentField;
    QString childField;
    QString groupBy;      ///< COMPUTE ... BY this field; empty for APPEND
    QString sumField;
    QString sumName;
};

/// Empty when the text is no SHAPE query. Throws DatabaseError when it begins as one and cannot be read.
std::optional<Shape> parseShape(const QString& sql);

} // namespace ado::dialect
