#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

class QAbstractItemView;
class QByteArray;

namespace forms {

/// What a list shows, as it leaves the program: for the clipboard, a spreadsheet, a file of comma-separated
/// values, paper.
struct ListSheet
{
    struct Column
    {
        QString title;        ///< empty in a list without titles
        bool isRight = false; ///< holds figures
        double letters = 0;   ///< its width on the screen, in digits; 0: not known
    };
    struct Row
    {
        QStringList cells;
        std::vector<bool> bold; ///< by column; those left out are not
        bool isBold(size_t column) const { return column < bold.size() && bold[column]; }
    };

    QString title;        ///< of the screen
    QStringList criteria; ///< what the screen's fields say of the list, each with its caption
    std::vector<Column> columns;
    std::vector<Row> rows;

    QStringList titles() const; ///< empty where the list has none
};

/// The list of a screen, all of its rows or some, by their numbers.
ListSheet sheetOf(const QAbstractItemView& list);
ListSheet sheetOf(const QAbstractItemView& list, const std::vector<int>& rows);

/// The day that a cell shows ("10-Feb-2024"); an invalid one for any other text.
QDate shownDay(const QString& cell);

/// Rows as a spreadsheet takes them from the clipboard, a tab between two cells.
QString tabbed(const ListSheet& sheet);
/// A file that a spreadsheet opens and computes with: UTF-8 with its mark, dates as 2024-02-10, and no cell
/// that would be taken for a formula.
QByteArray commaSeparated(const ListSheet& sheet);

} // namespace forms
