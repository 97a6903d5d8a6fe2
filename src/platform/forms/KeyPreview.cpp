#include "platform/forms/KeyPreview.h"

#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/Screen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>
#include <QShortcutEvent>
#include <algorithm>

namespace forms {

namespace {

/// Where a key that reaches `widget` belongs: the box of an open list gets what the list receives.
QWidget* targetOf(QWidget* widget)
{
    const QWidget* window = widget->window();
    auto* combo = qobject_cast<ComboBox*>(window->parentWidget());
    return combo && window->windowType() == Qt::Popup ? combo : widget;
}

/// Presses a button by its mnemonic, with the focus on it, so that the field left behind has settled its
/// text.
bool pressByMnemonic(QWidget* widget, const QShortcutEvent& event)
{
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (!button || event.isAmbiguous() || !qobject_cast<Screen*>(button->window()))
        return false;
    if (button->focusPolicy() != Qt::NoFocus)
        button->setFocus(Qt::ShortcutFocusReason);
    button->click();
    return true;
}

/// While a list is open mnemonics would find no screen to act on.
void closeListForMnemonic(QWidget* target, const QKeyEvent& event)
{
    auto* combo = qobject_cast<ComboBox*>(target);
    const bool letter = event.key() >= Qt::Key_0 && event.key() <= Qt::Key_Z;
    if (combo && letter && event.modifiers() == Qt::AltModifier)
        combo->closeUp();
}

/// What a half-typed date is before the screen acts on a key: taken by Enter and the function keys, given up
/// by Esc.
void settleDate(QWidget* target, const QKeyEvent& event)
{
    auto* picker = qobject_cast<DatePicker*>(target);
    if (!picker)
        return;
    const int number = keyNumber(event);
    if (number == key::Escape)
        picker->revert();
    else if (number == key::Enter || number >= key::F1)
        picker->settle();
}

/// Alt with a letter that is no mnemonic of the screen; a field would take the letter for typed.
bool isStrayMnemonic(const QKeyEvent& event)
{
    const QString text = event.text();
    return event.modifiers().testFlag(Qt::AltModifier) && charCode(event) == 0 && !text.isEmpty() &&
           text.front().isPrint();
}

} // namespace

void KeyPreview::install()
{
    static QPointer<KeyPreview> installed;
    if (installed)
        return;
    installed = new KeyPreview(qApp);
    qApp->installEventFilter(installed);
    connect(qApp, &QApplication::focusChanged, installed, [](QWidget*, QWidget* now) {
        auto* screen = now ? qobject_cast<Screen*>(now->window()) : nullptr;
        if (screen && now == QApplication::focusWidget())
            screen->focusArrived(now);
    });
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::KeyPress: {
        if (std::find(m_underWay.begin(), m_underWay.end(), event) != m_underWay.end())
            return false;
        QWidget* target = targetOf(widget);
        auto* screen = qobject_cast<Screen*>(target->window());
        if (!screen)
            return false;
        preview(*screen, target, *static_cast<QKeyEvent*>(event));
        event->accept();
        return true;
    }
    case QEvent::Shortcut:
        return pressByMnemonic(widget, *static_cast<QShortcutEvent*>(event));
    case QEvent::ShortcutOverride:
        closeListForMnemonic(targetOf(widget), *static_cast<QKeyEvent*>(event));
        return false;
    default:
        return false;
    }
}

void KeyPreview::preview(Screen& screen, QWidget* target, const QKeyEvent& event)
{
    const QPointer<Screen> alive = &screen;
    const QPointer<QWidget> control = target;
    const auto gone = [&] { return !alive || !control; };

    if (auto* combo = qobject_cast<ComboBox*>(target); combo && combo->isDroppedDown()) {
        const int number = keyNumber(event);
        if (number == key::Escape || number == key::Enter || number == key::Tab)
            combo->closeUp();
        if (number == key::Escape)
            return;
    }
    settleDate(target, event);
    auto* button = qobject_cast<QPushButton*>(target);
    if (button && charCode(event) == key::Enter) {
        if (!event.isAutoRepeat()) // a key held down must not save twice
            button->click();
        return;
    }
    if (int number = keyNumber(event); number != 0) {
        if (screen.previewKeyDown(target, number, event.modifiers()) || gone())
            return;
    }
    if (isStrayMnemonic(event))
        return;
    const int code = charCode(event);
    int key = code;
    if (code != 0 && (screen.previewKeyPress(target, key) || gone()))
        return;
    if (key != code) {
        QKeyEvent changed = withCharCode(event, key);
        deliver(target, changed);
    } else {
        const std::unique_ptr<QKeyEvent> same(event.clone());
        deliver(target, *same);
    }
}

void KeyPreview::deliver(QWidget* target, QKeyEvent& event)
{
    m_underWay.push_back(&event);
    QCoreApplication::sendEvent(target, &event);
    std::erase(m_underWay, &event);
}

} // namespace forms
