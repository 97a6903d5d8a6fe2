#include "masters/frmEditWorker.h"

#include "core/DE.h"
#include "ui_frmEditWorker.h"

frmEditWorker::frmEditWorker()
    : EditMaster({.table = QStringLiteral("Accounts"),
                  .nameField = QStringLiteral("Title"),
                  .titleNew = QStringLiteral("Add New Worker"),
                  .titleEdit = QStringLiteral("Edit Worker Information"),
                  .nameMissing = QStringLiteral("Please Enter Worker Name!"),
                  .added = QStringLiteral("New Worker Added."),
                  .edited = QStringLiteral("Worker Information Updated.")},
                 DE.rsaccounts)
    , ui(std::make_unique<Ui::frmEditWorker>())
{
    ui->setupUi(this);
    setControls({ui->lblTitle, ui->txtName, ui->Command1, ui->Command2});
}

frmEditWorker::~frmEditWorker() = default;

void frmEditWorker::clear()
{
    for (swTextBox* box : {ui->txtAddress, ui->txtCity, ui->txtState, ui->txtMobile})
        box->setText({});
}

void frmEditWorker::read(ado::Recordset& row)
{
    ui->txtAddress->setText(row["ADDRESS"].text());
    ui->txtCity->setText(row["CITY"].text());
    ui->txtState->setText(row["STATE"].text());
    ui->txtMobile->setText(row["MOBILE"].text());
}

void frmEditWorker::write(ado::Recordset& row)
{
    row["Type"] = 1;
    row["Address"] = ui->txtAddress->Text();
    row["City"] = ui->txtCity->Text();
    row["State"] = ui->txtState->Text();
    row["Mobile"] = ui->txtMobile->Text();
}

bool frmEditWorker::isInUse(qint16 id)
{
    return hasRows(DE.rsJOBS_DETAIL, QStringLiteral("Select * from JOBS_DETAIL where WorkerID=%1").arg(id)) ||
           hasRows(DE.rspostings, QStringLiteral("Select * from Postings where AccID=%1").arg(id));
}
