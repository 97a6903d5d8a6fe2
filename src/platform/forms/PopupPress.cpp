#include "platform/forms/PopupPress.h"

#include <QApplication>
#include <QWindow>

namespace forms {

void passOnPress(QWidget& popup, const QMouseEvent& press)
{
    const QWidget* field = popup.parentWidget();
    popup.setAttribute(Qt::WA_NoMouseReplay); // else some systems would do it a second time
    popup.hide();
    QWidget* hit = QApplication::widgetAt(press.globalPosition().toPoint());
    if (!hit || hit == field || hit->window() != field->window())
        return;
    // Only a press from outside the program brings the focus by itself.
    for (QWidget* each = hit; !each->isWindow(); each = each->parentWidget()) {
        if (each->isEnabled() && (each->focusPolicy() & Qt::ClickFocus)) {
            each->setFocus(Qt::MouseFocusReason);
            break;
        }
    }
    const QWidget* window = hit->window();
    const QPointF local = window->mapFromGlobal(press.globalPosition());
    QCoreApplication::postEvent(window->windowHandle(),
                                new QMouseEvent(press.type(), local, local, press.globalPosition(),
                                                press.button(), press.buttons(), press.modifiers()));
}

} // namespace forms
