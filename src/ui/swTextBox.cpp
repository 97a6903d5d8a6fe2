#include "ui/swTextBox.h"

#include "platform/forms/Keys.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/boxes.h"

#include <QKeyEvent>

swTextBox::swTextBox(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &swTextBox::Change);
}

void swTextBox::setText(const QString& text) { QLineEdit::setText(boxes::shown(text, m_boxType)); }

void swTextBox::setBoxType(int boxType)
{
    m_boxType = boxType;
    setText(text());
}

void swTextBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (!m_focus.comes(*event))
        return;
    selectAll();
    m_selectOnRelease = event->reason() == Qt::MouseFocusReason;
    Q_EMIT GotFocus();
}

void swTextBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!m_focus.leaves(*event))
        return;
    m_lastKey = 0;
    if (m_boxType == boxes::Money)
        QLineEdit::setText(values::formatMoneyText(text()));
    Q_EMIT LostFocus();
}

/// The click that brings the focus selects the whole text too, unless it was drawn over a part of it.
void swTextBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(m_selectOnRelease, false) && !hasSelectedText())
        selectAll();
}

void swTextBox::keyPressEvent(QKeyEvent* event)
{
    if (boxes::keyDownSwallowed(*event, [this](int& key, int shift) { Q_EMIT KeyDown(key, shift); }))
        return;
    boxes::withFilteredKey(
        *event, [this](int key) { return filterKey(key); },
        [this](QKeyEvent* e) { QLineEdit::keyPressEvent(e); });
}

int swTextBox::filterKey(int key)
{
    if (m_autoTab && key == forms::key::Enter)
        return EnterAsTab(key);
    Q_EMIT KeyPress(key);
    if (m_boxType == boxes::Money)
        return NumbersOnly(*this, key);
    const bool beginsWord = boxes::unselectedText(*this).isEmpty() || m_lastKey == forms::key::Blank;
    if (beginsWord && key >= forms::key::Blank)
        key = int(QChar::toUpper(char32_t(key)));
    m_lastKey = key;
    return key;
}
