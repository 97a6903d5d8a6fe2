#include "support/Fields.h"

void fillIn(QWidget& screen, const char* name, const QString& text)
{
    auto& target = control<QWidget>(screen, name);
    target.setFocus();
    auto* edit = qobject_cast<QLineEdit*>(&target);
    if (!edit)
        edit = target.findChild<QLineEdit*>();
    edit->selectAll();
    text.isEmpty() ? press(Qt::Key_Delete) : typeText(text);
}

void typeFields(const QStringList& texts)
{
    for (const QString& text : texts) {
        typeText(text);
        press(Qt::Key_Return);
    }
}

QString focused(const QWidget& screen)
{
    const QWidget* widget = screen.focusWidget();
    return widget ? widget->objectName() : QString();
}

void save() { press(Qt::Key_S, Qt::AltModifier); }

void remove() { press(Qt::Key_D, Qt::AltModifier); }
