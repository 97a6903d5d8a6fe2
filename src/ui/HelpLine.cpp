#include "ui/HelpLine.h"

#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;

HelpLine::HelpLine(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setProperty("hint", true);
}

void HelpLine::paintEvent(QPaintEvent*)
{
    const QString separator = u"  ·  "_s;
    const QRect room = contentsRect().adjusted(qMax(0, indent()), 0, 0, 0);
    QString shown = text();
    while (fontMetrics().horizontalAdvance(shown) > room.width() && !shown.isEmpty())
        shown.truncate(qMax<qsizetype>(0, shown.lastIndexOf(separator)));
    QPainter painter(this);
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          foregroundRole());
}
