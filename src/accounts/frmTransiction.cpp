#include "accounts/frmTransiction.h"

#include "accounts/Payroll.h"
#include "accounts/frmPayrollDetails.h"
#include "accounts/rptReceipt.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/SerialNumber.h"
#include "core/store/Session.h"
#include "core/store/Voucher.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmTransiction.h"

using namespace Qt::StringLiterals;

namespace {

/// The words on the screen for one kind of voucher: which side each account is on.
struct Sides
{
    const char* particulars;
    const char* main;
    const char* mainType;
    const char* ref;
    const char* refType;
};

constexpr Sides allSides[] = {
    {"Payment", "By", "Dr", "To", "Cr"}, {"Purchase", "To", "Cr", "By", "Dr"},
    {"Receipt", "To", "Cr", "By", "Dr"}, {"Sales", "By", "Dr", "To", "Cr"},
    {"Wages", "To", "Cr", "By", "Dr"},
};

} // namespace

frmTransiction::frmTransiction()
    : ui(std::make_unique<Ui::frmTransiction>())
{
    ui->setupUi(this);
    for (const Sides& sides : allSides)
        ui->cmbParticulars->AddItem(QLatin1String(sides.particulars));

    onKeyPress(ui->VcDate, [](int& key) { key = EnterAsTab(key); });
    for (forms::ComboBox* combo : {ui->cmbParticulars, ui->cmbRefAcc}) {
        onGotFocus(combo, [combo] {
            ComboSyncIndex(*combo);
            ComboDropDown(*combo);
        });
        onKeyPress(combo, [combo](int& key) { key = EnterAsTab(AutoSearchCombo(*combo, key)); });
    }
    onLostFocus(ui->cmbParticulars, [this] { applyLabels(); });
    ui->txtRemark->setNextOnSecondEnter(ui->Command1);
    on(ui->txtAmount, &swTextBox::Change, &frmTransiction::mirrorAmount);
    on(ui->txtAmount2, &swTextBox::Change, &frmTransiction::mirrorAmount);

    on(ui->Command1, &QPushButton::clicked, &frmTransiction::save);
    on(ui->Command2, &QPushButton::clicked, &frmTransiction::remove);
    on(ui->Command3, &QPushButton::clicked, [this] { unload(); });
    on(ui->Command4, &QPushButton::clicked,
       [this] { frmPayrollDetails().ExecuteSQL(ui->cmbAccount->text(), EntryID); });
    on(ui->cmdReceipt, &QPushButton::clicked, &frmTransiction::printReceipt);
}

frmTransiction::~frmTransiction() = default;

void frmTransiction::ShowAddNew(const QString& accountTitle, qint16& saved)
{
    startNew(accountTitle);
    open(RecordMode::New, u"Add New Entry"_s);
    saved = EntrySaved;
}

void frmTransiction::ShowReceipt(const QString& accountTitle, qint16& saved)
{
    startNew(accountTitle);
    ui->cmbParticulars->setText(u"Receipt"_s);
    applyLabels();
    ui->cmbRefAcc->setText(cashAccount);
    const double balance =
        GetBalance(values::toInt16(idOfAccount(accountTitle), u"Account number"_s), session.WorkingDate);
    ui->txtAmount->setText(values::formatMoneyText(QString::number(std::max(0.0, -balance), 'f', 2)));
    mirrorAmount();
    ui->txtAmount->setFocus();
    open(RecordMode::New, u"Add New Entry"_s);
    saved = EntrySaved;
}

void frmTransiction::startNew(const QString& accountTitle)
{
    EntrySaved = 0;
    fillAccounts();
    qint32 number = 0;
    GetNewNum(number);
    ui->txtVID->setText(QString::number(number));
    EntryAccount = accountTitle;
    EntryIsPayroll = 0;
    ui->VcDate->setValue(session.WorkingDate);
}

void frmTransiction::ShowEdit(qint32 vid, qint16& saved, qint32 posting)
{
    EntrySaved = 0;
    fillAccounts();
    EntryID = vid;
    m_rows = Voucher(VoucherType::Entry, vid).Pair(posting);

    const StoredPair entry = Voucher::Read(m_rows);
    ui->txtVID->setText(QString::number(vid));
    EntryAccount = GetAccountTitle(entry.pair.account);
    ui->cmbRefAcc->setText(GetAccountTitle(entry.pair.opposite));
    ui->cmbParticulars->setText(entry.pair.particulars);
    ui->VcDate->setValue(entry.pair.date);
    ui->txtRemark->setText(entry.pair.remark);

    const Currency amount = entry.pair.amount;
    const bool credit = amount > Currency();
    ui->lblMain->setText(credit ? u"To"_s : u"By"_s);
    ui->lblMainType->setText(credit ? u"Cr"_s : u"Dr"_s);
    ui->lblRef->setText(credit ? u"By"_s : u"To"_s);
    ui->lblRefType->setText(u"Cr"_s); // on either side, until the labels are next applied
    ui->txtAmount->setText((credit ? amount : -amount).toString());
    mirrorAmount();

    EntryIsPayroll = entry.payroll ? -1 : 0;
    open(RecordMode::Stored, u"Edit Entry"_s);
    saved = EntrySaved;
}

void frmTransiction::open(RecordMode mode, const QString& title)
{
    EntryMode = mode;
    setWindowTitle(title);
    ui->lblTitle->setText(title);
    ui->cmbAccount->setText(EntryAccount);
    ui->Command4->setVisible(EntryIsPayroll != 0);
    showModal();
}

