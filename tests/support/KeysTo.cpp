#include "support/KeysTo.h"

#include <QGuiApplication>
#include <QTest>
#include <QWindow>

namespace {

QWindow* focusWindow()
{
    if (!QTest::qWaitFor([] { return QGuiApplication::focusWindow() != nullptr; }))
        QTest::qFail("No window has the focus", __FILE__, __LINE__);
    return QGuiApplication::focusWindow();
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
