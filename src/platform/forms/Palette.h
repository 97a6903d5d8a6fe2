#pragma once

#include <QRgb>
#include <span>

/// All colours: those of the screens in both looks, from which the style sheet is made too, and those of the
/// papers.
namespace palette {

enum class Look { Light, Dark };

/// The look of the screens; forms::setAppearance changes it.
inline Look look = Look::Light;

/// A colour of the screens. It is read as that of the look which is on, so who paints asks it each time.
struct Tone
{
    const char* name; ///< in the style sheet, behind an @
    QRgb light;
    QRgb dark;

    constexpr QRgb in(Look which) const { return which == Look::Light ? light : dark; }
    operator QRgb() const { return in(look); }
};

// Text, and what it stands on.
inline constexpr Tone ink{"ink", 0xFF1F2933, 0xFFF2F5F7};
inline constexpr Tone quietInk{"quietInk", 0xFF5B6470, 0xFFC3CBD3}; ///< captions, hints
inline constexpr Tone faint{"faint", 0xFF9A948A, 0xFF7C8790};       ///< what cannot be used
inline constexpr Tone headingInk{"headingInk", 0xFF4A5360, 0xFFD5DCE3};
inline constexpr Tone captionInk{"captionInk", 0xFF000000, 0xFFFFFFFF}; ///< of the measurements
inline constexpr Tone icon{"icon", 0xFF334155, 0xFFD5DCE3};
inline constexpr Tone window{"window", 0xFFF6F4EF, 0xFF10151A};
inline constexpr Tone card{"card", 0xFFFFFFFF, 0xFF181F26};   ///< fields, lists, sheets on the window
inline constexpr Tone shade{"shade", 0xFFEFEBE3, 0xFF28313A}; ///< headings, totals, what is only read
inline constexpr Tone offGround{"offGround", 0xFFF1EEE8, 0xFF1C2329};
inline constexpr Tone tipGround{"tipGround", 0xFF1F2933, 0xFFF2F5F7};
inline constexpr Tone tipInk{"tipInk", 0xFFFFFFFF, 0xFF10151A};

// Lines.
inline constexpr Tone border{"border", 0xFF9A948A, 0xFF8C98A4};
inline constexpr Tone line{"line", 0xFFD5CEC1, 0xFF5A6672};
inline constexpr Tone lineSoft{"lineSoft", 0xFFE7E2D8, 0xFF38434D};
inline constexpr Tone rowLine{"rowLine", 0xFFF0ECE4, 0xFF28313A};
inline constexpr Tone thumb{"thumb", 0xFFC9C2B4, 0xFF667380}; ///< of a scroll bar
inline constexpr Tone strong{"strong", 0xFF000000, 0xFFFFFFFF};

// The field that has the focus.
inline constexpr Tone focusGround{"focusGround", 0xFF000000, 0xFFFFE9A8};
inline constexpr Tone focusInk{"focusInk", 0xFFFFFFFF, 0xFF000000};
inline constexpr Tone focusNotice{"focusNotice", 0xFFE0A030, 0xFF8A3A00};
inline constexpr Tone focusReadGround{"focusReadGround", 0xFF303A45, 0xFFE0D3A0}; ///< it is only read
inline constexpr Tone focusChosen{"focusChosen", 0xFF0F766E, 0xFF0B5A54};         ///< behind marked letters
inline constexpr Tone focusChosenInk{"focusChosenInk", 0xFFFFFFFF, 0xFFFFFFFF};

// What is chosen, and main buttons.
inline constexpr Tone accent{"accent", 0xFF0F766E, 0xFF5FD6C8};
inline constexpr Tone onAccent{"onAccent", 0xFFFFFFFF, 0xFF06201D};
inline constexpr Tone accentDeep{"accentDeep", 0xFF0B5A54, 0xFF93EADF};
inline constexpr Tone accentSoft{"accentSoft", 0xFFE1EFED, 0xFF1D3B3A}; ///< below the pointer
inline constexpr Tone accentPale{"accentPale", 0xFFCFE4E1,
                                 0xFF27504D}; ///< chosen in a list without the focus
inline constexpr Tone accentRing{"accentRing", 0xFFBFDAD7, 0xFF2A5B57};
inline constexpr Tone accentOff{"accentOff", 0xFFA9C9C5, 0xFF35514F};
inline constexpr Tone accentLight{"accentLight", 0xFFA9D3CD, 0xFF2F8A80}; ///< beside the accent, on a chart

// What the operator is to notice.
inline constexpr Tone danger{"danger", 0xFFB42318, 0xFFFF9C8F};
inline constexpr Tone dangerSoft{"dangerSoft", 0xFFFBE9E7, 0xFF47211D};
inline constexpr Tone notice{"notice", 0xFF9A3412, 0xFFFFB27A};
inline constexpr Tone early{"early", 0xFF8A4B08, 0xFFFFC56B};
inline constexpr Tone earlyLine{"earlyLine", 0xFFC98A3A, 0xFFC98A3A};
inline constexpr Tone emphasis{"emphasis", 0xFFFF0000, 0xFFFF8A8A}; ///< red, as the total has it
inline constexpr Tone bannerGround{"bannerGround", 0xFF0B5A54, 0xFF0B5A54};
inline constexpr Tone bannerInk{"bannerInk", 0xFFFFFFFF, 0xFFFFFFFF};

// The panel of the main screen, dark in both looks, and the wall beside it.
inline constexpr Tone panel{"panel", 0xFF1F2933, 0xFF080B0E};
inline constexpr Tone panelInk{"panelInk", 0xFFE6E9EC, 0xFFE6E9EC};
inline constexpr Tone panelBright{"panelBright", 0xFFFFFFFF, 0xFFFFFFFF};
inline constexpr Tone panelQuiet{"panelQuiet", 0xFF9FB3B0, 0xFFB9CBC8};
inline constexpr Tone panelNotice{"panelNotice", 0xFFF2B84B, 0xFFF2B84B};
inline constexpr Tone panelFaint{"panelFaint", 0xFF7C8894, 0xFF7C8894};
inline constexpr Tone panelHover{"panelHover", 0xFF2C3945, 0xFF26323D};
inline constexpr Tone panelFocus{"panelFocus", 0xFF4FB3A9, 0xFF5FD6C8};
inline constexpr Tone panelMain{"panelMain", 0xFF0F766E, 0xFF0F766E};
inline constexpr Tone panelMainHover{"panelMainHover", 0xFF117F77, 0xFF117F77};
inline constexpr Tone wallVeil{"wallVeil", 0x00000000, 0xB80C1014}; ///< over the wall that is built in

// Behind and around a sheet of paper that a screen shows.
inline constexpr Tone desk{"desk", 0xFF8C949C, 0xFF2A3138};
inline constexpr Tone shadow{"shadow", 0x3C000000, 0x3C000000};

// Calm colours that tell states apart at a glance, in a ring of their own.
inline constexpr Tone amber{"amber", 0xFFE0A030, 0xFFE0A030};
inline constexpr Tone green{"green", 0xFF2E9E6B, 0xFF2E9E6B};
inline constexpr Tone grey{"grey", 0xFF9AA5B1, 0xFF9AA5B1};
inline constexpr Tone rust{"rust", 0xFFD9704A, 0xFFD9704A};
inline constexpr Tone slate{"slate", 0xFF5B6470, 0xFF5B6470};
inline constexpr Tone ring{"ring", 0xFFFFFFFF, 0xFFFFFFFF};

/// Those that the style sheet may name.
std::span<const Tone* const> tones();

/// What is printed looks the same whichever look the screens have.
namespace onPaper {

inline constexpr QRgb ink = 0xFF1F2933;
inline constexpr QRgb quietInk = 0xFF5B6470;
inline constexpr QRgb hairline = 0xFFBFB9AD;
inline constexpr QRgb shade = 0xFFEFEBE3;
inline constexpr QRgb accent = 0xFF0F766E;
inline constexpr QRgb accentLight = 0xFFA9D3CD;
inline constexpr QRgb sheet = 0xFFFFFFFF;

} // namespace onPaper

} // namespace palette
