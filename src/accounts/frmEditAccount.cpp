#include "accounts/frmEditAccount.h"

#include "core/store/Codes.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "platform/values/Numbers.h"
#include "platform/values/Titles.h"
#include "ui/ModOtherFUN.h"
#include "ui/boxes.h"
#include "ui/modLang.h"
#include "ui_frmEditAccount.h"

using namespace Qt::StringLiterals;

frmEditAccount::frmEditAccount()
    : ui(std::make_unique<Ui::frmEditAccount>())
{
    ui->setupUi(this);
    boxes::writeTitles(*ui->txtName);
    on(ui->Command1, &QPushButton::clicked, &frmEditAccount::save);
    on(ui->Command2, &QPushButton::clicked, &frmEditAccount::remove);
}

frmEditAccount::~frmEditAccount() = default;

void frmEditAccount::ShowAddNew()
{
    AccountID = 0;
    AccountMode = RecordMode::New;
    AccountReadOnly = 0;
    ui->lblTitle->setText(u"Add New Account"_s);
    ui->cmbType->setListIndex(-1);
    showModal();
}

void frmEditAccount::ShowEdit(qint16 id)
{
    AccountID = id;
    AccountMode = RecordMode::Stored;
    ui->lblTitle->setText(u"Edit Account"_s);
    ado::Recordset& accounts = DE.rsaccounts;
    accounts.Open(u"Select * from accounts where id=%1"_s.arg(id));
    AccountTitle = accounts["Title"].text();
    ui->txtName->setText(AccountTitle);
    ui->cmbType->setListIndex(accounts["Nature"].integer());
    AccountReadOnly = values::toInt16(accounts["ReadOnly"].integer(), u"Read-only mark"_s);
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
    ui->txtName->setText(values::title(ui->txtName->Text()));
    if (ui->txtName->Text().isEmpty()) {
        ShowMsg(u"Please enter account title!"_s);
        ui->txtName->setFocus();
        return;
    }
    if (ui->cmbType->text().isEmpty()) {
        ShowMsg(u"Please select account type"_s);
        ui->cmbType->setFocus();
        return;
    }
    if (AccountMode == RecordMode::New)
        saveNew();
    else
        saveEdit();
}

void frmEditAccount::saveNew()
{
    if (isDuplicate())
        return;
    qint16 id = 0;
    DE.connection().writeBatch([&] {
        ado::Recordset& accounts = DE.rsaccounts;
        accounts.Open(u"Select * from accounts order by id"_s);
        accounts.AddNew();
        writeFields();
        id = values::toInt16(accounts["ID"].integer(), u"Account number"_s); // else the row goes again
        accounts.Close();
    });
    session.RefreshLists = true;
    AccountID = id;
    AccountTitle = ui->txtName->Text();
    ShowMsg(u"New Account created."_s);
    AccountMode = RecordMode::Stored;
}

void frmEditAccount::saveEdit()
{
    if (AccountReadOnly == 1) {
        ShowMsg(u"Cant't Rename!"_s);
        return;
    }
    if (values::foldedTitle(AccountTitle) != values::foldedTitle(ui->txtName->Text()) && isDuplicate())
        return;
    DE.connection().writeBatch([&] {
        DE.rsaccounts.Open(u"Select * from accounts where id=%1"_s.arg(AccountID));
        writeFields();
        DE.rsaccounts.Close();
    });
    session.RefreshLists = true;
    AccountTitle = ui->txtName->Text();
    ShowMsg(u"Account information edited."_s);
}

/// Tells the operator when the title is taken, by an account of any type: clients and workers are accounts
/// too.
bool frmEditAccount::isDuplicate()
{
    const QVariant id =
        FieldValueExists(ui->txtName->Text(), u"Title"_s, u"ID"_s, u"Accounts"_s, DE.rsaccounts);
    if (id.toLongLong() <= 0)
        return false;
    ShowMsg(u"Duplicate!"_s);
    ui->txtName->setFocus();
    return true;
}

void frmEditAccount::writeFields()
{
    ado::Recordset& account = DE.rsaccounts;
    account["Title"] = ui->txtName->Text();
    account["Type"] = AccountType::Ledger;
    account["Nature"] = ui->cmbType->ListIndex();
    account.UpdateBatch();
}

void frmEditAccount::remove()
{
    if (AccountReadOnly == 1) {
        ShowMsg(u"Cant't Delete!"_s);
        return;
    }
    if (AccountMode != RecordMode::Stored || !ShowMsg(u"Are you sure?"_s, 2))
        return;
    int postings = 0;
    for (const char* field : {"AccID", "RefID"}) {
        DE.rspostings.Open(u"Select * from Postings where %1=%2"_s.arg(QLatin1String(field)).arg(AccountID));
        postings += DE.rspostings.RecordCount();
        DE.rspostings.Close();
    }
    if (postings > 0) {
        ShowMsg(u"Cant't Delete!"_s);
        return;
    }
    DE.connection().Execute(u"Delete from Accounts where id=%1"_s.arg(AccountID));
    ShowMsg(u"Deleted."_s);
    session.RefreshLists = true;
    unload();
}
