#pragma once

#include "platform/report/Report.h"

#include <functional>

namespace forms {
struct ListSheet;
}

namespace report {

/// A list as a paper: title, criteria, the columns' titles again on each page, totals, numbered pages.
/// Upright or across, as its columns need.
std::unique_ptr<Report> listPaper(const forms::ListSheet& sheet);

/// What stands above each list on paper, at the right: whose list it is, and of which day. Nothing until it
/// is set.
void setListHeading(std::function<QString()> heading);

} // namespace report
