#pragma once

#include "platform/report/Report.h"

/// The slip that goes to the worker with one line of a job: whose it is, what is to be made, by which
/// measurements.
class rptWorkerJobCard : public report::Report
{
public:
    rptWorkerJobCard();

    /// Puts captions, garment and names of measurements in Hindi, as far as it has the words. Call before
    /// setLine.
    void useHindi();
    /// Takes the line as the source. Each measurement's value stands beside its name, also where one of the
    /// two needs more than one line.
    void setLine(report::Row line);

private:
    bool m_hindi = false;
};
