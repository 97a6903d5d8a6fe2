#pragma once

#include "platform/report/Report.h"
#include "platform/values/Literals.h"

namespace paper {

/// The field of a line's row that holds its code.
inline const QString lineCode = u"LineCode"_s;

/// The bars of a line's code, for a scanner, at the foot of each page. The width is in twips.
void codeFoot(report::Report& paper, int width);

} // namespace paper
