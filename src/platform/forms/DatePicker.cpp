#include "platform/forms/DatePicker.h"

#include "platform/forms/Calendar.h"
#include "platform/values/Dates.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
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

values::DatePart DatePicker::Part::meaning() const
{
    const QChar letter = run.front().toLower();
    return letter == u'd'   ? values::DatePart::Day
           : letter == u'm' ? values::DatePart::Month
                            : values::DatePart::Year;
}

QString DatePicker::Part::text(const QDate& date) const { return values::Format(date, run); }

/// The parts of the text, as the pattern's runs of letters lay them out; none when it hasn't that form.
QList<DatePicker::Part> DatePicker::parts() const
{
    QStringList runs;
    QString form = u"^"_s;
    for (qsizetype i = 0; i < m_pattern.size();) {
        qsizetype end = i + 1;
        while (end < m_pattern.size() && m_pattern[end] == m_pattern[i])
            ++end;
        const QString run = m_pattern.mid(i, end - i);
        if (run.front().isLetter())
            runs += run;
        form += run.front().isLetter() ? u"([0-9A-Za-z]*)"_s : QRegularExpression::escape(run);
        i = end;
    }
    const auto match = QRegularExpression(form + u'$').match(text());
    QList<Part> found;
    for (int i = 0; match.hasMatch() && i < int(runs.size()); ++i)
        found += Part{runs[i], match.capturedStart(i + 1), match.capturedLength(i + 1)};
    return found;
}

/// The part that is selected or has the caret, the first one when all is selected; -1 when there are none.
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
    if (all.isEmpty())
        return;
    const Part& chosen = all[qBound(0, part, int(all.size()) - 1)];
    setSelection(int(chosen.start), int(chosen.length));
}

/// Writes the part that was typed over as the pattern has it: "5" as "05", "12" as "Dec", "27" as "2027".
/// What cannot be that part goes, with a beep.
void DatePicker::leaveTypedPart()
{
    const int at = std::exchange(m_typedPart, -1);
    const QList<Part> all = parts();
    if (at < 0 || at >= int(all.size()))
        return;
    const Part& part = all[at];
    const QString typed = text().mid(part.start, part.length);
    QDate holder;
    switch (part.meaning()) {
    case values::DatePart::Day:
        holder = QDate(2000, 1, typed.size() <= 2 ? typed.toInt() : 0);
        break;
    case values::DatePart::Month:
        holder = QDate(2000, values::readTypedMonth(typed), 1);
        break;
    case values::DatePart::Year:
        holder = QDate(values::readTypedYear(typed, reference(), m_looks), 1, 1);
        break;
    }
    if (!holder.isValid()) {
        QApplication::beep();
        holder = m_value;
    }
    setText(text().left(part.start) + part.text(holder) + text().mid(part.start + part.length));
}

/// Chooses the part beside the one at the caret.
void DatePicker::movePart(int step)
{
    const int part = partAtCaret() + step;
    leaveTypedPart();
    selectPart(part);
}

values::DatePart DatePicker::partToStep() const
{
    const QList<Part> all = parts();
    if (isInParts() && !all.isEmpty())
        return all[partAtCaret()].meaning();
    return values::typedPartAt(text(), cursorPosition(), reference(), m_looks);
}

/// Moves the part at the caret, typed or not; a month without that day gives its last. An empty box begins at
/// the day from which it looks.
void DatePicker::step(int steps)
{
    const values::DatePart part = partToStep();
    if (isTyping() && !read().isValid()) {
        settle();
        return selectAll();
    }
    settle();
    const QDate moved = !m_value.isValid()                ? reference()
                        : part == values::DatePart::Day   ? m_value.addDays(steps)
                        : part == values::DatePart::Month ? m_value.addMonths(steps)
                                                          : m_value.addYears(steps);
    setValue(moved);
    const QList<Part> all = parts();
    for (int i = 0; i < int(all.size()); ++i)
        if (all[i].meaning() == part)
            selectPart(i);
}

/// A whole date typed with one part selected replaces all of the old one: as soon as the keys run over what
/// the part can hold, or part the date themselves, what stood around them goes.
void DatePicker::typeOverPart(const QKeyEvent& event)
{
    const QString key = event.text();
    const QList<Part> all = parts();
    const int at = partAtCaret();
    const bool overPart = isInParts() && at >= 0 && hasSelectedText() && selectionStart() == all[at].start &&
                          selectionLength() == all[at].length && selectionLength() < text().size();
    if (overPart) {
        m_inParts = true;
        m_typedPart = at;
        m_before = text().left(all[at].start);
        m_behind = text().mid(all[at].start + all[at].length);
    }
    if (overPart || m_typedPart < 0 || key.size() != 1 || !key.front().isPrint())
        return;
    const bool aroundStands = text().startsWith(m_before) && text().endsWith(m_behind) &&
                              text().size() >= m_before.size() + m_behind.size();
    if (!aroundStands || at < 0 || hasSelectedText() || cursorPosition() != text().size() - m_behind.size()) {
        m_typedPart = -1;
        m_inParts = false;
        return;
    }
    const QString typed = text().mid(m_before.size(), text().size() - m_before.size() - m_behind.size());
    const values::DatePart meaning = all[at].meaning();
    const bool isDigit = key.front().isDigit();
    const bool isMonthsName =
        meaning == values::DatePart::Month && (typed.isEmpty() ? key : typed).front().isLetter();
    const bool fits = isMonthsName ? key.front().isLetter()
                                   : isDigit && typed.size() < (meaning == values::DatePart::Year ? 4 : 2);
    if (fits)
        return;
    m_typedPart = -1;
    m_inParts = false;
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
    const QIcon chevron(hasFocus() ? u":/icons/chevron-down-light.svg"_s : u":/icons/chevron-down.svg"_s);
    QPainter painter(this);
    QRect place(0, 0, chevronSize, chevronSize);
    place.moveCenter(arrow().center());
    chevron.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace forms
