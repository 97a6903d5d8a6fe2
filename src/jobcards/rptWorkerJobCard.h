#pragma once

#include "platform/report/Report.h"

/// The slip that goes to the worker with one line of a job: whose it is, what is to be made, by which
/// measurements. Its source is the line.
class rptWorkerJobCard : public report::Report
{
public:
    rptWorkerJobCard();

    /// Sets the names of the measurements in the type in which a Hindi shop keeps them.
    void useHindiMeasurements();
};
