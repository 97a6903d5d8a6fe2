#include "support/KeysTo.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace {

/// Where a window system would send keys: an open list or menu, else the active window.
QWindow* focusWindow()
{
    if (const QWidget* popup = QApplication::activePopupWidget())
        return popup->windowHandle();
    if (!QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; })) {
        QTest::qFail("No window is active", __FILE__, __LINE__);
        return nullptr;
    }
    return QApplication::activeWindow()->windowHandle();
}

} // namespace

void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QWindow* window = focusWindow())
        QTest::keyClick(window, key, modifiers);
}

void typeText(const QString& text)
{
    for (const QChar character : text) {
        QWindow* window = focusWindow();
        if (!window)
            return;
        const ushort code = character.unicode();
        const Qt::Key key =
            code < 128 ? QTest::asciiToKey(char(code)) : Qt::Key(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, window, key, QString(character),
                            character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
    }
}

void awayAndBack(QWidget& field, Qt::FocusReason reason)
{
    for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent focus(type, reason);
        QCoreApplication::sendEvent(&field, &focus);
    }
}
