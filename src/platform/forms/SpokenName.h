#pragma once

class QString;
class QWidget;

namespace forms {

/// What a screen reader calls a control: its own name, else the caption that stands beside it (the label whose
/// buddy it is), without the mark of its key and the colon.
QString spokenName(const QWidget& control);

/// Gives a name to the controls of a screen that Qt finds none for: lists, and the inner lines of drop-down
/// boxes.
void nameControls(const QWidget& screen);

} // namespace forms
