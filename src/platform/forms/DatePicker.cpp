#include "platform/forms/DatePicker.h"

#include "platform/forms/Calendar.h"
#include "platform/forms/Theme.h"
#include "platform/values/Dates.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int arrowWidth = 30;
constexpr int chevronSize = 14;
const QDate withoutAny(2000, 1, 1); ///< where no day is known

} // namespace

DatePicker::DatePicker(QWidget* parent)
    : QLineEdit(parent)
    , m_pattern(u"dd-MMM-yyyy"_s)
    , m_value(withoutAny)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setTextMargins(0, 0, arrowWidth - 8, 0);
    setMouseTracking(true);
    revert();
}

void DatePicker::setCustomFormat(const QString& pattern)
{
    const bool typing = isTyping();
    m_pattern = pattern;
    if (!typing)
        revert();
}

QDate DatePicker::value() const
{
    if (!isTyping())
        return m_value;
    const QDate typed = read();
    return typed.isValid() || isEmptied() ? typed : m_value;
}

void DatePicker::setValue(const QDate& value)
{
    const bool differs = value != m_value && (value.isValid() || m_mayBeEmpty);
    if (differs)
        m_value = value;
    revert();
    if (!differs)
        return;
    showWhetherEarly();
    Q_EMIT changed();
}

void DatePicker::look(values::Looks looks, const QDate& from)
{
    lookFrom(looks, [from] { return from; });
}

void DatePicker::look(values::Looks looks, const DatePicker* from)
{
    lookFrom(looks, [from] { return from->value(); });
    connect(from, &DatePicker::changed, this, &DatePicker::showWhetherEarly);
}

void DatePicker::lookFrom(values::Looks looks, std::function<QDate()> from)
{
    m_looks = looks;
    m_from = std::move(from);
    showWhetherEarly();
}

bool DatePicker::isEarly() const { return m_looks == values::Looks::Ahead && value() < reference(); }

void DatePicker::showWhetherEarly()
{
    const bool early = isEarly();
    if (property("early").toBool() == early)
        return;
    setProperty("early", early);
    style()->unpolish(this);
    style()->polish(this);
}

/// The day from which the box looks.
QDate DatePicker::reference() const
{
    const QDate from = m_from ? m_from() : m_value;
    return from.isValid() ? from : withoutAny;
}

QDate DatePicker::read() const { return values::readTypedDate(text(), reference(), m_looks); }

void DatePicker::settle()
{
    if (!isTyping())
        return;
    const QDate typed = read();
    if (typed.isValid() || isEmptied())
        return setValue(typed);
    QApplication::beep();
    revert();
}

void DatePicker::revert()
{
    m_typedPart = -1;
    m_inParts = false;
    if (isTyping())
        setText(shown());
}

void DatePicker::openCalendar()
{
    settle();
    if (!m_calendar) { // made at its first use: most pickers never open it
        m_calendar = new Calendar(this);
        connect(m_calendar, &Calendar::chosen, this, &DatePicker::setValue);
        connect(m_calendar, &Calendar::closed, this, &DatePicker::calendarHidden);
    }
    m_calendar->open(m_value.isValid() ? m_value : reference());
}

void DatePicker::calendarHidden()
{
    setFocus(Qt::PopupFocusReason);
    selectAll();
    Q_EMIT calendarClosed();
}

QSize DatePicker::sizeHint() const
{
    const QSize line = QLineEdit::sizeHint();
    return {fontMetrics().horizontalAdvance(u"00-MMM-0000"_s) + arrowWidth + 22, line.height()};
}

QRect DatePicker::arrow() const { return rect().adjusted(width() - arrowWidth, 0, 0, 0); }

QString DatePicker::shown() const { return values::Format(m_value, m_pattern); }

void DatePicker::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (!m_focus.comes(*event))
        return;
    selectAll();
    m_choosePart = event->reason() == Qt::MouseFocusReason;
}

void DatePicker::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!m_focus.leaves(*event))
        return;
    if (isVisible())
        settle();
    else
        revert(); // the screen has ended
}

void DatePicker::keyPressEvent(QKeyEvent* event)
{
    const bool alt = event->modifiers().testFlag(Qt::AltModifier);
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    switch (event->key()) {
    case Qt::Key_F4:
        return openCalendar();
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (alt && event->key() == Qt::Key_Down)
            openCalendar();
        else if (plain)
            step(event->key() == Qt::Key_Up ? 1 : -1);
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (!plain || !isInParts() || parts().isEmpty())
            break;
        return movePart(event->key() == Qt::Key_Left ? -1 : 1);
    case Qt::Key_Return:
    case Qt::Key_Enter: // where no other field takes the focus the next date replaces this one
        settle();
        selectAll();
        break;
    case Qt::Key_Delete:
        if (m_mayBeEmpty && plain && !isTyping())
            return setValue({});
        typeOverPart(*event);
        break;
    default:
        typeOverPart(*event);
    }
    QLineEdit::keyPressEvent(event);
}

void DatePicker::mouseMoveEvent(QMouseEvent* event)
{
    setCursor(arrow().contains(event->position().toPoint()) ? Qt::ArrowCursor : Qt::IBeamCursor);
    QLineEdit::mouseMoveEvent(event);
}

void DatePicker::mousePressEvent(QMouseEvent* event)
{
    m_choosePart = false;
    if (event->button() == Qt::LeftButton && arrow().contains(event->position().toPoint()))
        return openCalendar();
    m_choosePart = event->button() == Qt::LeftButton;
    QLineEdit::mousePressEvent(event);
}

/// A click chooses the part that it hits, unless it was drawn over some of the text.
void DatePicker::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(m_choosePart, false) && !hasSelectedText() && isInParts())
        movePart(0);
}

void DatePicker::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    const QIcon chevron(
        u":/icons/chevron-down%1.svg"_s.arg(artOn(hasFocus() ? palette::focusGround : palette::card)));
    QPainter painter(this);
    QRect place(0, 0, chevronSize, chevronSize);
    place.moveCenter(arrow().center());
    chevron.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace forms
