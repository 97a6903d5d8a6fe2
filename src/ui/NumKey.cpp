#include "ui/NumKey.h"

#include "platform/forms/Keys.h"

#include <QString>

int NumKey(const QString& text, int key)
{
    constexpr int clear = 12; // the number pad's middle key without its number lock
    if (key == '.')
        return text.contains(u'.') ? 0 : key;
    if ((key >= '0' && key <= '9') || key == forms::key::Backspace || key == clear)
        return key;
    return 0;
}
