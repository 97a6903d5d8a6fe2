#pragma once

#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "ui/swTextBox.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

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

// The controls of a screen by their names, in the operator's terms.

inline QLineEdit& field(QWidget& screen, const char* name) { return control<QLineEdit>(screen, name); }
inline swTextBox& box(QWidget& screen, const char* name) { return control<swTextBox>(screen, name); }
inline QString label(QWidget& screen, const char* name) { return control<QLabel>(screen, name).text(); }
inline forms::ComboBox& combo(QWidget& screen, const char* name)
{
    return control<forms::ComboBox>(screen, name);
}
inline forms::DatePicker& date(QWidget& screen, const char* name)
{
    return control<forms::DatePicker>(screen, name);
}
inline forms::ListBox& listBox(QWidget& screen, const char* name)
{
    return control<forms::ListBox>(screen, name);
}
inline forms::ListView& listView(QWidget& screen, const char* name)
{
    return control<forms::ListView>(screen, name);
}
/// Presses a button, or turns a check box or an option.
inline void click(QWidget& screen, const char* button) { control<QAbstractButton>(screen, button).click(); }
inline bool checked(QWidget& screen, const char* box)
{
    return control<QAbstractButton>(screen, box).isChecked();
}

/// Types a text into a field (a combo too) in place of what stands there.
void fillIn(QWidget& screen, const char* name, const QString& text);
/// Types into the field with the focus, then Enter, and so on with the fields behind it.
void typeFields(const QStringList& texts);
/// The name of the control that has the focus.
QString focused(const QWidget& screen);
/// Press "&Save" and "&Delete".
void save();
void remove();
/// A row of a list of the screen, its cells with "|" between them; the tags of all its rows.
QString rowText(QWidget& screen, int row, const char* list = "lvSummary");
QStringList tags(QWidget& screen, const char* list = "lvSummary");
