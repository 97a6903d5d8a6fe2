#pragma once

#include "platform/forms/Palette.h"

class QIcon;
class QPixmap;
class QString;
class QWidget;

namespace forms {

/// One of the drawings of the resources (":/icons/<name>.svg"), `size` pixels of the layout wide and high.
QPixmap picture(const QString& name, int size);

/// One of the line icons of the resources (":/icons/<name>.svg"), its lines drawn in the tone that is on.
QIcon lineIcon(const QString& name, const palette::Tone& tone = palette::icon);

/// Gives each button of `screen` the icon that its property `iconName` names, now and whenever the look
/// changes. On a main button of the common look it has the colour of that button's text.
void applyIcons(QWidget& screen, const palette::Tone& tone = palette::icon);

} // namespace forms
