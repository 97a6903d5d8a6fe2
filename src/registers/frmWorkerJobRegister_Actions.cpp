#include "accounts/frmAccountBook.h"
#include "accounts/frmTransiction.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "jobcards/JobLine.h"
#include "jobcards/JobProgress.h"
#include "jobcards/frmEditJOB.h"
#include "masters/ClientFolder.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Numbers.h"
#include "registers/frmWorkerJobRegister.h"
#include "ui/DetailsPanel.h"
#include "ui/ModOtherFUN.h"
#include "ui_frmWorkerJobRegister.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int mostPlaces = 6; // as many as the question shows without scrolling

} // namespace

// Keys of the screen

void frmWorkerJobRegister::Form_KeyPress(int& key)
{
    LineRegister::Form_KeyPress(key);
    if (key != forms::key::CtrlD)
        return;
    key = 0;
    m_details->setOpen(true);
}

void frmWorkerJobRegister::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    switch (key) {
    case forms::key::F1:
        openJobCard();
        break;
    case forms::key::F2:
        openClientAccount();
        break;
    case forms::key::F3:
        openClientFolder();
        break;
    case forms::key::F5:
        takeMoney();
        break;
    case forms::key::F6:
        markCuttingDone();
        break;
    case forms::key::F7:
        markCompleted();
        break;
    case forms::key::F8:
        markDelivered();
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
    forms::ListView::showMenu(*ui->mnuFile, place);
}

// The selected row

/// The number of its card; 0 on the total row.
qint32 frmWorkerJobRegister::selectedJob() const
{
    const RegisterLine* line = selected();
    return line ? line->code.job : 0;
}

bool frmWorkerJobRegister::asked(const QString& question) const { return ShowMsg(question, 2); }

QString frmWorkerJobRegister::askLocation()
{
    return forms::inputBox(this, u"Please specify location!"_s, u"KORVANE"_s, placesUsedLately(mostPlaces));
}

// The state of a line. None of the actions asks what it was before.

void frmWorkerJobRegister::markCuttingDone()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Cutting Done?"_s))
        return;
    changeLine(line, [line] { markCut(line, session.WorkingDate); });
    ui->lvSummary->setFocus();
}

void frmWorkerJobRegister::markCompleted()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Completed?"_s))
        return;
    mark(line, LineState::Completed, askLocation());
}

void frmWorkerJobRegister::markAlteration()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Alteration?"_s))
        return;
    mark(line, LineState::Alteration, askLocation());
}

void frmWorkerJobRegister::markDelivered()
{
    const qint32 line = selectedLine();
    if (line == 0 || !asked(u"Mark Item as Delivered to Client?"_s))
        return;
    mark(line, LineState::Delivered);
}

void frmWorkerJobRegister::mark(qint32 line, LineState state, const QString& location)
{
    changeLine(line, [&] { markState(line, state, session.TodayDate, location); });
    ui->lvSummary->setFocus(); // the keys stay with the list
}

// The whole card

void frmWorkerJobRegister::deliverWholeCard()
{
    const qint32 job = selectedJob();
    if (job == 0 || !asked(u"Job Card as Delivered to Client?"_s))
        return;
    writeDelivered(job);
    refreshAfterMark();
}

void frmWorkerJobRegister::DeliverJobCard()
{
    const qint32 job = selectedJob();
    if (job == 0)
        return;
    writeDelivered(job);
    ExecuteSQL();
}

/// The keys stay with the list.
void frmWorkerJobRegister::refreshAfterMark()
{
    keepPosition();
    conditionStep();
    ui->lvSummary->setFocus();
}

/// Also the lines that are not on the list.
void frmWorkerJobRegister::writeDelivered(qint32 job)
{
    DE.connection().writeBatch([job] { deliverCard(job, session.TodayDate); });
}

// Other screens

void frmWorkerJobRegister::openJobCard()
{
    if (const qint32 job = selectedJob(); job != 0)
        frmEditJOB().ShowEdit(job);
}

/// Of the selected row; empty on the total row.
QString frmWorkerJobRegister::selectedClient() const
{
    const RegisterLine* line = selected();
    return line ? names().account(line->client) : QString();
}

void frmWorkerJobRegister::openClientAccount()
{
    if (const QString client = selectedClient(); !client.isEmpty())
        openOnRow([&client] { frmAccountBook().ShowAccount(client); });
}

/// What the line's client owes, as a receipt.
void frmWorkerJobRegister::takeMoney()
{
    qint16 saved = 0;
    if (const QString client = selectedClient(); !client.isEmpty())
        openOnRow([&] { frmTransiction().ShowReceipt(client, saved); });
}

void frmWorkerJobRegister::openClientFolder()
{
    if (const QString client = selectedClient(); !client.isEmpty())
        openOnRow([&client] { showClientFolder(client); });
}
