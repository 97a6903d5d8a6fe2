#pragma once

#include <QDialog>
#include <functional>

/// Meets the modal screens that a test opens, acts in them and closes them.
namespace modal {

/// Puts an act in the queue: the next modal window in front for which `matches` holds, and which no other act
/// has met, is given to `act`, and closed after it whatever happens. None within five seconds fails the test
/// and closes what is open.
void meet(const QString& className, std::function<bool(QWidget*)> matches, std::function<void(QWidget*)> act);

/// The number of acts that no screen has met yet.
int pending();
/// Forgets them.
void forget();

} // namespace modal

/// Acts in the next modal screen (or other dialog) of class T that comes to the front, and closes it after
/// that.
template <class T>
void onNextModal(std::function<void(T&)> act)
{
    modal::meet(
        QString::fromLatin1(T::staticMetaObject.className()),
        [](QWidget* widget) { return qobject_cast<T*>(widget) != nullptr; },
        [act = std::move(act)](QWidget* widget) { act(*static_cast<T*>(widget)); });
}

/// Shows a screen of class T, acts in it and closes it.
template <class T>
void inModal(std::function<void(T&)> act)
{
    onNextModal<T>(std::move(act));
    T().showModal();
}
