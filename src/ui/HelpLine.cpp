#include "ui/HelpLine.h"

#include "platform/forms/Palette.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

using namespace Qt::StringLiterals;

HelpLine::HelpLine(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setProperty("hint", true);
}

void HelpLine::setNotice(const QString& notice)
{
    if (notice == m_notice)
        return;
    m_notice = notice;
    setAccessibleDescription(notice);
    update();
}

bool HelpLine::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

void HelpLine::paintEvent(QPaintEvent*)
{
    const QString separator = u"  ·  "_s;
    constexpr int gap = 20; // between the notice and the keys
    QRect room = contentsRect().adjusted(qMax(0, indent()), 0, 0, 0);
    QPainter painter(this);
    if (!m_notice.isEmpty()) {
        painter.save();
        QFont strong = font();
        strong.setBold(true);
        painter.setFont(strong);
        painter.setPen(QColor(palette::notice));
        const QFontMetrics metrics(strong);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(m_notice, Qt::ElideRight, room.width()));
        room.setLeft(room.left() + metrics.horizontalAdvance(m_notice) + gap);
        painter.restore();
    }
    QString shown = text();
    while (fontMetrics().horizontalAdvance(shown) > room.width() && !shown.isEmpty())
        shown.truncate(qMax<qsizetype>(0, shown.lastIndexOf(separator)));
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          foregroundRole());
}
