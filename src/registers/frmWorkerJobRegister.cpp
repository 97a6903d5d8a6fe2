#include "registers/frmWorkerJobRegister.h"

#include "core/store/Codes.h"
#include "core/store/Lookups.h"
#include "jobcards/ItemCounts.h"
#include "planning/frmWorkerReport2.h"
#include "platform/report/ListKeys.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"
#include "registers/JobLines.h"
#include "registers/frmSearchClient.h"
#include "ui/DetailsPanel.h"
#include "ui_frmWorkerJobRegister.h"

using namespace Qt::StringLiterals;

namespace {

const QString blank = u" "_s;

} // namespace

frmWorkerJobRegister::frmWorkerJobRegister()
    : ui(std::make_unique<Ui::frmWorkerJobRegister>())
{
    ui->setupUi(this);
    setCriteria({.list = ui->lvSummary,
                 .period = {ui->DateFrom, ui->DateTo},
                 .jobId = ui->txtSearchID,
                 .worker = ui->cmbClient,
                 .condition = ui->cmbCondition,
                 .view = ui->Command4,
                 .find = ui->Command8,
                 .help = ui->lblHelp,
                 .balances = true});
    // What the shares leave is the balance's. A column never gets too narrow for what it mostly holds.
    ui->lvSummary->setColumns({{u"Date"_s, 10, Qt::AlignLeft, 118},
                               {u"JOB ID"_s, 5, Qt::AlignLeft, 92},
                               {u"Client Name"_s, 12, Qt::AlignLeft, 130},
                               {u"Item Name"_s, 12, Qt::AlignLeft, 110},
                               {u"Remark"_s, 7, Qt::AlignLeft, 80},
                               {u"Del. Date"_s, 10, Qt::AlignLeft, 178},
                               {u"Worker Name"_s, 7, Qt::AlignLeft, 112},
                               {u"Cutting"_s, 7, Qt::AlignLeft, 84},
                               {u"Status"_s, 10, Qt::AlignLeft, 124},
                               {u"Location"_s, 9, Qt::AlignLeft, 84},
                               {u"Balance"_s, forms::ListView::rest, Qt::AlignRight, 112}});
    ui->lvDetails->setColumns({{u"Name of Item"_s, 72}, {u"QNT"_s, 28, Qt::AlignRight}});
    ui->cmbCondition->AddItems({u"*All"_s, u"Completed"_s, u"Uncompleted"_s, u"Delivered"_s, u"Alteration"_s,
                                u"Canceled"_s, u"Assigned"_s, u"Not Assigned"_s, u"Cutting Done"_s,
                                u"Cutting Not Done"_s});
    on(ui->opDt2, &QRadioButton::toggled, [this](bool byDelivery) {
        DateField = byDelivery ? u"JobDelDate"_s : u"Date"_s;
        period().isOf(byDelivery ? Period::Of::PromisedDays : Period::Of::PastDays);
    });
    m_details = new DetailsPanel(ui->picDetails, ui->lvSummary, ui->Command1, ui->Image1);

    on(ui->Command3, &QPushButton::clicked, &frmWorkerJobRegister::showOverview);
    report::ListKeys::addTo(*ui->mnuFile, *ui->lvSummary);
    on(ui->lvSummary, &forms::ListView::menuAsked, &frmWorkerJobRegister::askMenu);
    on(ui->mnuUn, &QAction::triggered, &frmWorkerJobRegister::markCuttingDone);
    on(ui->mnuCom, &QAction::triggered, &frmWorkerJobRegister::markCompleted);
    on(ui->mnuALt, &QAction::triggered, &frmWorkerJobRegister::markAlteration);
    on(ui->mnuDel, &QAction::triggered, &frmWorkerJobRegister::markDelivered);
    on(ui->mnuJobFulPay, &QAction::triggered, &frmWorkerJobRegister::deliverWholeCard);
    on(ui->mnuOpenJobCard, &QAction::triggered, &frmWorkerJobRegister::openJobCard);
    on(ui->openAcc, &QAction::triggered, &frmWorkerJobRegister::openClientAccount);
}

frmWorkerJobRegister::~frmWorkerJobRegister() = default;

// Filling

