#include "media/Canvas.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTabletEvent>

namespace {

constexpr QSize sheetSize(720, 420);
constexpr int penWidth = 2;
constexpr int eraserWidth = 6;
/// What the sheets kept for taking back may hold together, in bytes.
constexpr qsizetype mostKept = 64 * 1024 * 1024;

QPen penOf(Canvas::Tool tool)
{
    const bool pen = tool == Canvas::Tool::Pen;
    return QPen(pen ? Qt::black : Qt::white, pen ? penWidth : eraserWidth, Qt::SolidLine, Qt::RoundCap,
                Qt::RoundJoin);
}

/// A ring as wide as the eraser.
QCursor eraserCursor()
{
    constexpr int side = eraserWidth + 5;
    QPixmap ring(side, side);
    ring.fill(Qt::transparent);
    QPainter painter(&ring);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(ring.rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    return QCursor(ring);
}

} // namespace

Canvas::Canvas(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    load({});
    setTool(Tool::Pen);
}

Canvas::~Canvas() = default;

void Canvas::load(const QImage& picture)
{
    m_sheet = QImage(sheetSize.expandedTo(picture.size()), QImage::Format_RGB32);
    m_sheet.fill(Qt::white);
    QPainter(&m_sheet).drawImage(0, 0, picture);
    m_before.clear();
    setFixedSize(m_sheet.size());
    update();
}

void Canvas::setTool(Tool tool)
{
    m_tool = tool;
    setCursor(tool == Tool::Pen ? QCursor(Qt::CrossCursor) : eraserCursor());
}

void Canvas::clear()
{
    keep();
    m_sheet.fill(Qt::white);
    update();
}

bool Canvas::undo()
{
    if (m_drawing || m_before.empty())
        return false;
    m_sheet = std::move(m_before.back());
    m_before.pop_back();
    update();
    return true;
}

void Canvas::keep()
{
    while (!m_before.empty() && qsizetype(m_before.size() + 1) * m_sheet.sizeInBytes() > mostKept)
        m_before.erase(m_before.begin());
    m_before.push_back(m_sheet);
}

/// A press alone leaves a dot.
void Canvas::begin(const QPointF& at, Tool tool)
{
    keep();
    m_drawing = true;
    m_inHand = tool;
    m_last = m_drawn = at;
    QPainterPath dot(at);
    dot.lineTo(at + QPointF(0.01, 0));
    draw(dot);
}

/// Fast strokes come as points far apart: the stroke runs in a curve from the middle of one step to the
/// middle of the next, so that it has no corners.
void Canvas::drawTo(const QPointF& at)
{
    const QPointF middle = (m_last + at) / 2;
    QPainterPath curve(m_drawn);
    curve.quadTo(m_last, middle);
    m_last = at;
    m_drawn = middle;
    draw(curve);
}

void Canvas::end(const QPointF& at)
{
    QPainterPath rest(m_drawn);
    rest.quadTo(m_last, at);
    m_drawing = false;
    m_last = m_drawn = at;
    draw(rest);
}

void Canvas::draw(const QPainterPath& path)
{
    QPainter painter(&m_sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(penOf(m_inHand));
    painter.drawPath(path);
    update();
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !m_drawing)
        begin(event->position(), m_tool);
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drawing && event->buttons() & Qt::LeftButton)
        drawTo(event->position());
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_drawing && event->button() == Qt::LeftButton)
        end(event->position());
}

/// The other end of a tablet's pen rubs out.
void Canvas::tabletEvent(QTabletEvent* event)
{
    const Tool tool = event->pointerType() == QPointingDevice::PointerType::Eraser ? Tool::Eraser : m_tool;
    if (event->type() == QEvent::TabletPress && event->button() == Qt::LeftButton && !m_drawing)
        begin(event->position(), tool);
    else if (event->type() == QEvent::TabletMove && m_drawing)
        drawTo(event->position());
    else if (event->type() == QEvent::TabletRelease && m_drawing)
        end(event->position());
    event->accept();
}

/// The end of the stroke that the image does not have yet is drawn to the pointer, so that the pen never
/// lags.
void Canvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(0, 0, m_sheet);
    if (!m_drawing)
        return;
    painter.setPen(penOf(m_inHand));
    painter.drawLine(m_drawn, m_last);
}

/// While the sheet is seen, every step of the pointer counts.
void Canvas::showEvent(QShowEvent*)
{
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
}

void Canvas::hideEvent(QHideEvent*)
{
    m_drawing = false;
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, true);
}
