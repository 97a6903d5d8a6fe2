#pragma once

#include <QTreeView>
#include <memory>
#include <vector>

namespace forms {

/// A list in report view: columns with titles, rows of cells, a tag on each row. Rows are selected whole and
/// not edited. Its model is light: 30,000 rows are no trouble.
class ListView : public QTreeView
{
    Q_OBJECT
public:
    struct Column
    {
        QString title;
        double percent; ///< of the view's width
        Qt::Alignment alignment = Qt::AlignLeft;
    };

    explicit ListView(QWidget* parent = nullptr);
    ~ListView() override;

    /// Lays out the columns anew; rows go. Widths follow the view's width.
    void setColumns(const std::vector<Column>& columns);

    /// Adds a row at the end and returns its number. Cells left out are empty.
    int addRow(const QStringList& cells, const QString& tag = {});
    void setRow(int row, const QStringList& cells);
    void setCell(int row, int column, const QString& text);
    /// Empty outside the list, as is the tag.
    QString cell(int row, int column) const;
    QString tag(int row) const;
    void setTag(int row, const QString& tag);
    void removeRow(int row);
    void Clear();
    int rowCount() const;
    /// -1: none.
    int selectedRow() const;
    /// Selects a row and brings it into view; a row outside the list selects none.
    void selectRow(int row);

Q_SIGNALS:
    /// A row was double-clicked.
    void dblClicked();
    /// Another row is selected, or none.
    void selectionMoved();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    class Model;
    void layOutColumns();

    Model* m_rows;
};

} // namespace forms
