#pragma once

#include "platform/values/Errors.h"
#include "platform/values/Literals.h"

#include <QString>
#include <Qt>
#include <vector>

/// Types keys for the operator. A text stands for them: "+" holds Shift, "^" Ctrl
/// and "%" Alt for the next key or the next group in "(" and ")"; "~" is Enter; a name in curly brackets is a
/// named key ("{TAB}"), or a character that has a meaning of its own ("{+}"), and a number behind a blank
/// repeats it ("{TAB 3}").
///
/// The keys go to the control with the focus, as its own key events would; Tab moves the focus. They don't
/// press buttons by their mnemonics.
class cSendKeys
{
public:
    /// A text that isn't in the notation.
    class Error : public OperatorError
    {
    public:
        using OperatorError::OperatorError;
        static QString source() { return u".cSendKeys"_s; }
    };

    /// Types the keys of the text: before it returns, or, without `wait`, as soon as the event in progress is
    /// over. Throws Error, and types nothing, when the text cannot be read.
    void SendKeys(const QString& keys, bool wait = true);
    /// Presses and releases a key (a Qt::Key) with the modifiers held down so far.
    void KeyPress(int key);
    /// Shift, Ctrl and Alt stay held until their KeyUp.
    void KeyDown(int key);
    void KeyUp(int key);
    /// The key of a name, in any case, or of a character. Throws Error for a name that is none.
    static int KeyCode(const QString& name);

private:
    struct Stroke
    {
        int key;
        QString text;
        Qt::KeyboardModifiers held;
    };
    class Reader;

    void play(const std::vector<Stroke>& strokes);
    void send(bool down, int key, const QString& text);

    Qt::KeyboardModifiers m_held;
};
