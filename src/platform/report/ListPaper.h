#pragma once

#include "platform/report/Report.h"

#include <functional>

namespace forms {
struct ListSheet;
}

namespace report {

/// Whose list it is, and of which day.
struct ListHeading
{
    QString owner;
    QString day;
    QString text() const; ///< as it stands above a list on paper, at the right
};
/// Nothing until it is set.
ListHeading listHeading();
void setListHeading(std::function<ListHeading()> heading);

/// A list as a paper: title, `heading`, criteria, the columns' titles again on each page, totals, numbered
/// pages. Upright or across, as its columns need. For any thread.
std::unique_ptr<Report> listPaper(const forms::ListSheet& sheet, const ListHeading& heading = listHeading());

} // namespace report
