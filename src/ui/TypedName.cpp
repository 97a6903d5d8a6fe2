#include "ui/TypedName.h"

#include "platform/forms/ComboBox.h"
#include "platform/forms/Keys.h"

void TypedName::take(const forms::ComboBox& combo, int key)
{
    if (key < forms::key::Blank) {
        if (key == forms::key::Backspace)
            m_unknown.clear();
        return;
    }
    const bool completed = combo.selLength() > 0;
    const QString before = !m_unknown.isEmpty() ? m_unknown
                           : completed          ? combo.text().left(combo.selStart())
                                                : combo.text();
    const char32_t character = char32_t(key);
    const QString typed = before + QString::fromUcs4(&character, 1);
    m_unknown = combo.findString(typed) < 0 ? typed : QString();
}

void TypedName::clear() { m_unknown.clear(); }
