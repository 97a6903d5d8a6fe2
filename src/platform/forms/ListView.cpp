#include "platform/forms/ListView.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QScrollBar>

namespace forms {

namespace {

constexpr int heightOfRow = 32;

} // namespace

class ListView::Model : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    struct Row
    {
        QStringList cells;
        QString tag;
    };

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_columns.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole)
            return m_rows[size_t(index.row())].cells.value(index.column());
        if (role == Qt::TextAlignmentRole)
            return alignment(index.column());
        if (role == Qt::SizeHintRole)
            return QSize(0, heightOfRow);
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
            return m_columns[size_t(section)].title;
        if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
            return alignment(section);
        return {};
    }

    const std::vector<Column>& columns() const { return m_columns; }
    void setColumns(const std::vector<Column>& columns)
    {
        beginResetModel();
        m_rows.clear();
        m_columns = columns;
        endResetModel();
    }
    bool has(int row) const { return row >= 0 && row < rowCount(); }
    Row* row(int row) { return has(row) ? &m_rows[size_t(row)] : nullptr; }
    int add(Row&& row)
    {
        const int number = rowCount();
        beginInsertRows({}, number, number);
        m_rows.push_back(std::move(row));
        endInsertRows();
        return number;
    }
    void changed(int row) { Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1)); }
    void remove(int row)
    {
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
    }
    void clear()
    {
        beginResetModel();
        m_rows.clear();
        endResetModel();
    }

private:
    QVariant alignment(int column) const
    {
        return QVariant::fromValue(m_columns[size_t(column)].alignment | Qt::AlignVCenter);
    }

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
};

ListView::ListView(QWidget* parent)
    : QTreeView(parent)
    , m_rows(new Model(this))
{
    setModel(m_rows);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setMinimumSectionSize(8);
    connect(this, &QAbstractItemView::doubleClicked, this, &ListView::dblClicked);
}

ListView::~ListView() = default;

void ListView::setColumns(const std::vector<Column>& columns)
{
    const bool hadSelection = selectedRow() >= 0;
    m_rows->setColumns(columns);
    layOutColumns();
    if (hadSelection)
        Q_EMIT selectionMoved();
}

int ListView::addRow(const QStringList& cells, const QString& tag) { return m_rows->add({cells, tag}); }

void ListView::setRow(int row, const QStringList& cells)
{
    if (Model::Row* found = m_rows->row(row)) {
        found->cells = cells;
        m_rows->changed(row);
    }
}

void ListView::setCell(int row, int column, const QString& text)
{
    Model::Row* found = m_rows->row(row);
    if (!found || column < 0 || column >= m_rows->columnCount())
        return;
    while (found->cells.size() <= column)
        found->cells.append(QString());
    found->cells[column] = text;
    m_rows->changed(row);
}

QString ListView::cell(int row, int column) const
{
    const Model::Row* found = m_rows->row(row);
    return found ? found->cells.value(column) : QString();
}

QString ListView::tag(int row) const
{
    const Model::Row* found = m_rows->row(row);
    return found ? found->tag : QString();
}

void ListView::setTag(int row, const QString& tag)
{
    if (Model::Row* found = m_rows->row(row))
        found->tag = tag;
}

void ListView::removeRow(int row)
{
    if (m_rows->has(row))
        m_rows->remove(row);
}

void ListView::Clear()
{
    const bool hadSelection = selectedRow() >= 0;
    m_rows->clear();
    if (hadSelection)
        Q_EMIT selectionMoved();
}

int ListView::rowCount() const { return m_rows->rowCount(); }

int ListView::selectedRow() const
{
    const QModelIndexList selected = selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void ListView::selectRow(int row)
{
    if (m_rows->has(row))
        setCurrentIndex(m_rows->index(row, 0));
    else
        selectionModel()->clear();
}

void ListView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    layOutColumns();
}

void ListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionMoved();
}

void ListView::layOutColumns()
{
    const int width = viewport()->width();
    for (size_t i = 0; i < m_rows->columns().size(); ++i)
        header()->resizeSection(int(i), int(width * m_rows->columns()[i].percent / 100));
}

} // namespace forms
