#pragma once

#include "platform/forms/Keys.h"

#include <QDialog>
#include <QPointer>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

class QEventLoop;
class QLabel;
class QScrollArea;

namespace forms {

/// Shows the text of an error in a plain message box over `parent`. Long texts are cut to what a screen can
/// hold.
void showError(QWidget* parent, const QString& text);

/// Runs an event procedure. An exception ends it there; its text reaches the operator in a plain message box
/// over `parent`. Returns false then.
bool guarded(QWidget* parent, const std::function<void()>& procedure);

/// Moves the focus to the next (or previous) field of the screen that has it, as the Tab key does. An open
/// drop-down list is closed first.
void sendTab(bool backwards = false);

namespace detail {

template <typename Member>
struct MemberClass;
template <typename Type, typename Class>
struct MemberClass<Type Class::*>
{
    using type = Class;
};

template <std::size_t Count, typename Procedure, typename Arguments>
void callLeading(Procedure& procedure, Arguments arguments)
{
    [&]<std::size_t... I>(std::index_sequence<I...>)
    {
        if constexpr (std::is_invocable_v<Procedure&, std::tuple_element_t<I, Arguments>...>)
            std::invoke(procedure, std::get<I>(arguments)...);
        else
            callLeading<Count - 1>(procedure, arguments);
    }
    (std::make_index_sequence<Count>());
}

/// Calls `procedure` with as many of the arguments, from the left, as it takes.
template <typename Procedure, typename... Args>
void call(Procedure& procedure, Args&... args)
{
    callLeading<sizeof...(Args)>(procedure, std::tuple<Args&...>(args...));
}

} // namespace detail

/// Base of all screens: the chain of modal screens, loading and activation, the preview of keys.
///
/// A screen is shown with showModal() and leaves with unload(). Form_Load runs once, before the first show;
/// Form_Activate runs when the screen comes to the front: on the first show, and each time the screen above
/// it has closed (not after a plain message box or a notice). Form_Unload runs once when it goes. An unloaded
/// screen can be shown again; it is then loaded anew.
///
/// A key reaches Form_KeyDown, then the focused control's onKeyDown; then, if it makes a character,
/// Form_KeyPress and the control's onKeyPress; then the control itself. Each can change a character code, or
/// set 0 to swallow the key. Keys typed while a combo's list is open take the same way to the combo; Esc then
/// closes the list only. Enter on a focused push button presses it, and is no key press for the screen.
///
/// A screen whose content is larger than the display scrolls, and keeps the control that has the focus in
/// sight.
class Screen : public QDialog
{
    Q_OBJECT
public:
    explicit Screen(QWidget* parent = nullptr);
    ~Screen() override;

    /// Shows the screen modally over the screen that is in front and returns when it has been unloaded. An
    /// error of Form_Load goes on to the caller, and the screen isn't shown.
    void showModal();
    /// The same without waiting: for the main screen. Loads and activates.
    void showModeless();
    /// Runs Form_Load now if the screen isn't loaded yet: for operations that fill the controls before the
    /// screen shows.
    void load();
    /// Closes the screen. Safe to call from its own event procedures.
    void unload();
    bool isLoaded() const { return m_loaded; }

    /// What stands across the top of every screen that is shown from now on; empty: nothing.
    static void setBand(const QString& text);
    /// Gives all open screens the room that their text needs at its size.
    static void refitAll();

    /// The screen in front, or null.
    static Screen* front();

    /// However QDialog ends, it is unload().
    void done(int result) override;

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}
    /// Esc leaves the screen.
    virtual void Form_KeyPress(int& key);
    virtual void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers)
    {
        Q_UNUSED(key)
        Q_UNUSED(modifiers)
    }

    /// Connects a signal to an event procedure (a member or a lambda that takes what the signal gives, or
    /// less), guarded.
    template <typename Sender, typename Signal, typename Procedure>
    void on(Sender* sender, Signal signal, Procedure procedure)
    {
        connect(sender, signal, this, [this, procedure](auto&&... args) mutable {
            guarded(this, [&] {
                if constexpr (std::is_member_function_pointer_v<Procedure>) {
                    auto* self = static_cast<typename detail::MemberClass<Procedure>::type*>(this);
                    detail::call(procedure, self, args...);
                } else {
                    detail::call(procedure, args...);
                }
            });
        });
    }
    /// What a double click or Enter on a list does: opens the row that is selected, as a rule.
    template <typename List, typename Procedure>
    void onOpened(List* list, Procedure procedure)
    {
        on(list, &List::dblClicked, procedure);
        onKeyDown(list, [this, procedure](int& key) mutable {
            if (key != key::Enter)
                return;
            key = 0;
            if constexpr (std::is_member_function_pointer_v<Procedure>)
                std::invoke(procedure, static_cast<typename detail::MemberClass<Procedure>::type*>(this));
            else
                procedure();
        });
    }
    /// Event procedures of one control. A composite control (a combo, a picker) counts with its inner boxes.
    /// Focus that comes back to the same control (from an open list, a message, another window) is no new
    /// focus.
    void onKeyPress(QWidget* control, std::function<void(int& key)> procedure);
    void onKeyDown(QWidget* control, std::function<void(int& key)> procedure);
    void onGotFocus(QWidget* control, std::function<void()> procedure);
    void onLostFocus(QWidget* control, std::function<void()> procedure);

    /// Gives the screen, with its frame, the display's full width and nearly its height. For Form_Load.
    void useScreenHeight() { m_usesScreenHeight = true; }
    /// Makes the screen a notice: when it closes, the screen below isn't activated, as after a plain message
    /// box.
    void setNotice(bool notice) { m_notice = notice; }

    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class KeyPreview;
    friend void sendTab(bool backwards);

    struct ControlEvents
    {
        QPointer<QWidget> control;
        std::vector<std::function<void(int&)>> keyPress;
        std::vector<std::function<void(int&)>> keyDown;
        std::vector<std::function<void()>> gotFocus;
        std::vector<std::function<void()>> lostFocus;
    };

    void present();
    void showBand();
    void fitContent();
    void fitDisplay();
    void fitText();
    QSize shareOfDisplay() const;
    void activate();
    void leaveChain();
    ControlEvents& eventsOf(QWidget* control);
    /// All procedures of one kind that apply to `target` or to a control around it.
    template <typename Procedure>
    std::vector<Procedure> proceduresFor(QWidget* target, std::vector<Procedure> ControlEvents::*kind) const;
    /// True when the key was swallowed.
    bool previewKeyDown(QWidget* target, int& key, Qt::KeyboardModifiers modifiers);
    bool previewKeyPress(QWidget* target, int& key);
    bool swallowed(int& key, const std::function<void()>& screens,
                   const std::vector<std::function<void(int&)>>& controls);
    void focusArrived(QWidget* target);

    bool m_loaded = false;
    double m_textScale = 1; ///< to which the designed sizes have been brought
    bool m_notice = false;
    bool m_usesScreenHeight = false; ///< else it is as large as its content
    QPointer<QEventLoop> m_loop;
    QPointer<QWidget> m_focused;
    QScrollArea* m_scroller = nullptr;
    QLabel* m_band = nullptr;
    std::vector<ControlEvents> m_events;
};

} // namespace forms
