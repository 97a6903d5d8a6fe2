#pragma once

#include "platform/forms/Keys.h"

#include <QDialog>
#include <functional>
#include <utility>

namespace forms {

/// Shows the text of an error in a plain message box over `parent`. Long texts are cut to what a screen can hold.
void showError(QWidget* parent, const QString& text);

/// Runs an event procedure. An exception ends it there; its text reaches the operator in a plain message box over
/// `parent`. Returns false then.
bool guarded(QWidget* parent, const std::function<void()>& procedure);

/// Base of all screens: the chain of modal screens, loading and activation, the preview of keys.
///
/// A screen is shown with showModal() and leaves with unload(). Form_Load runs once, before the first show; Form_Activate
/// runs when the screen comes to the front: on the first show, and each time the screen above it has closed (not after a
/// plain message box). Form_Unload runs once when it goes.
///
/// A key reaches Form_KeyDown, then the focused control's onKeyDown; then, if it makes a character, Form_KeyPress and the
/// control's onKeyPress; then the control itself. Each can change a character code, or set 0 to swallow the key.
/// Enter on a focused push button presses it; the default button of QDialog is not used, but for setDefault() on a screen
/// that calls useDefaultButton().
class Screen : public QDialog
{
    Q_OBJECT
public:
    explicit Screen(QWidget* parent = nullptr);
    ~Screen() override;

    /// Shows the screen modally over the screen that is in front and returns when it has been unloaded.
    void showModal();
    /// The same without waiting: for the main screen. Loads and activates.
    void showModeless();
    /// Closes the screen. Safe to call from its own event procedures.
    void unload();
    bool isLoaded() const { return m_loaded; }

    /// The screen in front, or null.
    static Screen* front();

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}
    virtual void Form_KeyPress(int& key) { Q_UNUSED(key) }
    virtual void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) { Q_UNUSED(key) Q_UNUSED(modifiers) }

    /// Connects a signal to an event procedure (a member or a lambda taking what the signal gives), guarded.
    template <typename Sender, typename Signal, typename Procedure>
    void on(Sender* sender, Signal signal, Procedure procedure)
    {
        connect(sender, signal, this, [this, procedure](auto&&... args) {
            guarded(this, [&] {
                if constexpr (std::is_member_function_pointer_v<Procedure>)
                    callMember(procedure, std::forward<decltype(args)>(args)...);
                else
                    callFree(procedure, std::forward<decltype(args)>(args)...);
            });
        });
    }
    /// Event procedures of one control. A composite control (a combo, a picker) counts with its inner boxes.
    void onKeyPress(QWidget* control, std::function<void(int& key)> procedure);
    void onKeyDown(QWidget* control, std::function<void(int& key)> procedure);
    void onGotFocus(QWidget* control, std::function<void()> procedure);
    void onLostFocus(QWidget* control, std::function<void()> procedure);

    /// Gives the screen the share of the available screen's height, and a width to go with it.
    void useScreenHeight(double share);
};

} // namespace forms
