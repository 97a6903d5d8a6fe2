#pragma once

#include "platform/report/Report.h"

namespace forms {
struct ListSheet;
}

namespace report {

/// A list as a paper: title, criteria, the columns' titles again on each page, totals, numbered pages.
/// Upright or across, as its columns need.
std::unique_ptr<Report> listPaper(const forms::ListSheet& sheet);

} // namespace report
