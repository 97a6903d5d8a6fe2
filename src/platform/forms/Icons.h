#pragma once

#include <QColor>

class QIcon;
class QPixmap;
class QString;
class QWidget;

namespace forms {

/// One of the drawings of the resources (":/icons/<name>.svg"), `size` pixels of the layout wide and high.
QPixmap picture(const QString& name, int size);

/// One of the line icons of the resources (":/icons/<name>.svg"), its lines drawn in `colour`.
QIcon lineIcon(const QString& name, const QColor& colour);

/// Gives each button of `screen` the icon that its property `iconName` names.
void applyIcons(QWidget& screen, const QColor& colour);

/// Colour of the icons on light and on dark ground.
inline constexpr QColor iconInk{0x33, 0x41, 0x55};
inline constexpr QColor iconLight{0xFF, 0xFF, 0xFF};

} // namespace forms
