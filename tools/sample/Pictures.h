#pragma once

#include "sample/Cards.h"

#include <QString>

/// Small pictures, drawn: nothing is copied from anywhere.
namespace sample {

/// A piece of the line's cloth, and a sketch of the garment in it.
void drawSwatch(const Line& line, const QString& path);
void drawSketch(const Line& line, const QString& path);

/// The shop's emblem: a spool with its needle.
void drawLogo(const QString& path);

} // namespace sample
