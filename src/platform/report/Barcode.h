#pragma once

#include <QRectF>
#include <QString>
#include <vector>

namespace report {

/// The bars of a text in Code 128, from left to right within `place`, in the middle of it, each `module`
/// twips wide or a multiple; where ten modules of white at both sides find no room, the modules get narrower.
/// Empty for an empty text. Throws OperatorError for a text that the code has no bars for.
std::vector<QRectF> barsOf(const QString& text, const QRectF& place, double module);

} // namespace report
