#include "ui/swTextBoxMultiLine.h"

#include "platform/forms/Keys.h"
#include "platform/values/Numbers.h"
#include "ui/NumKey.h"
#include "ui/boxes.h"

#include <QTextBlock>

using namespace Qt::StringLiterals;

swTextBoxMultiLine::swTextBoxMultiLine(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &swTextBoxMultiLine::Change);
}

QString swTextBoxMultiLine::Text() const { return toPlainText().replace(u'\n', "\r\n"_L1); }

void swTextBoxMultiLine::setText(const QString& text) { setPlainText(boxes::shown(text, m_boxType)); }

void swTextBoxMultiLine::setBoxType(int boxType)
{
    m_boxType = boxType;
    setText(toPlainText());
}

/// The caret goes behind the text and nothing is selected, so that the next key doesn't replace a long note.
void swTextBoxMultiLine::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    if (!m_focus.comes(*event))
        return;
    m_afterEnter = false;
    Q_EMIT GotFocus();
    moveCursor(QTextCursor::End);
}

void swTextBoxMultiLine::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (!m_focus.leaves(*event))
        return;
    if (m_boxType == boxes::Money)
        setPlainText(values::formatMoneyText(toPlainText()));
    Q_EMIT LostFocus();
}

void swTextBoxMultiLine::setNextOnSecondEnter(QWidget* next, BlankLine blankLine)
{
    m_next = next;
    m_blankLine = blankLine;
}

/// Keys that type nothing, such as Shift, don't count.
bool swTextBoxMultiLine::isSecondEnter(const QKeyEvent& event)
{
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!isEnter && event.text().isEmpty() && forms::keyNumber(event) == 0)
        return false;
    const bool plainEnter = isEnter && !(event.modifiers() & ~Qt::KeypadModifier);
    return std::exchange(m_afterEnter, plainEnter) && plainEnter;
}

void swTextBoxMultiLine::leave()
{
    if (m_blankLine == BlankLine::Goes && textCursor().block().text().isEmpty())
        textCursor().deletePreviousChar();
    m_next->setFocus(Qt::TabFocusReason);
}

void swTextBoxMultiLine::keyPressEvent(QKeyEvent* event)
{
    if (m_next && isSecondEnter(*event))
        return leave();
    if (boxes::keyDownSwallowed(*event, [this](int& key, int shift) { Q_EMIT KeyDown(key, shift); }))
        return;
    const auto filter = [this](int key) {
        Q_EMIT KeyPress(key);
        return m_boxType == boxes::Money ? NumKey(toPlainText(), key) : key;
    };
    boxes::withFilteredKey(*event, filter, [this](QKeyEvent* e) { QPlainTextEdit::keyPressEvent(e); });
}
