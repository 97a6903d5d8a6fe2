#pragma once

#include "platform/forms/Palette.h"
#include "platform/report/Report.h"
#include "platform/values/Literals.h"

/// The hand in which all papers of the shop are set. Lengths are twips.
namespace paper {

/// A caption in the smaller, quieter type.
report::Label& caption(report::Section& section, const QString& name, const QString& text, int left, int top,
                       int width);
/// A field on the same base line as a caption of that top.
report::Field& value(report::Section& section, const QString& name, const QString& dataField, int left,
                     int top, int width, const QString& format = {});
/// The name of the shop, in the middle.
report::Label& company(report::Section& section, int left, int top, int width, double fontSize);
/// A rule across.
report::Shape& rule(report::Section& section, const QString& name, int left, int top, int width,
                    QRgb color = palette::hairline);
/// A shaded bar behind titles.
report::Shape& bar(report::Section& section, const QString& name, int left, int top, int width, int height);
/// The field of a line's row that holds its code.
inline const QString lineCode = u"LineCode"_s;
/// Its bars, for a scanner, at the foot of each page.
void codeFoot(report::Report& paper, int width);
/// At the foot of each page: what the paper is about, the page's number and how many there are.
void numberPages(report::Report& paper, const QString& what);

} // namespace paper
