#pragma once

#include <QMouseEvent>
#include <QWidget>

namespace forms {

/// For a press of the mouse beside an open drop-down: closes it, and the press reaches what it hits in the
/// same window, but for the field of the drop-down itself. (Not every window system passes such a press on.)
void passOnPress(QWidget& popup, const QMouseEvent& press);

} // namespace forms
