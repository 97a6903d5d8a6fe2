#pragma once

#include <QRgb>

/// The colours that are painted by code, on screens and on paper; those of the controls stand in the style
/// sheet.
namespace palette {

inline constexpr QRgb ink = 0xFF1F2933;      ///< text
inline constexpr QRgb quietInk = 0xFF5B6470; ///< captions
inline constexpr QRgb faint = 0xFF8A847A;    ///< what cannot be used, hints in empty boxes
inline constexpr QRgb border = 0xFF9A948A;
inline constexpr QRgb hairline = 0xFFBFB9AD;
inline constexpr QRgb rowRule = 0xFFF0ECE4; ///< below each row of a list, as in the style sheet
inline constexpr QRgb shade = 0xFFEFEBE3;   ///< behind headings
inline constexpr QRgb window = 0xFFF6F4EF;
inline constexpr QRgb white = 0xFFFFFFFF;
inline constexpr QRgb accent = 0xFF0F766E;      ///< what is selected
inline constexpr QRgb accentLight = 0xFFA9D3CD; ///< beside it, on a chart
inline constexpr QRgb emphasis = 0xFFFF0000;
inline constexpr QRgb notice = 0xFF9A3412; ///< what the operator should know at the moment
inline constexpr QRgb desk = 0xFF8C949C;   ///< behind a sheet of paper
inline constexpr QRgb shadow = 0x3C000000; ///< of a sheet of paper

// Calm colours that tell states apart at a glance.
inline constexpr QRgb amber = 0xFFE0A030;
inline constexpr QRgb green = 0xFF2E9E6B;
inline constexpr QRgb grey = 0xFF9AA5B1;
inline constexpr QRgb rust = 0xFFD9704A;
inline constexpr QRgb slate = quietInk;

} // namespace palette
