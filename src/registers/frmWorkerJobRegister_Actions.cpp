#include "core/store/DE.h"
#include "core/store/Session.h"
#include "jobcards/frmEditJOB.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Numbers.h"
#include "registers/frmWorkerJobRegister.h"
#include "ui/ModOtherFUN.h"
#include "ui_frmWorkerJobRegister.h"

using namespace Qt::StringLiterals;

// Keys of the screen

void frmWorkerJobRegister::Form_KeyPress(int& key)
{
    LineRegister::Form_KeyPress(key);
    switch (key) {
    case forms::key::CtrlD:
        showDetails(true);
        break;
    case forms::key::CtrlF:
        Command8_Click();
        break;
    default:
        return;
    }
    key = 0;
}

void frmWorkerJobRegister::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    switch (key) {
    case forms::key::F1:
        mnuOpenJobCard_Click();
        break;
    case forms::key::F6:
        mnuUn_Click();
        break;
    case forms::key::F7:
        mnuCom_Click();
        break;
    case forms::key::F8:
        mnuDel_Click();
        break;
    default:
        return;
    }
    key = 0;
}

void frmWorkerJobRegister::askMenu(int row, const QPoint& place)
{
    if (row < 0 || row >= ui->lvSummary->rowCount() - 1)
        return;
    ui->mnuFile->popup(place);
}

// The selected row

qint32 frmWorkerJobRegister::selectedLine() const
{
    return tagOf(*ui->lvSummary, ui->lvSummary->selectedRow());
}

/// The number before the "/"; 0 on the total row.
qint32 frmWorkerJobRegister::selectedJob() const
{
    return values::CLng(values::Val(ui->lvSummary->cell(ui->lvSummary->selectedRow(), JobColumn)));
}

bool frmWorkerJobRegister::asked(const QString& question) const { return ShowMsg(question, 2); }

QString frmWorkerJobRegister::askLocation()
{
    return forms::inputBox(this, u"Please specify location!"_s, u"KORVANE"_s);
}

// The state of a line. None of the actions asks what it was before.

/// Writes fields of a line and comes back to its row.
void frmWorkerJobRegister::writeLine(qint32 line, const std::function<void(ado::Recordset&)>& write)
{
    ado::Recordset& row = DE.rsJOBS_DETAIL;
    row.Open(u"Select * from jobs_detail where id=%1"_s.arg(line));
    write(row);
    row.Update();
    row.Close();
    keepPosition();
    conditionStep();
}

void frmWorkerJobRegister::mnuUn_Click()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Cutting Done?"_s))
        return;
    writeLine(line, [](ado::Recordset& row) {
        row["CuttingStatus"] = 1;
        row["CuttingDate"] = session.WorkingDate;
    });
}

void frmWorkerJobRegister::mnuCom_Click()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Completed?"_s))
        return;
    const QString location = askLocation();
    writeLine(line, [&location](ado::Recordset& row) {
        row["CompletedDate"] = session.TodayDate;
        row["DoneByWorker"] = 1;
        if (!location.isEmpty())
            row["Loc"] = location;
    });
}

void frmWorkerJobRegister::mnuALt_Click()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Alteration?"_s))
        return;
    const QString location = askLocation();
    writeLine(line, [&location](ado::Recordset& row) {
        if (!location.isEmpty())
            row["Loc"] = location;
        row["AltDate"] = session.TodayDate;
        row["DoneByWorker"] = 3;
    });
}

void frmWorkerJobRegister::mnuDel_Click()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Delivered to Client?"_s))
        return;
    writeLine(line, [](ado::Recordset& row) {
        row["DelToCustDate"] = session.TodayDate;
        row["DoneByWorker"] = 2;
    });
}

// The whole card

void frmWorkerJobRegister::mnuJobFulPay_Click()
{
    const qint32 job = selectedJob();
    if (job == 0 || !asked(u"Job Card as Delivered to Client?"_s))
        return;
    writeDelivered(job);
    keepPosition();
    conditionStep();
}

void frmWorkerJobRegister::DeliverJobCard()
{
    const qint32 job = selectedJob();
    if (job == 0)
        return;
    writeDelivered(job);
    ExecuteSQL();
}

/// Closes the card and delivers each of its lines, whatever the line's state, also those not on the list.
void frmWorkerJobRegister::writeDelivered(qint32 job)
{
    DE.connection().writeBatch([job] {
        ado::Recordset& card = DE.rsJobs2;
        card.Open(u"Select * from Jobs where id=%1"_s.arg(job));
        card["ClientDeliveryDate"] = session.TodayDate;
        card["JOBFINISHED"] = 1;
        card.Update();
        card.Close();
        ado::Recordset& lines = DE.rsJOBS_DETAIL;
        lines.Open(u"Select * from jobs_detail where JobID=%1"_s.arg(job));
        for (lines.MoveFirst(); !lines.AtEOF(); lines.MoveNext()) {
            lines["DelToCustDate"] = session.TodayDate;
            lines["DoneByWorker"] = 2;
        }
        lines.UpdateBatch();
        lines.Close();
    });
}

// Other screens

/// Opens the line in the workshop's screen.
void frmWorkerJobRegister::openLine()
{
    if (const qint32 line = selectedLine(); line != 0)
        openOnRow([line] { frmEditWorkerAssign().ShowEdit(line); });
}

void frmWorkerJobRegister::mnuOpenJobCard_Click()
{
    if (const qint32 job = selectedJob(); job != 0)
        frmEditJOB().ShowEdit(job);
}
