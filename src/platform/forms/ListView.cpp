#include "platform/forms/ListView.h"

#include "platform/forms/EmptyText.h"
#include "platform/forms/Metrics.h"
#include "platform/forms/Palette.h"
#include "platform/forms/Screen.h"
#include "platform/forms/ShapedTexts.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace forms {

namespace {

constexpr int heightOfRow = 32;
constexpr int paddingOfCell = 18; // left and right of the text
constexpr int gapOfPicture = 6;
constexpr int rowsKept = 256; // of those made one by one: more than any view shows
constexpr qsizetype longestTip = 1000;
constexpr qsizetype longestShown = 300; // more than any column has room for

/// Paints picture and text of a cell itself, on the ground that the style draws: the style would lay out each
/// text several times, and the lists are full of texts. Pictures keep their colours on a selected row.
class Cells : public QStyledItemDelegate
{
    using QStyledItemDelegate::QStyledItemDelegate;

public:
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const QString text = std::exchange(cell.text, {}).left(longestShown);
        painter->fillRect(cell.rect, cell.backgroundBrush);
        drawGround(*painter, cell);

        QRect room = cell.rect.adjusted(paddingOfCell / 2, 0, -paddingOfCell / 2, 0);
        const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
        if (!picture.isNull()) {
            const QSize size = picture.deviceIndependentSize().toSize();
            painter->drawPixmap(room.left(), room.center().y() - size.height() / 2, picture);
            room.setLeft(room.left() + size.width() + gapOfPicture);
        }
        if (text.isEmpty())
            return;
        const bool chosen =
            cell.state.testFlag(QStyle::State_Selected) && cell.state.testFlag(QStyle::State_Active);
        painter->save();
        painter->setFont(cell.font);
        painter->setPen(
            cell.palette.color(QPalette::Active, chosen ? QPalette::HighlightedText : QPalette::Text));
        m_texts.draw(*painter, room, cell.displayAlignment, text);
        painter->restore();
    }

private:
    /// A cell that is neither chosen nor pointed at has the rule below it alone: the style, which would look
    /// its rules up for each cell, is asked for the others.
    static void drawGround(QPainter& painter, QStyleOptionViewItem& cell)
    {
        if (!(cell.state & (QStyle::State_Selected | QStyle::State_MouseOver))) {
            painter.fillRect(cell.rect.left(), cell.rect.bottom(), cell.rect.width(), 1,
                             QColor(palette::rowLine));
            return;
        }
        cell.icon = {};                        // the style would tint it, and without room for it in vain
        cell.state &= ~QStyle::State_HasFocus; // its frame would tint the row, which is marked as it is
        cell.features &= ~(QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration);
        cell.widget->style()->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
    }

    mutable ShapedTexts m_texts;
};

} // namespace

