#pragma once

#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "support/KeysTo.h"
#include "ui/swTextBox.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

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
