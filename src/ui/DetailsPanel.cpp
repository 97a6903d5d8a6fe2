#include "ui/DetailsPanel.h"

#include "platform/forms/ListView.h"

#include <QEvent>
#include <QHeaderView>
#include <QPushButton>

DetailsPanel::DetailsPanel(QWidget* panel, forms::ListView* list, QPushButton* opens, QPushButton* closes)
    : QObject(panel)
    , m_panel(panel)
    , m_list(list)
    , m_closes(closes)
{
    panel->hide();
    list->installEventFilter(this);
    connect(opens, &QPushButton::clicked, this, [this] { setOpen(true); });
    connect(closes, &QPushButton::clicked, this, [this] { setOpen(false); });
}

void DetailsPanel::setOpen(bool open)
{
    m_panel->setVisible(open);
    place();
    (open ? static_cast<QWidget*>(m_closes) : m_list)->setFocus();
}

bool DetailsPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        place();
    return QObject::eventFilter(watched, event);
}

void DetailsPanel::place()
{
    constexpr QSize largest(340, 420);
    constexpr int margin = 16; // the list's scroll bar stays free
    const QRect list = m_list->geometry();
    const int top = list.top() + m_list->header()->height() + margin / 2;
    const QSize size = largest.boundedTo(QSize(list.width() - 2 * margin, list.bottom() - margin - top));
    m_panel->setGeometry(QRect(QPoint(list.right() - margin - size.width(), top), size));
    m_panel->raise();
}
