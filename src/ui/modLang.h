#pragma once

namespace forms {
class Screen;
}

/// The hook through which screens pass at their load for the translation of a whole screen. Screens are in
/// English in either language, so it leaves them as they are.
inline void SetFormLanguage(forms::Screen&) {}
