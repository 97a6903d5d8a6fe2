#pragma once

#include <QString>
#include <QWidget>
#include <Qt>

/// Types a key as the operator does: it goes to the window with the focus, mnemonics and open lists included.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
/// Types the characters of a text one by one.
void typeText(const QString& text);

/// Another window in front for a while, and back.
void awayAndBack(QWidget& field, Qt::FocusReason reason = Qt::ActiveWindowFocusReason);

/// The control of that name; its absence, or another class, ends the program.
template <class T>
T& control(QWidget& screen, const char* name)
{
    T* found = screen.findChild<T*>(QString::fromLatin1(name));
    if (!found)
        qFatal("No control %s", name);
    return *found;
}
