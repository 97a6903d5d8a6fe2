#include "registers/frmDeliveryRegister.h"

#include "core/store/Codes.h"
#include "core/store/Session.h"
#include "registers/JobLines.h"
#include "registers/frmSearchClient.h"
#include "ui/frmSelectDate.h"
#include "ui_frmDeliveryRegister.h"

using namespace Qt::StringLiterals;

frmDeliveryRegister::frmDeliveryRegister()
    : ui(std::make_unique<Ui::frmDeliveryRegister>())
{
    ui->setupUi(this);
    setCriteria({.list = ui->lvSummary,
                 .period = {ui->DateFrom, ui->DateTo, Period::Of::PromisedDays},
                 .jobId = ui->txtSearchID,
                 .worker = ui->cmbClient,
                 .condition = ui->cmbCondition,
                 .view = ui->Command4,
                 .find = ui->Command8,
                 .help = ui->lblHelp});
    DateField = u"JobDelDate"_s;
    ui->lvSummary->setColumns({{u"Del. Date"_s, 11, Qt::AlignLeft, 118},
                               {u"Date"_s, 11, Qt::AlignLeft, 118},
                               {u"Days"_s, 11, Qt::AlignLeft, 128},
                               {u"JOB ID"_s, 7, Qt::AlignLeft, 92},
                               {u"Client Name"_s, 15, Qt::AlignLeft, 126},
                               {u"Item Name"_s, 13, Qt::AlignLeft, 106},
                               {u"Remark"_s, 11, Qt::AlignLeft, 76},
                               {u"Worker Name"_s, 11, Qt::AlignLeft, 108},
                               {u"Status"_s, forms::ListView::rest, Qt::AlignLeft, 112}});
    ui->cmbCondition->AddItems({u"All"_s, u"Completed"_s, u"Uncompleted"_s, u"Delivered"_s, u"Alteration"_s});
    onLostFocus(ui->cmbCondition, [this] {
        keepPosition();
        conditionStep();
    });
}

frmDeliveryRegister::~frmDeliveryRegister() = default;

void frmDeliveryRegister::Form_Activate()
{
    ui->lblCurrentDate->setText(u"Current Date : "_s + dateText(session.WorkingDate));
    LineRegister::Form_Activate();
}

QString frmDeliveryRegister::order() const { return u" order by JobDelDate,id"_s; }

forms::ListView::Row frmDeliveryRegister::rowOf(const RegisterLine& line, LineNames& names) const
{
    forms::ListView::Row row;
    row.cells << names.date(line.promised) << names.date(line.booked) << daysAhead(line.promised) + " Days"_L1
              << lineCodeText(line.code) << names.account(line.client) << names.item(line.item) << line.remark
              << names.worker(line.worker);
    if (!line.isIn(LineState::Canceled)) { // a canceled line is nobody's to deliver
        row.cells << statusName(line.state);
        row.looks[StatusColumn].picture = statusDot(line.state);
    }
    row.tag = QString::number(line.id);
    return row;
}

void frmDeliveryRegister::Form_KeyPress(int& key)
{
    LineRegister::Form_KeyPress(key);
    if (key != forms::key::CtrlD && key != forms::key::CtrlE)
        return;
    chooseDays(key == forms::key::CtrlD ? frmSelectDate::SingleDate : frmSelectDate::Range);
    key = 0;
}

void frmDeliveryRegister::chooseDays(int mode)
{
    QDate from = period().from();
    QDate to = period().to();
    frmSelectDate().SelectDate(from, to, mode);
    period().set(from, to);
    ExecuteSQL();
    enterList();
}

/// The client found stands in the worker's box until another view.
void frmDeliveryRegister::quickFind()
{
    QString client;
    ::SearchClient(client);
    if (client.isEmpty())
        return;
    ui->cmbClient->setText(client);
    showClient(client, Search::Client);
}

QString frmDeliveryRegister::otherDaysHint() const { return u"Ctrl+E chooses other days."_s; }