class ListView::Model : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override
    {
        if (parent.isValid())
            return 0;
        return m_make ? m_count : int(m_rows.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_columns.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!has(index.row()) || index.column() < 0 || index.column() >= columnCount())
            return {};
        if (role == Qt::TextAlignmentRole)
            return alignment(index.column());
        if (role == Qt::SizeHintRole)
            return QSize(0, int(heightOfRow * textScale));
        const Row& shown = *row(index.row());
        if (role == Qt::DisplayRole)
            return oneLine(shown.cells.value(index.column()));
        if (role == Qt::BackgroundRole && shown.apart)
            return QBrush(QColor(palette::shade));
        const auto look = shown.looks.constFind(index.column());
        if (look == shown.looks.cend())
            return {};
        if (role == Qt::AccessibleTextRole) // a picture alone is told by what stands below the pointer
            return shown.cells.value(index.column()).isEmpty() ? look->toolTip : QString();
        return data(*look, role);
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (section < 0 || section >= columnCount())
            return {};
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
        clear();
        m_columns = columns;
        endResetModel();
    }
    /// Whether there is nothing but a total.
    bool isEmpty() const { return rowCount() == 0 || (rowCount() == 1 && row(0)->total); }
    bool has(int row) const { return row >= 0 && row < rowCount(); }
    /// Null outside the list. What it points to stays until another row is asked for.
    const Row* row(int row) const
    {
        if (!has(row))
            return nullptr;
        if (!m_make)
            return &m_rows[size_t(row)];
        if (const Row* made = m_made.object(row))
            return made;
        auto* made = new Row(make(row));
        m_made.insert(row, made);
        return made;
    }
    /// For a change; the rows that were to be made are all made then.
    Row* rowToChange(int row)
    {
        makeAll();
        return has(row) ? &m_rows[size_t(row)] : nullptr;
    }
    int add(Row&& row)
    {
        makeAll();
        const int number = rowCount();
        beginInsertRows({}, number, number);
        m_rows.push_back(std::move(row));
        endInsertRows();
        return number;
    }
    static QString oneLine(QString text)
    {
        return text.contains(u'\n') ? text.remove(u'\r').replace(u'\n', u' ') : text;
    }
    void changed(int row) { Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1)); }
    void remove(int row)
    {
        makeAll();
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
    }
    void replace(std::vector<Row>&& rows)
    {
        beginResetModel();
        clear();
        m_rows = std::move(rows);
        endResetModel();
    }
    void replace(int count, std::function<Row(int row)>&& make)
    {
        beginResetModel();
        clear();
        m_count = count;
        m_make = std::move(make);
        endResetModel();
    }

private:
    void clear()
    {
        m_rows.clear();
        m_made.clear();
        m_make = nullptr;
        m_failed = false;
    }
    void makeAll()
    {
        if (!m_make)
            return;
        m_rows.reserve(size_t(m_count));
        for (int row = 0; row < m_count; ++row)
            m_rows.push_back(make(row));
        m_made.clear();
        m_make = nullptr;
    }
    /// Rows are made while the list is painted: the message has to wait for that.
    Row make(int row) const
    {
        try {
            return m_make(row);
        } catch (...) {
            auto* list = qobject_cast<QWidget*>(QObject::parent());
            if (!std::exchange(m_failed, true))
                QMetaObject::invokeMethod(
                    list,
                    [list, fault = std::current_exception()] {
                        guarded(list, [&fault] { std::rethrow_exception(fault); });
                    },
                    Qt::QueuedConnection);
            return {};
        }
    }
    static QVariant data(const Look& look, int role)
    {
        switch (role) {
        case Qt::DecorationRole:
            return look.picture.isNull() ? QVariant() : look.picture;
        case Qt::ForegroundRole:
            return look.colour ? QVariant(QColor(*look.colour)) : QVariant();
        case Qt::FontRole: {
            if (!look.bold)
                return {};
            QFont font;
            font.setBold(true); // the rest of it stays the view's
            return font;
        }
        default:
            return {};
        }
    }
    QVariant alignment(int column) const
    {
        return QVariant::fromValue(m_columns[size_t(column)].alignment | Qt::AlignVCenter);
    }

    std::vector<Column> m_columns;
    std::vector<Row> m_rows; ///< empty while rows are made one by one
    int m_count = 0;         ///< of the rows that `m_make` makes
    std::function<Row(int)> m_make;
    mutable bool m_failed = false; ///< the operator knows
    mutable QCache<int, Row> m_made{rowsKept};
};

