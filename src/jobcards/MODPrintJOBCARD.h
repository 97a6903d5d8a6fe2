#pragma once

#include <QtGlobal>
#include <memory>

namespace report {
class Report;
}

/// The paper of a job. Everything here throws ado::DatabaseError for a job or a line that is gone, and
/// OperatorError where the paper can't be made.

/// The job card that the client takes home. Setting 15 chooses: "1" shows it as a preview, "0" prints it at
/// once; with any other value nothing comes.
void PrintJobCard(qint32 JobID);
/// The slip that goes to the worker with one line of a job, as a preview.
void PrintWorkerSlip(qint32 LineID);
/// The label that goes with the garment of a line, as a preview.
void PrintLabel(qint32 LineID);

/// The papers by themselves, filled and ready for the preview or the printer.
std::unique_ptr<report::Report> JobCardPaper(qint32 JobID);
std::unique_ptr<report::Report> WorkerSlipPaper(qint32 LineID);
std::unique_ptr<report::Report> LabelPaper(qint32 LineID);
