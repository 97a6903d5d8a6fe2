#include "support/Fields.h"

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

QString rowText(QWidget& screen, int row, const char* list)
{
    QStringList cells;
    for (int column = 0; column < listView(screen, list).model()->columnCount(); ++column)
        cells << listView(screen, list).cell(row, column);
    return cells.join(u'|');
}

QStringList tags(QWidget& screen, const char* list)
{
    QStringList tags;
    for (int row = 0; row < listView(screen, list).rowCount(); ++row)
        tags << listView(screen, list).tag(row);
    return tags;
}
