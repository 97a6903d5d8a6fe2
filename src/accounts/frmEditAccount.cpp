#include "accounts/frmEditAccount.h"

#include "accounts/LedgerAccount.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
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
    const LedgerAccount account = LedgerAccount::read(id);
    AccountID = id;
    AccountMode = RecordMode::Stored;
    AccountTitle = account.title;
    AccountReadOnly = account.isFixed ? 1 : 0;
    ui->lblTitle->setText(u"Edit Account"_s);
    ui->txtName->setText(account.title);
    ui->cmbType->setListIndex(account.nature);
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
    const bool isNew = AccountMode == RecordMode::New;
    if (AccountReadOnly == 1) {
        ShowMsg(u"Cant't Rename!"_s);
        return;
    }
    const bool renamed = values::foldedTitle(AccountTitle) != values::foldedTitle(ui->txtName->Text());
    if ((isNew || renamed) && isDuplicate())
        return;
    LedgerAccount account{.id = AccountID, .title = ui->txtName->Text(), .nature = ui->cmbType->ListIndex()};
    account.save();
    AccountID = account.id;
    AccountMode = RecordMode::Stored;
    AccountTitle = account.title;
    session.RefreshLists = true;
    ShowMsg(isNew ? u"New Account created."_s : u"Account information edited."_s);
}

/// Tells the operator when the title is taken, by an account of any type: clients and workers are accounts
/// too.
bool frmEditAccount::isDuplicate()
{
    if (idOfAccount(ui->txtName->Text()) == 0)
        return false;
    ShowMsg(u"Duplicate!"_s);
    ui->txtName->setFocus();
    return true;
}

void frmEditAccount::remove()
{
    if (AccountReadOnly == 1) {
        ShowMsg(u"Cant't Delete!"_s);
        return;
    }
    if (AccountMode != RecordMode::Stored || !ShowMsg(u"Are you sure?"_s, 2))
        return;
    const LedgerAccount account{.id = AccountID, .title = AccountTitle};
    if (account.isInUse()) {
        ShowMsg(u"Cant't Delete!"_s);
        return;
    }
    account.remove();
    ShowMsg(u"Deleted."_s);
    session.RefreshLists = true;
    unload();
}
