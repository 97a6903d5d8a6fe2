#include "accounts/frmTransiction.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
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

/// The id of a main account; 0 for one that has been deleted meanwhile.
qint32 mainAccountID(const QString& title)
{
    const QVariant id = FieldValueExists(title, u"Title"_s, u"ID"_s, u"Accounts"_s, DE.rsaccounts);
    return id.toLongLong() > 0 ? GetAccountID(title) : 0;
}

/// Takes the first entry of the list that begins with the combo's text; false when there is none.
bool takeEntry(forms::ComboBox& combo)
{
    if (ComboFindIndex(combo) < 0)
        return false;
    ComboSyncIndex(combo);
    return true;
}

} // namespace

/// What the two lines of the voucher on the screen hold.
struct frmTransiction::Pair
{
    qint32 mainID = 0;
    qint32 refID = 0;
    Currency mainAmount;
};

frmTransiction::frmTransiction()
    : ui(std::make_unique<Ui::frmTransiction>())
{
    ui->setupUi(this);
    for (const Sides& sides : allSides)
        ui->cmbParticulars->AddItem(QLatin1String(sides.particulars));

    onKeyPress(ui->VcDate, [](int& key) { key = EnterAsTab(key); });
    for (forms::ComboBox* combo : {ui->cmbParticulars, ui->cmbRefAcc}) {
        onGotFocus(combo, [combo] {
            takeEntry(*combo);
            ComboDropDown(*combo);
        });
        onKeyPress(combo, [combo](int& key) { key = EnterAsTab(AutoSearchCombo(*combo, key)); });
    }
    onLostFocus(ui->cmbParticulars, [this] { applyLabels(); });
    on(ui->txtAmount, &swTextBox::Change, &frmTransiction::mirrorAmount);
    on(ui->txtAmount2, &swTextBox::Change, &frmTransiction::mirrorAmount);

    on(ui->Command1, &QPushButton::clicked, &frmTransiction::save);
    on(ui->Command2, &QPushButton::clicked, &frmTransiction::remove);
    on(ui->Command3, &QPushButton::clicked, [this] { unload(); });
}

frmTransiction::~frmTransiction() = default;

void frmTransiction::ShowAddNew(const QString& accountTitle, qint16& saved)
{
    EntrySaved = 0;
    fillAccounts();
    qint32 number = 0;
    GetNewNum(number);
    ui->txtVID->setText(QString::number(number));
    EntryAccount = accountTitle;
    EntryIsPayroll = 0;
    ui->VcDate->setValue(session.WorkingDate);
    open(u"N"_s, u"Add New Entry"_s);
    saved = EntrySaved;
}

void frmTransiction::ShowEdit(qint32 vid, qint16& saved)
{
    EntrySaved = 0;
    fillAccounts();
    EntryID = vid;

    ado::Recordset& line = DE.rspostings;
    line.Open(u"Select * from Postings where vid=%1 and vtype=2 and sr=1"_s.arg(vid));
    ui->txtVID->setText(QString::number(vid));
    EntryAccount = GetAccountTitle(line["accID"].integer());
    ui->cmbRefAcc->setText(GetAccountTitle(line["refID"].integer()));
    ui->cmbParticulars->setText(line["particulars"].text());
    ui->VcDate->setValue(line["Date"].date());
    ui->txtRemark->setText(line["Remark"].text());

    const Currency amount = line["Amount"].money();
    const bool credit = amount > Currency();
    ui->lblMain->setText(credit ? u"To"_s : u"By"_s);
    ui->lblMainType->setText(credit ? u"Cr"_s : u"Dr"_s);
    ui->lblRef->setText(credit ? u"By"_s : u"To"_s);
    ui->lblRefType->setText(u"Cr"_s); // on either side, until the labels are next applied
    ui->txtAmount->setText((credit ? amount : -amount).toString());
    mirrorAmount();

    EntryIsPayroll = line["isPayroll"].integer() > 0 ? -1 : 0;
    line.Close();
    open(u"E"_s, u"Edit Entry"_s);
    saved = EntrySaved;
}

void frmTransiction::open(const QString& mode, const QString& title)
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
    for (forms::ComboBox* combo : {ui->cmbRefAcc, ui->cmbAccount})
        FillList(u"Title"_s, u"Accounts"_s, QString(), *combo, DE.rsaccounts);
}