QString frmWorkerJobRegister::order() const { return u" order by JobID,id,"_s + DateField; }

/// The lines of one worker.
QString frmWorkerJobRegister::workerSearch(const QString& workerId) const
{
    return allLines + u"WorkerID="_s + workerId + u" and "_s + DateField + u"  between "_s +
           period().between() + order();
}

QString frmWorkerJobRegister::searchText() const
{
    if (SearchMode == Search::Worker)
        return workerSearch(QString::number(GetAccountID(ViewedWorker)));
    if (SearchMode == Search::ClientOnAllDays)
        return allLines + u"ClintID=%1  order by "_s.arg(GetAccountID(SearchClient)) + DateField + u" desc"_s;
    return LineRegister::searchText();
}

void frmWorkerJobRegister::ExecuteSQL()
{
    LineRegister::ExecuteSQL();
    fillDetails();
}

/// A mark outside its code has no cell of its own: what follows moves up.
forms::ListView::Row frmWorkerJobRegister::rowOf(const RegisterLine& line, LineNames& names) const
{
    forms::ListView::Row row;
    row.cells << names.date(line.booked) << lineCodeText(line.code) << names.account(line.client)
              << names.item(line.item) << line.remark
              << names.date(line.promised) + " ("_L1 + daysAhead(line.promised) + " D)"_L1
              << names.worker(line.worker);
    row.looks[ClientColumn].toolTip = names.contact(line.client);
    if (line.worker != 0)
        row.looks[WorkerColumn].toolTip = names.contact(line.worker);
    if (const QString cutting = cuttingName(line.cutting); !cutting.isNull())
        row.cells << cutting;
    if (const QString status = statusName(line.state); !status.isNull()) {
        row.looks[int(row.cells.size())].picture = statusDot(line.state);
        row.cells << status;
    }
    row.cells << (line.location.isNull() ? blank : line.location) << names.balance(line.client);
    row.tag = QString::number(line.id);
    return row;
}

/// How many lines of each item the worker, or all, were given on these days.
void frmWorkerJobRegister::fillDetails()
{
    ui->lvDetails->Clear();
    if (SearchMode != Search::Worker && SearchMode != Search::AllWorkers)
        return;
    QString condition = u"date between "_s + period().between();
    if (SearchMode == Search::Worker)
        condition += u" and WorkerID=%1"_s.arg(GetAccountID(ViewedWorker));
    for (const ItemCount& count : countByItem(condition))
        ui->lvDetails->addRow({count.item, QString::number(count.lines)});
}

void frmWorkerJobRegister::applyCondition(const QString& condition)
{
    if (condition == u"Assigned" || condition == u"Not Assigned")
        RemoveUnwanted3(condition);
    else if (condition == u"Cutting Done" || condition == u"Cutting Not Done")
        RemoveUnwanted2(condition);
    else
        RemoveUnwanted(condition);
}

void frmWorkerJobRegister::RemoveUnwanted2(const QString& condition)
{
    const CuttingMark mark = condition == u"Cutting Done" ? CuttingMark::Done : CuttingMark::NotDone;
    keepLines([mark](const RegisterLine& line) { return line.cutting == qint32(mark); });
}

void frmWorkerJobRegister::RemoveUnwanted3(const QString& condition)
{
    const bool assigned = condition == u"Assigned";
    keepLines([assigned](const RegisterLine& line) { return (line.worker != 0) == assigned; });
}

// Criteria

void frmWorkerJobRegister::quickFind()
{
    QString client;
    qint16 allJobs = 0;
    SearchClient2(allJobs, client);
    if (!client.isEmpty())
        showClient(client, allJobs == 1 ? Search::ClientOnAllDays : Search::Client);
}

QString frmWorkerJobRegister::otherDaysHint() const
{
    return u"Ctrl+F with 'Show all jobs' ticked lists those of all days."_s;
}

/// The worker picked from the numbers of lines of all.
void frmWorkerJobRegister::showOverview()
{
    QString worker;
    ShowWorkerOverView(workerSearch(u"%id"_s), worker, u"Lines in every state "_s + daysText());
    if (worker == u"-1000")
        return;
    ui->cmbClient->setText(worker);
    view();
}
