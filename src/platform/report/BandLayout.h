#pragma once

#include "platform/report/Pages.h"

namespace report {

/// A section with the texts of one row in it, from its own top, in twips.
struct PlacedBand
{
    std::vector<Piece> pieces;
    double height = 0;
};

enum class Part {
    Whole,
    Repeated ///< only the controls that are printed again on each page
};

/// Lays out one section for one row: texts broken into lines, what grows pushing down what stands below it.
PlacedBand layOut(const Section& section, const Row& row, const Report& report, Part part = Part::Whole);

/// The lines into which a text breaks in a control that grows.
QStringList linesOf(const QString& text, const TextControl& control, const Report& report);

} // namespace report