void frmTransiction::fillAccounts()
{
    FillList(u"Title"_s, u"Accounts"_s, QString(), *ui->cmbRefAcc, DE.rsaccounts);
    ui->cmbAccount->Clear();
    ui->cmbAccount->AddItems(ui->cmbRefAcc->texts());
}

void frmTransiction::GetNewNum(qint32& n) { n = Voucher::NextEntryNumber(); }

void frmTransiction::Form_Load() { SetFormLanguage(*this); }

void frmTransiction::mirrorAmount()
{
    ui->txtAmount2->setText(values::formatMoneyText(ui->txtAmount->Text()));
}

void frmTransiction::applyLabels()
{
    for (const Sides& sides : allSides) {
        if (ui->cmbParticulars->text() != QLatin1String(sides.particulars))
            continue;
        ui->lblMain->setText(QLatin1String(sides.main));
        ui->lblMainType->setText(QLatin1String(sides.mainType));
        ui->lblRef->setText(QLatin1String(sides.ref));
        ui->lblRefType->setText(QLatin1String(sides.refType));
    }
}

void frmTransiction::save()
{
    if (ComboFindIndex(*ui->cmbParticulars) < 0) {
        ShowMsg(u"Please select voucher!"_s);
        ui->cmbParticulars->setFocus();
        return;
    }
    if (ComboFindIndex(*ui->cmbRefAcc) < 0) {
        ShowMsg(u"Please Select Account!"_s);
        ui->cmbRefAcc->setFocus();
        return;
    }
    if (values::Val(ui->txtAmount->Text()) == 0.0) {
        ShowMsg(u"Please enter amount!"_s);
        ui->txtAmount->setFocus();
        return;
    }
    if (EntryAccount == ui->cmbRefAcc->text()) {
        ShowMsg(u"Please Check accounts!"_s);
        return;
    }
    applyLabels();
    if (EntryMode == RecordMode::New) {
        if (!settleNumber())
            return;
        SaveNew();
        ShowMsg(u"New Entry saved."_s);
    } else {
        SaveEdit();
        ShowMsg(u"Entry Updated."_s);
    }
    session.RefreshLists = true;
    EntrySaved = -1;
}

/// A number that is stored already may be used once more, but never unnoticed. False: the operator goes back
/// to the voucher.
bool frmTransiction::settleNumber()
{
    const std::optional<qint32> typed = readSerialNumber(ui->txtVID->Text());
    const QString there = typed ? Voucher(VoucherType::Entry, *typed).description() : QString();
    if (there.isEmpty())
        return true;
    const QString next = QString::number(Voucher::NextEntryNumber());
    const std::optional<bool> useNext = forms::askPlainOrCancel(
        this,
        u"Voucher %1 is there already: %2. Use the next free number %3?\n\nNo saves this one as another "
        "voucher of number %1."_s.arg(QString::number(*typed), there, next));
    if (!useNext)
        ui->txtVID->setFocus();
    else if (*useNext)
        ui->txtVID->setText(next);
    return useNext.has_value();
}

/// What the two lines of the voucher on the screen hold; line 1 is the main account's.
PostingPair frmTransiction::pair() const
{
    const Currency amount = Currency::fromDouble(values::Val(ui->txtAmount->Text()), u"Amount"_s);
    return {.particulars = ui->cmbParticulars->text(),
            .date = ui->VcDate->value(),
            .account = idOfAccount(EntryAccount),
            .opposite = GetAccountID(ui->cmbRefAcc->text()),
            .amount = ui->lblMainType->text() == "Cr"_L1 ? amount : -amount,
            .remark = ui->txtRemark->Text()};
}

void frmTransiction::SaveNew()
{
    const auto number = readSerialNumber(ui->txtVID->Text());
    if (!number) {
        ui->txtVID->setFocus();
        throw serialNumberRefused(u"Voucher #"_s);
    }
    const PostingPair entry = pair();
    EntryID = *number;
    DE.connection().writeBatch([&] { m_rows = Voucher(VoucherType::Entry, EntryID).AddPair(entry); });
    EntryMode = RecordMode::Stored;
    setWindowTitle(u"Edit Entry"_s);
    ui->lblTitle->setText(windowTitle());
}

void frmTransiction::SaveEdit()
{
    const PostingPair entry = pair();
    DE.connection().writeBatch([&] { Voucher(VoucherType::Entry, EntryID).ChangePair(m_rows, entry); });
}

void frmTransiction::remove()
{
    if (EntryMode != RecordMode::Stored || !ShowMsg(u"Are you sure to delete entry?"_s, 2))
        return;
    if (EntryIsPayroll != 0 &&
        !ShowMsg(u"You are going to delete a payroll?\r\nThis action will reset all jobs as unpaid?\r\n"
                 "Press Yes to Delete!"_s,
                 2))
        return;
    DE.connection().writeBatch([&] {
        if (EntryIsPayroll != 0)
            payroll::Release(EntryID);
        Voucher(VoucherType::Entry, EntryID).Delete(m_rows);
    });
    session.RefreshLists = true;
    EntrySaved = -1;
    unload();
}

/// What is printed is what is stored, never what only stands on the screen.
void frmTransiction::printReceipt()
{
    if (EntryMode == RecordMode::Stored)
        applyLabels();
    if (EntryMode != RecordMode::Stored || Voucher::Read(m_rows).pair != pair())
        forms::plainMessage(this, u"Save the voucher first, then print its receipt."_s);
    else
        PrintReceipt(m_rows.first);
}
