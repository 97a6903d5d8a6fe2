#pragma once

#include "platform/forms/Screen.h"

/// A screen of large commands that each open another screen; Esc and "Back" leave it.
class MenuScreen : public forms::Screen
{
protected:
    /// Opens a new `T` modally when the operator presses `button`.
    template <typename T, typename Button>
    void opens(Button* button)
    {
        on(button, &Button::clicked, [] { T().showModal(); });
    }
};
