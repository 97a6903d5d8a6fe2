#pragma once

#include "platform/report/Report.h"

/// The label that is pinned to the garment of one line, 100 x 60 mm. Its source is the line; a long remark
/// goes on to further labels.
class rptLabel : public report::Report
{
public:
    rptLabel();
};