ListView::ListView(QWidget* parent)
    : QTreeView(parent)
    , m_rows(new Model(this))
{
    setModel(m_rows);
    setItemDelegate(new Cells(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setMinimumSectionSize(8);
    connect(this, &QAbstractItemView::doubleClicked, this, &ListView::dblClicked);
}

ListView::~ListView() = default;

void ListView::setSeveral(bool several) { setSelectionMode(several ? ExtendedSelection : SingleSelection); }

void ListView::setColumns(const std::vector<Column>& columns)
{
    anew([&] { m_rows->setColumns(columns); });
    layOutColumns();
}

int ListView::addRow(const QStringList& cells, const QString& tag) { return addRow({cells, tag, {}}); }

int ListView::addRow(Row row) { return m_rows->add(std::move(row)); }

void ListView::setRows(std::vector<Row> rows)
{
    anew([&] { m_rows->replace(std::move(rows)); });
}

void ListView::setRows(int count, std::function<Row(int)> make)
{
    anew([&] { m_rows->replace(count, std::move(make)); });
}

void ListView::refreshRows(std::vector<Row> rows)
{
    refresh([&] { setRows(std::move(rows)); });
}

void ListView::refreshRows(int count, std::function<Row(int)> make)
{
    refresh([&] { setRows(count, std::move(make)); });
}

/// Rows of the same tag stand together: the second of them stays the second.
void ListView::refresh(const std::function<void()>& change)
{
    const int position = selectedRow();
    const QString selected = tag(position);
    int before = 0;
    while (!selected.isEmpty() && position > before && tag(position - before - 1) == selected)
        ++before;
    change();
    if (position >= 0)
        selectRow(rowLike(selected, before, std::min(position, rowCount() - 1)));
}

/// The row of the tag that is nearest to `position`, of several together the one with so many before it; else
/// the row there.
int ListView::rowLike(const QString& wanted, int before, int position) const
{
    const auto isIt = [&](int row) { return m_rows->has(row) && tag(row) == wanted; };
    for (int distance = 0; !wanted.isEmpty() && distance < rowCount(); ++distance) {
        for (int row : {position - distance, position + distance}) {
            if (!isIt(row))
                continue;
            while (isIt(row - 1))
                --row;
            while (before-- > 0 && isIt(row + 1))
                ++row;
            return row;
        }
    }
    return position;
}

void ListView::showMenu(QMenu& menu, const QPoint& place)
{
    menu.popup(place);
    menu.setActiveAction(menu.actions().value(0));
}

/// Changes the rows as a whole; the selection goes with them.
void ListView::anew(const std::function<void()>& change)
{
    const bool hadSelection = selectedRow() >= 0;
    change();
    if (hadSelection)
        Q_EMIT selectionMoved();
}

void ListView::setRow(int row, const QStringList& cells)
{
    if (Row* found = m_rows->rowToChange(row)) {
        found->cells = cells;
        m_rows->changed(row);
    }
}

void ListView::setCell(int row, int column, const QString& text)
{
    Row* found = m_rows->rowToChange(row);
    if (!found || column < 0 || column >= m_rows->columnCount())
        return;
    while (found->cells.size() <= column)
        found->cells.append(QString());
    found->cells[column] = text;
    m_rows->changed(row);
}

ListView::Row ListView::row(int row) const
{
    const Row* found = m_rows->row(row);
    if (!found)
        return {};
    Row shown = *found;
    for (QString& cell : shown.cells)
        cell = Model::oneLine(cell);
    shown.cells.resize(m_rows->columnCount());
    return shown;
}

QString ListView::cell(int row, int column) const
{
    const Row* found = m_rows->row(row);
    return found ? found->cells.value(column) : QString();
}

QString ListView::tag(int row) const
{
    const Row* found = m_rows->row(row);
    return found ? found->tag : QString();
}

void ListView::setTag(int row, const QString& tag)
{
    if (Row* found = m_rows->rowToChange(row))
        found->tag = tag;
}

ListView::Look ListView::look(int row, int column) const
{
    const Row* found = m_rows->row(row);
    return found ? found->looks.value(column) : Look();
}

void ListView::setLook(int row, int column, const Look& look)
{
    if (Row* found = m_rows->rowToChange(row)) {
        found->looks[column] = look;
        m_rows->changed(row);
    }
}

void ListView::removeRow(int row)
{
    if (m_rows->has(row))
        m_rows->remove(row);
}

void ListView::Clear() { setRows({}); }

int ListView::rowCount() const { return m_rows->rowCount(); }

int ListView::selectedRow() const
{
    const QModelIndex current = currentIndex();
    if (selectionModel()->isSelected(current))
        return current.row();
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

int ListView::topRow() const { return indexAt({0, 0}).row(); }

void ListView::setTopRow(int row)
{
    if (m_rows->has(row))
        scrollTo(m_rows->index(row, 0), PositionAtTop);
}

void ListView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        askMenuAtSelection();
    else
        Q_EMIT menuAsked(indexAt(viewport()->mapFromGlobal(event->globalPos())).row(), event->globalPos());
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    const bool menuKey = event->key() == Qt::Key_Menu ||
                         (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    static constexpr Qt::Key walking[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp};
    if (menuKey)
        askMenuAtSelection();
    else if (selectedRow() < 0 && event->key() == Qt::Key_End)
        selectRow(rowCount() - 1);
    else if (selectedRow() < 0 &&
             std::find(std::begin(walking), std::end(walking), event->key()) != std::end(walking))
        selectRow(0);
    else
        QTreeView::keyPressEvent(event);
}

/// Focus alone selects no row, and makes none look so.
void ListView::focusInEvent(QFocusEvent* event)
{
    QTreeView::focusInEvent(event);
    if (selectedRow() < 0)
        selectionModel()->clearCurrentIndex();
}

void ListView::askMenuAtSelection()
{
    const int row = selectedRow();
    scrollTo(m_rows->index(row, 0));
    const QRect place = row < 0 ? QRect() : visualRect(m_rows->index(row, 0));
    Q_EMIT menuAsked(row, viewport()->mapToGlobal(place.bottomLeft()));
}

bool ListView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString tip = index.isValid() ? tipFor(index) : QString();
    if (tip.isEmpty())
        QToolTip::hideText();
    else // what an operator has typed is never markup
        QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(tip), viewport(), visualRect(index));
    return true;
}

/// The cell's text if that is cut off, and the cell's own tool tip.
QString ListView::tipFor(const QModelIndex& index) const
{
    const QString tip = look(index.row(), index.column()).toolTip;
    const QString text = cell(index.row(), index.column());
    const int room = visualRect(index).width() - paddingOfCell;
    if (fontMetrics().horizontalAdvance(text) <= room)
        return tip;
    return text.left(longestTip) + (tip.isEmpty() ? QString() : u'\n' + tip);
}

void ListView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    layOutColumns();
}

