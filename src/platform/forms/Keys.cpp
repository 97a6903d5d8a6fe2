#include "platform/forms/Keys.h"

namespace forms {

namespace {

bool isEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

int ofControlCode(int code)
{
    switch (code) {
    case key::Backspace:
        return Qt::Key_Backspace;
    case key::Enter:
        return Qt::Key_Return;
    case key::Escape:
        return Qt::Key_Escape;
    default:
        return Qt::Key_A + code - key::CtrlA;
    }
}

} // namespace

int charCode(const QKeyEvent& event)
{
    const bool ctrl = event.modifiers() & Qt::ControlModifier;
    const bool alt = event.modifiers() & Qt::AltModifier;
    if (isEnter(event.key()))
        return key::Enter;
    switch (event.key()) {
    case Qt::Key_Escape:
        return key::Escape;
    case Qt::Key_Backspace:
        return key::Backspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete:
        return 0;
    default:
        break;
    }
    if (ctrl && !alt)
        return event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z ? event.key() - Qt::Key_A + key::CtrlA
                                                                    : 0;
    if (alt && !ctrl) // a mnemonic; with Ctrl it is the AltGr of some keyboards
        return 0;
    const QList<uint> codes = event.text().toUcs4();
    return codes.size() == 1 && codes.first() >= uint(key::Blank) ? int(codes.first()) : 0;
}

int keyNumber(const QKeyEvent& event)
{
    const int key = event.key();
    if (isEnter(key))
        return key::Enter;
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z) ||
        key == Qt::Key_Space)
        return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return key::F1 + key - Qt::Key_F1;
    switch (key) {
    case Qt::Key_Escape:
        return key::Escape;
    case Qt::Key_Backspace:
        return key::Backspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return key::Tab;
    case Qt::Key_PageUp:
        return key::PageUp;
    case Qt::Key_PageDown:
        return key::PageDown;
    case Qt::Key_End:
        return key::End;
    case Qt::Key_Home:
        return key::Home;
    case Qt::Key_Left:
        return key::Left;
    case Qt::Key_Up:
        return key::Up;
    case Qt::Key_Right:
        return key::Right;
    case Qt::Key_Down:
        return key::Down;
    case Qt::Key_Delete:
        return key::Delete;
    default:
        return 0;
    }
}

QKeyEvent withCharCode(const QKeyEvent& event, int code)
{
    if (code < key::Blank)
        return QKeyEvent(event.type(), ofControlCode(code),
                         code >= key::CtrlA && ofControlCode(code) < Qt::Key_Escape ? Qt::ControlModifier
                                                                                    : Qt::NoModifier,
                         QString(QChar(code)), event.isAutoRepeat());
    const char32_t character = char32_t(code);
    return QKeyEvent(event.type(), int(QChar::toUpper(character)), event.modifiers(),
                     QString::fromUcs4(&character, 1), event.isAutoRepeat());
}

} // namespace forms
