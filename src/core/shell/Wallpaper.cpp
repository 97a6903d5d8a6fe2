#include "core/shell/Wallpaper.h"

#include "platform/forms/Palette.h"
#include "platform/forms/Pictures.h"

#include <QEvent>
#include <QImageReader>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

Wallpaper::Wallpaper(QWidget* desktop)
    : QWidget(desktop)
{
    setObjectName(u"MyWall"_s);
    desktop->installEventFilter(this);
    resize(desktop->size());
}

void Wallpaper::loadPicture(const QString& path)
{
    if (!forms::isPicture(path))
        return;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    // Of a picture larger than the display only the middle is taken in: a square, as it may yet be turned.
    const QSize display = screen()->virtualSize();
    const int side = qMax(display.width(), display.height());
    const QRect whole({}, reader.size());
    QRect middle(0, 0, side, side);
    middle.moveCenter(whole.center());
    reader.setClipRect(middle & whole);
    const QImage picture = reader.read();
    if (picture.isNull())
        return;
    m_picture = QPixmap::fromImage(picture);
    update();
}

bool Wallpaper::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    return QWidget::eventFilter(watched, event);
}

void Wallpaper::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!m_picture.isNull()) {
        painter.drawPixmap((width() - m_picture.width()) / 2, (height() - m_picture.height()) / 2, m_picture);
        return;
    }
    const QSize drawn = m_builtIn.deviceIndependentSize().toSize();
    if (drawn.width() < width() || drawn.height() < height())
        drawBuiltIn(drawn.expandedTo(size()));
    const QSizeF all = m_builtIn.deviceIndependentSize();
    painter.drawPixmap(QPointF((width() - all.width()) / 2, (height() - all.height()) / 2), m_builtIn);
    painter.fillRect(rect(), QColor::fromRgba(palette::wallVeil));
}

void Wallpaper::drawBuiltIn(const QSize& size)
{
    const qreal ratio = devicePixelRatioF();
    m_builtIn = QPixmap(size * ratio);
    m_builtIn.setDevicePixelRatio(ratio);
    m_builtIn.fill(QColor(palette::window.light));
    QSvgRenderer drawing(u":/wallpaper.svg"_s);
    const QSizeF covering = QSizeF(drawing.defaultSize()).scaled(size, Qt::KeepAspectRatioByExpanding);
    QRectF target(QPointF(), covering);
    target.moveCenter(QRectF(QPointF(), size).center());
    QPainter painter(&m_builtIn);
    drawing.render(&painter, target);
}