/// A row reaches to the edge of the view, also where its columns do not.
void ListView::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    QStyleOptionViewItem tail = option;
    tail.rect.setLeft(header()->length() - header()->offset());
    if (tail.rect.isEmpty())
        return;
    if (m_rows->row(index.row())->apart)
        painter->fillRect(tail.rect, QColor(palette::shade));
    tail.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    tail.state.setFlag(QStyle::State_HasFocus, false);
    const QPoint pointer = viewport()->mapFromGlobal(QCursor::pos());
    tail.state.setFlag(QStyle::State_MouseOver,
                       viewport()->underMouse() && indexAt(pointer).row() == index.row());
    style()->drawControl(QStyle::CE_ItemViewItem, &tail, painter, this);
}

void ListView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_rows->isEmpty())
        paintEmptyText(*this);
}

void ListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (header()->length() < viewport()->width())
        viewport()->update(); // a row reaches further than its cells
    Q_EMIT selectionMoved();
}

/// Columns take their shares, none less than its least; what that costs, those give that can.
void ListView::layOutColumns()
{
    const std::vector<Column>& columns = m_rows->columns();
    const int width = viewport()->width();
    const auto least = [](const Column& column) { return int(column.least * textScale); };
    const auto share = [&](const Column& column) {
        return std::max(int(width * column.percent / 100), least(column));
    };
    int over = -width;
    int spare = 0;
    for (const Column& column : columns) {
        over += share(column);
        spare += share(column) - least(column);
    }
    const double given = spare > 0 ? std::clamp(double(over) / spare, 0.0, 1.0) : 0;
    for (size_t i = 0; i < columns.size(); ++i) {
        const Column& column = columns[i];
        const bool takesRest = column.percent == rest && over < 0;
        const int shrunk = share(column) - int(std::ceil((share(column) - least(column)) * given));
        header()->resizeSection(int(i), takesRest ? share(column) - over : shrunk);
    }
}

} // namespace forms
