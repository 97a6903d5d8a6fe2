#include "platform/forms/Calendar.h"

#include "platform/forms/Palette.h"
#include "platform/forms/PopupPress.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QScreen>
#include <QTextCharFormat>
#include <QVBoxLayout>

namespace forms {

Calendar::Calendar(QWidget* field)
    : QFrame(field, Qt::Popup)
    , m_month(new QCalendarWidget(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->addWidget(m_month);
    m_month->setLocale(QLocale::c());
    m_month->setFirstDayOfWeek(Qt::Monday);
    m_month->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_month->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    m_month->setDateEditEnabled(false);
    connect(m_month, &QCalendarWidget::activated, this, &Calendar::take);
    connect(m_month, &QCalendarWidget::clicked, this, &Calendar::take);
    for (QWidget* each : m_month->findChildren<QWidget*>())
        each->installEventFilter(this);
    setFocusProxy(m_month);
}

void Calendar::open(const QDate& date)
{
    QTextCharFormat day;
    day.setForeground(QColor(palette::ink));
    for (const Qt::DayOfWeek weekend : {Qt::Saturday, Qt::Sunday})
        m_month->setWeekdayTextFormat(weekend, day);
    m_month->setSelectedDate(date);
    m_month->showSelectedDate();
    adjustSize();
    const QWidget* field = parentWidget();
    const QRect display = field->screen()->availableGeometry();
    QRect place(field->mapToGlobal(QPoint(0, field->height() + 2)), size());
    if (place.bottom() > display.bottom())
        place.moveBottom(field->mapToGlobal(QPoint(0, -3)).y());
    place.moveLeft(
        qBound(display.left(), place.left(), qMax(display.left(), display.right() - place.width())));
    place.moveTop(qMax(display.top(), place.top()));
    move(place.topLeft());
    show();
    m_month->setFocus();
}

bool Calendar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        const bool alt = key.modifiers().testFlag(Qt::AltModifier);
        if (key.key() == Qt::Key_Escape || key.key() == Qt::Key_F4 || (alt && key.key() == Qt::Key_Up)) {
            hide();
            return true;
        }
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            take(m_month->selectedDate());
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void Calendar::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    Q_EMIT closed();
}

void Calendar::mousePressEvent(QMouseEvent* event)
{
    if (geometry().contains(event->globalPosition().toPoint()))
        return QFrame::mousePressEvent(event);
    passOnPress(*this, *event);
}

void Calendar::take(const QDate& date)
{
    if (!isVisible())
        return;
    Q_EMIT chosen(date);
    hide();
}

} // namespace forms
