#pragma once

#include <QString>

class QApplication;

namespace forms {

/// Gives the program its one look: style, fonts (every font file of `fontFolder`; those missing are no
/// fault), stand-ins for fonts that the machine lacks, and the style sheet of the resources. Call once,
/// before the first screen.
void applyTheme(QApplication& application, const QString& fontFolder);

/// The style sheet with its colour names (lines "@name: value;") put in.
QString expandStyleSheet(const QString& sheet);

} // namespace forms
