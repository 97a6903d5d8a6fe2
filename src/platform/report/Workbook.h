#pragma once

#include <QByteArray>
#include <QString>

namespace forms {
struct ListSheet;
}

namespace report {

/// A list as a spreadsheet file (.xlsx) that computes: columns on the right hold figures, "650.00 Dr" among
/// them as -650.00 (the column's title says so); days are days wherever they stand, without the days that are
/// left; all else is text, so that "1/2" stays a line's code and a mobile number keeps its digits. The titles
/// stand in a row that does not scroll. The file's properties name screen, criteria and `owner`. Throws
/// OperatorError when there is no room to make it.
QByteArray workbook(const forms::ListSheet& sheet, const QString& owner = {});

} // namespace report
