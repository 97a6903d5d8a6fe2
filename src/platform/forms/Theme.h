#pragma once

#include "platform/forms/Palette.h"

#include <QString>

class QApplication;

namespace forms {

/// How the screens look: light or dark, and the size of their text in per cent.
struct Appearance
{
    palette::Look look = palette::Look::Light;
    int textSize = 100;

    bool operator==(const Appearance&) const = default;
};

/// Gives the program its look: style, fonts (every font file of `fontFolder`; those missing are no
/// fault), stand-ins for fonts that the machine lacks, and the style sheet of the resources, light and at 100
/// %. Call once, before the first screen.
void applyTheme(QApplication& application, const QString& fontFolder);

/// Changes how all screens look, open ones too, at once: what is typed, chosen or has the focus stays so. For
/// the appearance that is on it does nothing.
void setAppearance(const Appearance& wanted);
const Appearance& appearance();

/// The style sheet with the look's colours (@ink) and drawings put in, and its sizes of type at `textSize`
/// per cent.
QString expandStyleSheet(const QString& sheet, const Appearance& appearance);

/// What the name of a drawing that stands on `ground` ends in: "-light" on a dark one, else nothing.
QString artOn(const palette::Tone& ground);

} // namespace forms
