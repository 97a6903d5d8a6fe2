#include "accounts/frmPayrollDetails.h"

#include "core/store/Session.h"
#include "ui/modLang.h"
#include "ui_frmPayrollDetails.h"

frmPayrollDetails::frmPayrollDetails()
    : ui(std::make_unique<Ui::frmPayrollDetails>())
{
    ui->setupUi(this);
    on(ui->Command3, &QPushButton::clicked, [this] { ui->lvSummary->print(PayrollAccount); });
}

frmPayrollDetails::~frmPayrollDetails() = default;

void frmPayrollDetails::Form_Load()
{
    SetFormLanguage(*this);
    useScreenHeight();
    session.RefreshLists = true;
    ui->lvSummary->setFocus();
}

void frmPayrollDetails::ExecuteSQL(const QString& accountTitle, qint32 vid)
{
    load();
    PayrollAccount = accountTitle;
    ui->lvSummary->setLines(wages::read(wages::linesOfPayroll(vid)));
    ui->lvSummary->selectRow(0);
    ui->lblTotal->setText(ui->lvSummary->total());
    session.RefreshLists = false;
    showModal();
}