void frmTransiction::GetNewNum(qint32& n)
{
    ado::Recordset& vouchers = DE.rspostings;
    vouchers.Open(u"Select * from Postings where vtype=2 and sr=1 order by vID"_s);
    qint32 last = 0;
    if (vouchers.RecordCount() >= 1) {
        vouchers.MoveLast();
        last = vouchers["vid"].integer();
    }
    vouchers.Close();
    n = values::toInt32(qint64(last) + 1);
}

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
    if (!takeEntry(*ui->cmbParticulars)) {
        ShowMsg(u"Please select voucher!"_s);
        ui->cmbParticulars->setFocus();
        return;
    }
    if (!takeEntry(*ui->cmbRefAcc)) {
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
    if (EntryMode == "N"_L1) {
        SaveNew();
        ShowMsg(u"New Entry saved."_s);
    } else {
        SaveEdit();
        ShowMsg(u"Entry Updated."_s);
    }
    session.RefreshLists = true;
    EntrySaved = -1;
}

frmTransiction::Pair frmTransiction::pair() const
{
    Pair pair;
    const Currency amount = Currency::fromDouble(values::Val(ui->txtAmount->Text()));
    pair.mainAmount = ui->lblMainType->text() == "Cr"_L1 ? amount : -amount;
    pair.mainID = mainAccountID(EntryAccount);
    pair.refID = GetAccountID(ui->cmbRefAcc->text());
    return pair;
}

/// Sets the fields that a new and a changed line share on the current row; line 1 is the main account's.
void frmTransiction::writeLine(int line, const Pair& pair)
{
    ado::Recordset& row = DE.rspostings;
    const bool main = line == 1;
    row["particulars"] = ui->cmbParticulars->text();
    row["Date"] = ui->VcDate->value();
    row["accID"] = main ? pair.mainID : pair.refID;
    row["refID"] = main ? pair.refID : pair.mainID;
    row["Remark"] = ui->txtRemark->Text();
    row["Amount"] = main ? pair.mainAmount : -pair.mainAmount;
    row.UpdateBatch();
}

void frmTransiction::SaveNew()
{
    EntryID = values::CLng(values::Val(ui->txtVID->Text()));
    const Pair accounts = pair();
    DE.connection().writeBatch([&] {
        ado::Recordset& postings = DE.rspostings;
        for (const int line : {1, 2}) {
            postings.Open(u"Select * from Postings order by ID"_s);
            postings.AddNew();
            postings["vType"] = 2;
            postings["VID"] = EntryID;
            postings["Sr"] = line;
            writeLine(line, accounts);
            postings.Close();
        }
    });
    EntryMode = u"E"_s;
    setWindowTitle(u"Edit Entry"_s);
    ui->lblTitle->setText(windowTitle());
}

void frmTransiction::SaveEdit()
{
    const Pair accounts = pair();
    DE.connection().writeBatch([&] {
        ado::Recordset& postings = DE.rspostings;
        postings.Open(u"Select * from Postings where vid=%1 and sr=1 and vtype=2"_s.arg(EntryID));
        writeLine(1, accounts);
        postings.Close();
        postings.Open(u"Select * from Postings where vid=%1 and sr=2 and vtype=2"_s.arg(EntryID));
        postings.MoveLast();
        writeLine(2, accounts);
        postings.Close();
    });
}

void frmTransiction::remove()
{
    if (EntryMode != "E"_L1 || !ShowMsg(u"Are you sure to delete entry?"_s, 2))
        return;
    if (EntryIsPayroll != 0 &&
        !ShowMsg(u"You are going to delete a payroll?\r\nThis action will reset all jobs as unpaid?\r\n"
                 "Press Yes to Delete!"_s,
                 2))
        return;
    DE.connection().writeBatch([&] {
        if (EntryIsPayroll != 0)
            resetPaidJobs();
        DE.connection().Execute(u"Delete from Postings where vid=%1 and vtype=2"_s.arg(EntryID));
    });
    session.RefreshLists = true;
    EntrySaved = -1;
    unload();
}

/// The job lines that the payroll covered are unpaid again.
void frmTransiction::resetPaidJobs()
{
    ado::Recordset& jobs = DE.rsJOBS_DETAIL;
    jobs.Open(u"Select * from jobs_detail where PayrollID=%1"_s.arg(EntryID));
    for (; !jobs.AtEOF(); jobs.MoveNext()) {
        jobs["MarkAsPaid"] = 0;
        jobs["PayrollID"] = 0;
    }
    jobs.UpdateBatch();
    jobs.Close();
}
