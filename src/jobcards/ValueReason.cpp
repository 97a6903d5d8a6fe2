#include "jobcards/ValueReason.h"

#include "platform/forms/Palette.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace {

constexpr int Gap = 12; // pixels, to the value and to the end of the box
constexpr int Layout = Qt::AlignVCenter | Qt::AlignRight | Qt::TextWordWrap;

} // namespace

ValueReason::ValueReason(QLineEdit* box)
    : QWidget(box)
    , m_box(*box)
{
    hide();
    box->installEventFilter(this);
    connect(box, &QLineEdit::textEdited, this, [this] { setReason({}); });
}

void ValueReason::setReason(const QString& reason)
{
    m_reason = reason;
    m_box.setAccessibleDescription(reason);
    setVisible(!reason.isEmpty());
    place();
}

bool ValueReason::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}

/// Smaller than the value, so that two lines of it fit into the box.
QFont ValueReason::smallFont() const
{
    QFont small = m_box.font();
    small.setPixelSize(QFontInfo(small).pixelSize() * 4 / 5);
    return small;
}

void ValueReason::place()
{
    const int value = m_box.fontMetrics().horizontalAdvance(m_box.displayText());
    const QRect room(0, 0, qMax(0, m_box.width() - value - 3 * Gap), m_box.height());
    const QRect text = QFontMetrics(smallFont()).boundingRect(room, Layout, m_reason);
    setGeometry(m_box.width() - room.width() - Gap, 0, room.width(), room.height());
    m_fits = room.contains(text);
    setToolTip(m_fits ? QString() : m_reason);
    update();
}

void ValueReason::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(smallFont());
    painter.setPen(QColor(m_box.hasFocus() ? QRgb(palette::focusNotice) : QRgb(palette::notice)));
    painter.drawText(rect(), Layout,
                     m_fits ? m_reason : painter.fontMetrics().elidedText(m_reason, Qt::ElideRight, width()));
}
