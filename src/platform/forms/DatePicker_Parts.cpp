// The parts of a date in its box: how they are chosen, stepped and typed over.
#include "platform/forms/DatePicker.h"
#include "platform/values/Dates.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <utility>

using namespace Qt::StringLiterals;

namespace forms {

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

} // namespace forms
