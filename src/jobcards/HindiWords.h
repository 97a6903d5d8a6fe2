#pragma once

#include "platform/values/Literals.h"

#include <QString>

/// The Hindi of what stands on the worker's slip, from the word list. Words are looked up in any case and
/// with blanks around them; one without Hindi comes back as it is.

/// The font in which Hindi stands on paper. It comes with the program.
inline const QString hindiPaperFont = u"Lohit Devanagari"_s;

/// Of a caption or a garment.
QString hindiWord(const QString& word);
/// Of the names of a garment's measurements, line by line: some mean another thing on some garments.
QString hindiMeasurements(const QString& names, const QString& garment);
/// Of what was measured or chosen, line by line: "One", "Regular", "Front".
QString hindiValues(const QString& values);
