#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace values {

/// A row of a table in a text file, numbered from 1 as a spreadsheet numbers it.
struct TextRow
{
    int number = 0;
    QStringList cells;
};

struct TextTable
{
    QChar separator; ///< comma, semicolon or tab
    std::vector<TextRow> rows;
};

/// Reads a table whose cells stand apart by commas, semicolons or tabs; by which is seen from its first rows.
/// A cell between quotation marks may hold separators, line breaks, and quotation marks twice each. Rows of
/// empty cells are left out, and counted. Throws OperatorError for a quotation mark that is never closed:
/// nobody can tell which cells follow it.
TextTable readTable(const QString& text);

} // namespace values
