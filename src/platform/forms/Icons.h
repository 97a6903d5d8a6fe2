#pragma once

class QWidget;

namespace forms {

/// Gives each button of the screen the picture that its property `iconName` names (":/icons/<name>.svg"; on
/// the dark panel of the main screen ":/icons/<name>-light.svg", by `suffix`).
void applyIcons(QWidget& screen, const char* suffix = "");

} // namespace forms
