#include "platform/forms/DatePicker.h"

#include "platform/forms/Calendar.h"
#include "platform/values/Dates.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int arrowWidth = 30;
constexpr int chevronSize = 14;

} // namespace

DatePicker::DatePicker(QWidget* parent)
    : QLineEdit(parent)
    , m_pattern(u"dd-MMM-yyyy"_s)
    , m_value(2000, 1, 1)
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
    const QDate typed = isTyping() ? values::readTypedDate(text(), m_value, m_latest) : QDate();
    return typed.isValid() ? typed : m_value;
}

void DatePicker::setValue(const QDate& value)
{
    const bool differs = value.isValid() && value != m_value;
    if (differs)
        m_value = value;
    revert();
    if (differs)
        Q_EMIT changed();
}

void DatePicker::settle()
{
    if (!isTyping())
        return;
    const QDate typed = values::readTypedDate(text(), m_value, m_latest);
    if (!typed.isValid())
        QApplication::beep();
    setValue(typed);
}

void DatePicker::revert()
{
    m_typedPart = -1;
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
    m_calendar->open(m_value);
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

/// The parts of the shown date, as the pattern's runs of letters lay them out.
QList<DatePicker::Part> DatePicker::parts() const
{
    QList<Part> found;
    int start = 0;
    for (qsizetype i = 0; i < m_pattern.size();) {
        qsizetype end = i + 1;
        while (end < m_pattern.size() && m_pattern[end] == m_pattern[i])
            ++end;
        const QString run = m_pattern.mid(i, end - i);
        const int length = int(values::Format(m_value, run).size());
        if (run.front().isLetter())
            found += Part{run.front().toLower(), start, length};
        start += length;
        i = end;
    }
    return found;
}

/// The part that is selected or has the caret; the first one when all is selected.
int DatePicker::partAtCaret() const
{
    const int caret = hasSelectedText() ? selectionStart() : cursorPosition();
    const QList<Part> all = parts();
    for (int i = 0; i < int(all.size()); ++i)
        if (caret <= all[i].start + all[i].length)
            return i;
    return int(all.size()) - 1;
}

void DatePicker::selectPart(int part)
{
    const QList<Part> all = parts();
    const Part& chosen = all[qBound(0, part, int(all.size()) - 1)];
    setSelection(chosen.start, chosen.length);
}

/// Moves the part at the caret; a month without that day gives its last.
void DatePicker::step(int steps)
{
    settle();
    const int part = partAtCaret();
    const QChar letter = parts()[part].letter;
    const QDate moved = letter == u'd'   ? m_value.addDays(steps)
                        : letter == u'm' ? m_value.addMonths(steps)
                                         : m_value.addYears(steps);
    setValue(moved);
    selectPart(part);
}

/// A whole date typed with one part selected replaces all of the old one: as soon as the keys run over what
/// the part can hold, or part the date themselves, what stood around them goes.
void DatePicker::typeOverPart(const QKeyEvent& event)
{
    const QString key = event.text();
    const QList<Part> all = parts();
    const int at = partAtCaret();
    const bool overPart = hasSelectedText() && selectionStart() == all[at].start &&
                          selectionLength() == all[at].length && selectionLength() < text().size();
    if (overPart)
        m_typedPart = at;
    if (overPart || m_typedPart < 0 || key.size() != 1 || !key.front().isPrint())
        return;
    const Part& part = all[m_typedPart];
    const QString old = shown();
    const qsizetype behind = old.size() - part.start - part.length;
    const bool aroundStands =
        text().left(part.start) == old.left(part.start) && text().right(behind) == old.right(behind);
    if (!aroundStands || hasSelectedText() || cursorPosition() != text().size() - behind) {
        m_typedPart = -1;
        return;
    }
    const QString typed = text().mid(part.start, text().size() - part.start - behind);
    const bool isDigit = key.front().isDigit();
    const bool isMonthsName = part.letter == u'm' && (typed.isEmpty() ? key : typed).front().isLetter();
    const bool fits =
        isMonthsName ? key.front().isLetter() : isDigit && typed.size() < (part.letter == u'y' ? 4 : 2);
    if (fits)
        return;
    m_typedPart = -1;
    setText(typed);
}

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
        if (!plain || isTyping())
            break;
        return selectPart(partAtCaret() + (event->key() == Qt::Key_Left ? -1 : 1));
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
    if (std::exchange(m_choosePart, false) && !hasSelectedText() && !isTyping())
        selectPart(partAtCaret());
}

void DatePicker::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    const QIcon chevron(hasFocus() ? u":/icons/chevron-down-light.svg"_s : u":/icons/chevron-down.svg"_s);
    QPainter painter(this);
    QRect place(0, 0, chevronSize, chevronSize);
    place.moveCenter(arrow().center());
    chevron.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace forms
