#include "platform/forms/ListBox.h"

#include "platform/forms/EmptyText.h"
#include "platform/values/Titles.h"

#include <QKeyEvent>
#include <QStringListModel>

namespace forms {

int findPrefix(const QStringList& texts, const QString& prefix, int startAfter)
{
    if (prefix.isEmpty()) // begins every entry, and means none
        return -1;
    const QString wanted = values::plainApostrophes(prefix);
    const int count = int(texts.size());
    const int start = startAfter >= 0 && startAfter < count ? startAfter : -1;
    for (int step = 1; step <= count; ++step) {
        const int index = (start + step) % count;
        if (values::plainApostrophes(texts.at(index)).startsWith(wanted, Qt::CaseInsensitive))
            return index;
    }
    return -1;
}

/// The texts, each with its picture where the list shows any.
class ListBox::Texts : public QStringListModel
{
public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DecorationRole && pictureOf && index.isValid())
            return pictureOf(stringList().at(index.row()));
        return QStringListModel::data(index, role);
    }

    std::function<QPixmap(const QString& text)> pictureOf{};
};

ListBox::ListBox(QWidget* parent)
    : QListView(parent)
    , m_texts(new Texts(this))
{
    setModel(m_texts);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    connect(this, &QAbstractItemView::doubleClicked, this, &ListBox::dblClicked);
    connect(this, &QAbstractItemView::clicked, this, &ListBox::clickedEntry);
}

void ListBox::Clear()
{
    const bool hadSelection = ListIndex() >= 0;
    m_texts->setStringList({});
    if (hadSelection)
        Q_EMIT indexChanged();
}

void ListBox::AddItems(const QStringList& texts)
{
    const int first = ListCount();
    if (texts.isEmpty())
        return;
    if (first == 0) {
        m_texts->setStringList(texts);
        return;
    }
    m_texts->insertRows(first, int(texts.size()));
    for (int i = 0; i < texts.size(); ++i)
        m_texts->setData(m_texts->index(first + i), texts.at(i));
}

void ListBox::AddItem(const QString& text) { AddItems({text}); }

int ListBox::ListCount() const { return m_texts->rowCount(); }

int ListBox::ListIndex() const
{
    // The current entry may be unselected: the view makes one current by itself when it gets the focus.
    const QModelIndexList selected = selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void ListBox::setListIndex(int index)
{
    if (index >= 0 && index < ListCount())
        setCurrentIndex(m_texts->index(index));
    else
        selectionModel()->clear();
}

QString ListBox::List(int index) const
{
    return m_texts->data(m_texts->index(index), Qt::DisplayRole).toString();
}

QString ListBox::Text() const { return List(ListIndex()); }

void ListBox::setPictures(const QSize& size, std::function<QPixmap(const QString& text)> of)
{
    setIconSize(size);
    m_texts->pictureOf = std::move(of);
    scheduleDelayedItemsLayout();
}

int ListBox::findString(const QString& prefix, int startAfter) const
{
    return findPrefix(m_texts->stringList(), prefix, startAfter);
}

/// With no entry selected, Down and Home begin at the first one, though the view may hold it for the current
/// one already.
void ListBox::keyPressEvent(QKeyEvent* event)
{
    const bool begins = event->key() == Qt::Key_Down || event->key() == Qt::Key_Home;
    if (begins && ListIndex() < 0)
        setListIndex(0);
    else
        QListView::keyPressEvent(event);
}

void ListBox::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (ListCount() == 0)
        paintEmptyText(*this);
}

void ListBox::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    Q_EMIT indexChanged();
}

} // namespace forms
