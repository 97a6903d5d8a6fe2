#include "platform/forms/DatePicker.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace forms {

DatePicker::DatePicker(QWidget* parent)
    : QDateEdit(parent)
{
    setLocale(QLocale::c());
    setCalendarPopup(true);
    setCustomFormat(u"dd-MMM-yyyy"_s);
    connect(this, &QDateEdit::dateChanged, this, &DatePicker::changed);
}

void DatePicker::setCustomFormat(const QString& pattern) { setDisplayFormat(pattern); }

bool DatePicker::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_popup && event->type() == QEvent::Hide)
        Q_EMIT calendarClosed();
    return QDateEdit::eventFilter(watched, event);
}

/// The calendar is made at the first press of the mouse, which may open it: most pickers never do.
void DatePicker::mousePressEvent(QMouseEvent* event)
{
    if (!m_popup) {
        calendarWidget()->setLocale(QLocale::c());
        calendarWidget()->setFirstDayOfWeek(Qt::Monday);
        calendarWidget()->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
        m_popup = calendarWidget()->parentWidget();
        m_popup->installEventFilter(this);
    }
    QDateEdit::mousePressEvent(event);
}

void DatePicker::keyPressEvent(QKeyEvent* event)
{
    if (typeMonth(*event))
        return;
    m_monthTyped = 0;
    QDateEdit::keyPressEvent(event);
}

/// The wheel of a mouse that passes over must not change a date.
void DatePicker::wheelEvent(QWheelEvent* event) { event->ignore(); }

/// Digits in the month: 1 waits for a second digit, anything that is whole moves on to the next part of the
/// date.
bool DatePicker::typeMonth(const QKeyEvent& event)
{
    const int digit = event.key() - Qt::Key_0;
    if (currentSection() != MonthSection || digit < 0 || digit > 9 || !date().isValid() ||
        !displayFormat().contains("MMM"_L1))
        return false;
    int month = m_monthTyped * 10 + digit;
    if (month > 12)
        month = digit;
    if (month == 0)
        return true;
    const QDate first(date().year(), month, 1);
    setDate({first.year(), month, qMin(date().day(), first.daysInMonth())});
    m_monthTyped = month == 1 ? 1 : 0;
    const bool whole = month != 1;
    if (whole && currentSectionIndex() + 1 < sectionCount())
        setCurrentSectionIndex(currentSectionIndex() + 1);
    setSelectedSection(currentSection());
    return true;
}

} // namespace forms
