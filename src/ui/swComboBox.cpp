#include "ui/swComboBox.h"

#include "platform/values/Numbers.h"
#include "ui/NumKey.h"
#include "ui/boxes.h"

swComboBox::swComboBox(QWidget* parent)
    : forms::ComboBox(parent)
{
    connect(this, &forms::ComboBox::changed, this, &swComboBox::Change);
}

void swComboBox::setText(const QString& text) { forms::ComboBox::setText(boxes::shown(text, m_boxType)); }

void swComboBox::setBoxType(int boxType)
{
    m_boxType = boxType;
    setText(text());
}

void swComboBox::focusInEvent(QFocusEvent* event)
{
    forms::ComboBox::focusInEvent(event);
    if (!m_focus.comes(*event))
        return;
    select(0, int(text().size()));
    Q_EMIT GotFocus();
}

void swComboBox::focusOutEvent(QFocusEvent* event)
{
    forms::ComboBox::focusOutEvent(event);
    if (!m_focus.leaves(*event))
        return;
    if (m_boxType == boxes::Money)
        forms::ComboBox::setText(values::formatMoneyText(text()));
    Q_EMIT LostFocus();
}

void swComboBox::keyPressEvent(QKeyEvent* event)
{
    if (boxes::keyDownSwallowed(*event, [this](int& key, int shift) { Q_EMIT KeyDown(key, shift); }))
        return;
    const auto filter = [this](int key) { return m_boxType == boxes::Money ? NumKey(text(), key) : key; };
    boxes::withFilteredKey(*event, filter, [this](QKeyEvent* e) { forms::ComboBox::keyPressEvent(e); });
}
