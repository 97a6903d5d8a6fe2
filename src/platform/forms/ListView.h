#pragma once

#include "platform/forms/Palette.h"

#include <QMap>
#include <QMetaMethod>
#include <QPixmap>
#include <QTreeView>
#include <functional>
#include <vector>

class QMenu;

namespace forms {

/// A list in report view: columns with titles, rows of cells, a tag on each row. Rows are selected whole and
/// not edited.
class ListView : public QTreeView
{
    Q_OBJECT
public:
    /// A column that isn't fixed in percent takes what the others leave.
    static constexpr double rest = 0;

    struct Column
    {
        QString title;
        double percent; ///< of the view's width
        Qt::Alignment alignment = Qt::AlignLeft;
        int least = 0; ///< in pixels; where not even these find room, the view scrolls sideways
    };
    /// What a cell has beside its text.
    struct Look
    {
        QString toolTip; ///< it stands below the cell's text when that is cut off
        QPixmap picture; ///< in front of the text
        bool bold = false;
        const palette::Tone* colour = nullptr; ///< of the text; none is the view's own
    };
    struct Row
    {
        QStringList cells; ///< those left out are empty
        QString tag = {};
        QMap<int, Look> looks = {}; ///< by column
        bool apart = false;         ///< stands on a shade, as a total does
        bool total = false;         ///< sums up the others: a list of it alone counts as empty
    };

    explicit ListView(QWidget* parent = nullptr);
    ~ListView() override;

    /// Lays out the columns anew; rows go. Widths follow the view's width.
    void setColumns(const std::vector<Column>& columns);

    /// Whether several rows can be chosen, with Shift or Ctrl held, to be copied. For lists whose rows are
    /// not worked on: a key must never mark one row of several that look chosen.
    void setSeveral(bool several);

    /// Adds a row at the end and returns its number.
    int addRow(const QStringList& cells, const QString& tag = {});
    int addRow(Row row);
    /// Puts other rows in place of all, at once; none is selected then.
    void setRows(std::vector<Row> rows);
    /// Puts `count` rows in place of all, each made when it is shown, searched or leaves the list: a list of
    /// every line of six years opens at once. `make` gets the row's number, and says the same each time; what
    /// it reads lives until the list gets other rows. Where it throws the row is empty, and the operator
    /// reads why, once.
    void setRows(int count, std::function<Row(int row)> make);
    /// The same, but the row that was selected stays so, by its tag, the second of a tag the second; where
    /// the tag is gone or empty, the one in its place.
    void refreshRows(std::vector<Row> rows);
    void refreshRows(int count, std::function<Row(int row)> make);
    void setRow(int row, const QStringList& cells);
    void setCell(int row, int column, const QString& text);
    /// A row as it is shown, each cell in one line; empty outside the list.
    Row row(int row) const;
    /// Empty outside the list, as is the tag.
    QString cell(int row, int column) const;
    QString tag(int row) const;
    void setTag(int row, const QString& tag);
    Look look(int row, int column) const;
    void setLook(int row, int column, const Look& look);
    void removeRow(int row);
    void Clear();
    int rowCount() const;
    /// The row that is selected, of several the one chosen last; -1: none.
    int selectedRow() const;
    /// Selects a row and brings it into view; a row outside the list selects none.
    void selectRow(int row);
    /// The uppermost row in view; -1: none.
    int topRow() const;
    /// Brings a row to the top, as far as the rows below it fill the view.
    void setTopRow(int row);
    /// Whether somebody answers when a menu is asked for.
    bool hasMenu() const { return isSignalConnected(QMetaMethod::fromSignal(&ListView::menuAsked)); }

    /// Shows a menu that was asked for, on its first entry: Enter and the arrows work at once.
    static void showMenu(QMenu& menu, const QPoint& place);

Q_SIGNALS:
    /// A row was double-clicked.
    void dblClicked();
    /// Another row is selected, or none.
    void selectionMoved();
    /// A pop-up menu is asked for at a place of the display: by the right mouse button on a row, which is
    /// selected first, or by the menu key (also Shift+F10) on the selected row. -1: on no row.
    void menuAsked(int row, const QPoint& place);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    class Model;
    void anew(const std::function<void()>& change);
    void refresh(const std::function<void()>& change);
    int rowLike(const QString& wanted, int before, int position) const;
    void askMenuAtSelection();
    QString tipFor(const QModelIndex& index) const;
    void layOutColumns();

    Model* m_rows;
};

} // namespace forms
