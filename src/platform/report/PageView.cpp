#include "platform/report/PageView.h"

#include "platform/forms/Palette.h"
#include "platform/report/Pages.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace report {

namespace {

constexpr double screenDpi = 96;
constexpr int ground = 24; ///< around the paper, in pixels
constexpr double smallestZoom = 0.25;
constexpr double largestZoom = 5;
constexpr double zoomStep = 1.1;

} // namespace

PageView::PageView(const Pages& pages, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_pages(pages)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
}

void PageView::turnTo(int page)
{
    page = std::clamp(page, 0, m_pages.count() - 1);
    if (page == m_page)
        return;
    m_page = page;
    verticalScrollBar()->setValue(0);
    viewport()->update();
    Q_EMIT viewChanged();
}

void PageView::setZoom(double zoom)
{
    m_fit = Fit::Free;
    m_zoom = std::clamp(zoom, smallestZoom, largestZoom);
    arrange();
}

void PageView::setFit(Fit fit)
{
    m_fit = fit;
    arrange();
}

double PageView::pixelsPerTwip() const { return m_zoom * screenDpi / twipsPerInch; }

/// Gives the paper its size and the bars their range.
void PageView::arrange()
{
    const QSizeF natural = m_pages.size() * (screenDpi / twipsPerInch);
    const QSizeF room = (maximumViewportSize() - QSize(2 * ground, 2 * ground)).expandedTo({1, 1});
    if (m_fit != Fit::Free) {
        m_zoom = room.width() / natural.width();
        if (m_fit == Fit::Page)
            m_zoom = std::min(m_zoom, room.height() / natural.height());
        else if (m_zoom * natural.height() > room.height())
            m_zoom = (room.width() - verticalScrollBar()->sizeHint().width()) / natural.width();
        m_zoom = std::clamp(m_zoom, smallestZoom, largestZoom);
    }
    const QSize whole = (natural * m_zoom).toSize() + QSize(2 * ground, 2 * ground);
    const QSize shown = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, whole.width() - shown.width()));
    horizontalScrollBar()->setPageStep(shown.width());
    verticalScrollBar()->setRange(0, std::max(0, whole.height() - shown.height()));
    verticalScrollBar()->setPageStep(shown.height());
    viewport()->update();
    Q_EMIT viewChanged();
}

QRectF PageView::paper() const
{
    const QSizeF size = m_pages.size() * pixelsPerTwip();
    const QSizeF shown = viewport()->size();
    const double left = std::max(double(ground), (shown.width() - size.width()) / 2);
    const double top = std::max(double(ground), (shown.height() - size.height()) / 2);
    return {QPointF(left - horizontalScrollBar()->value(), top - verticalScrollBar()->value()), size};
}

void PageView::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), QColor(palette::desk));
    const QRectF sheet = paper();
    painter.fillRect(sheet.translated(3, 4), QColor::fromRgba(palette::shadow));
    painter.fillRect(sheet, QColor(palette::onPaper::sheet));
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    painter.scale(pixelsPerTwip(), pixelsPerTwip());
    m_pages.paint(painter, m_page);
}

void PageView::resizeEvent(QResizeEvent*) { arrange(); }

/// With Ctrl the wheel changes the size.
void PageView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0)
        setZoom(event->angleDelta().y() > 0 ? m_zoom * zoomStep : m_zoom / zoomStep);
    event->accept();
}

} // namespace report
