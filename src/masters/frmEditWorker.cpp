#include "masters/frmEditWorker.h"

#include "core/store/Codes.h"
#include "core/store/DE.h"
#include "core/store/References.h"
#include "ui_frmEditWorker.h"

using namespace Qt::StringLiterals;

frmEditWorker::frmEditWorker()
    : EditMaster({.table = u"Accounts"_s,
                  .nameField = u"Title"_s,
                  .titleNew = u"Add New Worker"_s,
                  .titleEdit = u"Edit Worker Information"_s,
                  .nameMissing = u"Please Enter Worker Name!"_s,
                  .added = u"New Worker Added."_s,
                  .edited = u"Worker Information Updated."_s},
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
    row["Type"] = AccountType::Worker;
    row["Address"] = ui->txtAddress->Text();
    row["City"] = ui->txtCity->Text();
    row["State"] = ui->txtState->Text();
    row["Mobile"] = ui->txtMobile->Text();
}

bool frmEditWorker::isInUse(qint16 id) { return isWorkerInUse(id); }
