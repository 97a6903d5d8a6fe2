#pragma once

#include "platform/values/Literals.h"

#include <QString>

/// The font in which Hindi stands on paper. It comes with the program.
inline const QString hindiPaperFont = u"Lohit Devanagari"_s;

/// The Hindi of a word of the worker's slip (a caption, a garment, a measurement), in any case and with blanks
/// around it; one without Hindi comes back as it is.
QString hindiWord(const QString& word);
/// The same of each line of a text.
QString hindiLines(const QString& text);
