#include "ui/boxes.h"

#include "platform/forms/Keys.h"
#include "platform/values/Numbers.h"
#include "platform/values/Titles.h"

namespace boxes {

QString shown(const QString& text, int boxType)
{
    return boxType == Money && !text.isEmpty() ? values::formatMoneyText(text) : text;
}

void writeTitles(QLineEdit& box)
{
    QObject::connect(&box, &QLineEdit::textEdited, &box, [&box](const QString& typed) {
        const QString title = values::title(typed);
        if (title == typed)
            return;
        const int cursor = box.cursorPosition();
        box.setText(title);
        box.setCursorPosition(cursor);
    });
}

QString capitalized(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i)
        if (i == 0 || text[i - 1] == u' ')
            text[i] = text[i].toUpper();
    return text;
}

QString unselectedText(const QLineEdit& box)
{
    QString rest = box.text();
    return box.hasSelectedText() ? rest.remove(box.selectionStart(), box.selectionLength()) : rest;
}

bool keyDownSwallowed(const QKeyEvent& event, const std::function<void(int& key, int shift)>& raise)
{
    int key = forms::keyNumber(event);
    if (key == 0)
        return false;
    const Qt::KeyboardModifiers held = event.modifiers();
    raise(key, (held & Qt::ShiftModifier ? 1 : 0) | (held & Qt::ControlModifier ? 2 : 0) |
                   (held & Qt::AltModifier ? 4 : 0));
    return key == 0;
}

void withFilteredKey(QKeyEvent& event, const std::function<int(int key)>& filter,
                     const std::function<void(QKeyEvent*)>& type)
{
    const int code = forms::charCode(event);
    const int key = code == 0 ? 0 : filter(code);
    if (code == key)
        return type(&event);
    if (key == 0)
        return event.accept();
    QKeyEvent changed = forms::withCharCode(event, key);
    type(&changed);
}

} // namespace boxes
