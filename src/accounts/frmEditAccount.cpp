#include "accounts/frmEditAccount.h"

#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Session.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmEditAccount.h"

frmEditAccount::frmEditAccount()
    : ui(std::make_unique<Ui::frmEditAccount>())
{
    ui->setupUi(this);
    on(ui->Command1, &QPushButton::clicked, &frmEditAccount::save);
    on(ui->Command2, &QPushButton::clicked, &frmEditAccount::remove);
}

frmEditAccount::~frmEditAccount() = default;

void frmEditAccount::ShowAddNew()
{
    AccountID = 0;
    AccountMode = QStringLiteral("N");
    AccountReadOnly = 0;
    ui->lblTitle->setText(QStringLiteral("Add New Account"));
    ui->cmbType->setListIndex(-1);
    showModal();
}

void frmEditAccount::ShowEdit(qint16 id)
{
    AccountID = id;
    AccountMode = QStringLiteral("E");
    ui->lblTitle->setText(QStringLiteral("Edit Account"));
    ado::Recordset& accounts = DE.rsaccounts;
    accounts.Open(QStringLiteral("Select * from accounts where id=%1").arg(id));
    AccountTitle = accounts["Title"].text();
    ui->txtName->setText(AccountTitle);
    ui->cmbType->setListIndex(accounts["Nature"].integer());
    AccountReadOnly = values::toInt16(accounts["ReadOnly"].integer());
    accounts.Close();
    showModal();
}

void frmEditAccount::Form_Load() { SetFormLanguage(*this); }

void frmEditAccount::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    key = EnterAsTab(key);
}

void frmEditAccount::save()
{
    if (ui->txtName->Text().isEmpty()) {
        ShowMsg(QStringLiteral("Please enter account title!"));
        ui->txtName->setFocus();
        return;
    }
    if (ui->cmbType->text().isEmpty()) {
        ShowMsg(QStringLiteral("Please select account type"));
        ui->cmbType->setFocus();
        return;
    }
    if (AccountMode == QLatin1String("N"))
        saveNew();
    else
        saveEdit();
}

void frmEditAccount::saveNew()
{
    if (isDuplicate())
        return;
    qint32 id = 0;
    DE.connection().writeBatch([&] {
        ado::Recordset& accounts = DE.rsaccounts;
        accounts.Open(QStringLiteral("Select * from accounts order by id"));
        accounts.AddNew();
        writeFields();
        id = accounts["ID"].integer();
        accounts.Close();
    });
    session.RefreshLists = true;
    AccountID = values::toInt16(id);
    AccountTitle = ui->txtName->Text();
    ShowMsg(QStringLiteral("New Account created."));
    AccountMode = QStringLiteral("E");
}

void frmEditAccount::saveEdit()
{
    if (AccountReadOnly == 1) {
        ShowMsg(QStringLiteral("Cant't Rename!"));
        return;
    }
    if (AccountTitle.toUpper() != ui->txtName->Text().toUpper() && isDuplicate())
        return;
    DE.connection().writeBatch([&] {
        DE.rsaccounts.Open(QStringLiteral("Select * from accounts where id=%1").arg(AccountID));
        writeFields();
        DE.rsaccounts.Close();
    });
    session.RefreshLists = true;
    AccountTitle = ui->txtName->Text();
    ShowMsg(QStringLiteral("Account information edited."));
}

/// Tells the operator when the title is taken, by an account of any type: clients and workers are accounts
/// too.
bool frmEditAccount::isDuplicate()
{
    const QVariant id = FieldValueExists(ui->txtName->Text(), QStringLiteral("Title"), QStringLiteral("ID"),
                                         QStringLiteral("Accounts"), DE.rsaccounts);
    if (id.toLongLong() <= 0)
        return false;
    ShowMsg(QStringLiteral("Duplicate!"));
    ui->txtName->setFocus();
    return true;
}

void frmEditAccount::writeFields()
{
    ado::Recordset& account = DE.rsaccounts;
    account["Title"] = ui->txtName->Text();
    account["Type"] = 2;
    account["Nature"] = ui->cmbType->ListIndex();
    account.UpdateBatch();
}

void frmEditAccount::remove()
{
    if (AccountReadOnly == 1) {
        ShowMsg(QStringLiteral("Cant't Delete!"));
        return;
    }
    if (AccountMode != QLatin1String("E") || !ShowMsg(QStringLiteral("Are you sure?"), 2))
        return;
    int postings = 0;
    for (const char* field : {"AccID", "RefID"}) {
        DE.rspostings.Open(
            QStringLiteral("Select * from Postings where %1=%2").arg(QLatin1String(field)).arg(AccountID));
        postings += DE.rspostings.RecordCount();
        DE.rspostings.Close();
    }
    if (postings > 0) {
        ShowMsg(QStringLiteral("Cant't Delete!"));
        return;
    }
    DE.connection().Execute(QStringLiteral("Delete from Accounts where id=%1").arg(AccountID));
    ShowMsg(QStringLiteral("Deleted."));
    session.RefreshLists = true;
    unload();
}
