#pragma once

#include <QFocusEvent>
#include <utility>

namespace forms {

/// Tells a field's own focus from its window's: a menu or list over it, or another window in front, takes the
/// focus only for a while, and what stood selected and half typed stays so.
class FocusWatch
{
public:
    /// At a focus-in: whether the operator has come to the field, and not only back to its window.
    bool comes(const QFocusEvent& event)
    {
        const bool wasThere = std::exchange(m_there, true);
        return !wasThere || !isWindows(event);
    }
    /// At a focus-out: whether the operator has left the field.
    bool leaves(const QFocusEvent& event)
    {
        if (!isWindows(event))
            m_there = false;
        return !m_there;
    }

private:
    static bool isWindows(const QFocusEvent& event)
    {
        return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
               event.reason() == Qt::MenuBarFocusReason;
    }

    bool m_there = false;
};

} // namespace forms
