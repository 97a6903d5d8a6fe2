#include "jobcards/ColorBox.h"

#include <QKeyEvent>
#include <QPainter>

ColorBox::ColorBox(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorBox::setNumber(qint32 number)
{
    m_number = number;
    update();
}

QSize ColorBox::sizeHint() const
{
    const int side = fontMetrics().height() * 2;
    return {side * 3 / 2, side};
}

void ColorBox::paintEvent(QPaintEvent*)
{
    const int frame = hasFocus() ? 3 : 1;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), frame));
    painter.setBrush(color());
    const double inset = frame / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 6, 6);
}

void ColorBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
