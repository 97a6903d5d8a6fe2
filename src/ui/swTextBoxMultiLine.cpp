#include "ui/swTextBoxMultiLine.h"

#include "platform/values/Numbers.h"
#include "ui/NumKey.h"
#include "ui/boxes.h"

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

void swTextBoxMultiLine::keyPressEvent(QKeyEvent* event)
{
    if (boxes::keyDownSwallowed(*event, [this](int& key, int shift) { Q_EMIT KeyDown(key, shift); }))
        return;
    const auto filter = [this](int key) {
        Q_EMIT KeyPress(key);
        return m_boxType == boxes::Money ? NumKey(toPlainText(), key) : key;
    };
    boxes::withFilteredKey(*event, filter, [this](QKeyEvent* e) { QPlainTextEdit::keyPressEvent(e); });
}
