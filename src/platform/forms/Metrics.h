#pragma once

#include <QtGlobal>

/// Lengths and type sizes as the screens' designs tell them, brought to today's displays.
namespace forms {

/// Twips (1440 to the inch) in pixels of a 96 dpi display.
constexpr int twips(int length) { return (length + 7) / 15; }

/// The size of the screens' text, of which 1 is the common one; forms::setAppearance changes it. What a
/// length leaves to text grows with it.
inline double textScale = 1;

/// The designs' point sizes were drawn for small displays; type is set this much larger.
inline constexpr double typeScale = 1.3;
inline double points(double designSize) { return designSize * typeScale * textScale; }

} // namespace forms
