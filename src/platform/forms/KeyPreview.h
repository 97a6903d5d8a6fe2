#pragma once

#include <QObject>
#include <vector>

class QKeyEvent;
class QWidget;

namespace forms {

class Screen;

/// The application's one filter that gives keys to the screens before the controls, tells them where the
/// focus has come, and makes the mnemonic of a button press it at once.
class KeyPreview : public QObject
{
    Q_OBJECT
public:
    /// Sets the filter up for the application; once is enough.
    static void install();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;

    void preview(Screen& screen, QWidget* target, const QKeyEvent& event);
    void deliver(QWidget* target, QKeyEvent& event);

    /// Events on their way to a control (and, if it ignores them, up to its screen) after the screen has seen
    /// them.
    std::vector<const QEvent*> m_underWay;
};

} // namespace forms
