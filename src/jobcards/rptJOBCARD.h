#pragma once

#include "platform/report/Report.h"

/// The job card on paper: the shop's heading, the head of the job, a row for each line, and the foot with the
/// money, the signature and the place for the cloth samples. Its source is the head of the job with the lines
/// as its details.
class rptJOBCARD : public report::Report
{
public:
    rptJOBCARD();

    /// Moves the lines of the heading together where some are empty, and the rest of the head up to them.
    /// Call once, when the heading is filled.
    void closeUpHeading();
    /// Puts the code by which the client pays what is due beside the place for the cloth samples, which gets
    /// narrower for it.
    void addPayment(const QString& link);

private:
    void designHead();
    void designLine();
    void designFoot();
};
