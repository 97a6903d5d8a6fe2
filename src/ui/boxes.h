#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <functional>

/// What the input controls of the screens share.
namespace boxes {

/// The BoxType of a money box.
inline constexpr int Money = 1;

/// The text as a box of that type shows it.
QString shown(const QString& text, int boxType);

/// Each apostrophe that is typed or pasted into the box becomes the one that titles are written with.
void writeTitles(QLineEdit& box);

/// Each word begun with a capital, as a plain box does while it is typed in.
QString capitalized(QString text);

/// What stays of a box's text when a key replaces its selection.
QString unselectedText(const QLineEdit& box);

/// Offers a key-down by number and shift state; true when it was set to 0.
bool keyDownSwallowed(const QKeyEvent& event, const std::function<void(int& key, int shift)>& raise);

/// Passes a character key through `filter` and gives what is left of it to `type`; other keys go to `type` as
/// they are.
void withFilteredKey(QKeyEvent& event, const std::function<int(int key)>& filter,
                     const std::function<void(QKeyEvent*)>& type);

} // namespace boxes
