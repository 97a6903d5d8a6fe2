#include "accounts/frmAccountBook.h"

#include "accounts/VoucherTag.h"
#include "accounts/frmDayBook.h"
#include "accounts/frmTransiction.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "accounts/rptAccountsBooks.h"
#include "accounts/rptReceipt.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
#include "core/store/Voucher.h"
#include "messaging/modSMS.h"
#include "messaging/swSMS.h"
#include "platform/forms/MessageBox.h"
#include "platform/report/Preview.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmAccountBook.h"

using namespace Qt::StringLiterals;

frmAccountBook::frmAccountBook()
    : ui(std::make_unique<Ui::frmAccountBook>())
    , swSMS1(new swSMS(this))
{
    ui->setupUi(this);
    setBook(ui->lvSummary, {ui->DateFrom, ui->DateTo});
    ui->lvSummary->setSeveral(true);
    ui->lvSummary->setColumns({{u"Date"_s, 10, Qt::AlignLeft, 118},
                               {u"VC #"_s, 8, Qt::AlignRight, 66},
                               {u"Voucher"_s, 12, Qt::AlignLeft, 92},
                               {u"Particulars"_s, 15, Qt::AlignLeft, 150},
                               {u"Debit"_s, 15, Qt::AlignRight, 110},
                               {u"Credit"_s, 15, Qt::AlignRight, 110},
                               {u"Remark"_s, 24, Qt::AlignLeft, 120}});
    ui->cmbType->AddItems({u"Clients"_s, u"Workers"_s, u"Accounts"_s}); // by AccountType

    on(ui->cmbType, &forms::ComboBox::clicked, &frmAccountBook::loadList);
    onKeyPress(ui->cmbType, [](int& key) { key = EnterAsTab(key); });
    onKeyPress(ui->cmbAccount, [this](int& key) { key = EnterAsTab(AutoSearchCombo(*ui->cmbAccount, key)); });
    for (forms::DatePicker* day : {ui->DateFrom, ui->DateTo})
        onKeyPress(day, [](int& key) { key = EnterAsTab(key); });
    on(ui->Command4, &QPushButton::clicked, &frmAccountBook::view);
    on(ui->Command3, &QPushButton::clicked, &frmAccountBook::addEntry);
    on(ui->Command5, &QPushButton::clicked, &frmAccountBook::printStatement);
    on(ui->Command2, &QPushButton::clicked, [this] { sendBalance(SmsWay::Modem); });
    on(ui->cmdByPhone, &QPushButton::clicked, [this] { sendBalance(SmsWay::Phone); });
    on(ui->cmdReceipt, &QPushButton::clicked, &frmAccountBook::printReceipt);
    on(ui->Command1, &QPushButton::clicked, &frmAccountBook::openWages);
    on(ui->Command6, &QPushButton::clicked, &frmAccountBook::openDayBook);
}

frmAccountBook::~frmAccountBook() = default;

// Opening

void frmAccountBook::Form_Load()
{
    SetFormLanguage(*this);
    Book::Form_Load();
    ui->cmbType->setListIndex(0);
    loadList();
    ui->cmbType->setFocus();
}

void frmAccountBook::ShowAccount(const QString& title)
{
    load();
    ui->cmbAccount->setText(title);
    ExecuteSQL();
    ui->lvSummary->setFocus();
    showModal();
}

void frmAccountBook::ShowLedgerAccount(const QString& title, const QDate& from, const QDate& to)
{
    load();
    ui->cmbType->setListIndex(int(AccountType::Ledger));
    loadList();
    ui->cmbAccount->setText(title);
    period.set(from, to);
    ExecuteSQL();
    ui->lvSummary->setFocus();
    showModal();
}

// Filling

void frmAccountBook::loadList()
{
    ui->cmbAccount->Clear();
    if (const int kind = ui->cmbType->ListIndex(); kind >= 0)
        FillList(u"Title"_s, u"Accounts"_s, whereType(AccountType(kind)), *ui->cmbAccount, DE.rsaccounts);
}

void frmAccountBook::ExecuteSQL()
{
    const QString title = ComboFindIndex(*ui->cmbAccount) < 0 ? QString() : ui->cmbAccount->Text();
    const qint32 id = title.isEmpty() ? 0 : idOfAccount(title);
    AccountBook book;
    try {
        if (id != 0)
            book = AccountBook(id, period.from(), period.to());
    } catch (...) {
        showBook({}, {}); // never the account before under the new name
        throw;
    }
    showBook(std::move(book), id == 0 ? QString() : title);
    if (id == 0 && !title.isEmpty()) {
        loadList();
        forms::plainMessage(this, u"The account \"%1\" is no longer there."_s.arg(title));
    }
}

void frmAccountBook::showBook(AccountBook book, const QString& account)
{
    m_book = std::make_shared<AccountBook>(std::move(book));
    m_account = account;
    m_period = period.text();
    show(Lines(m_book, &m_book->lines), AccountBook::cells);
    ui->lblShown->setText(account.isEmpty() ? QString() : account + u'\n' + m_period);
}

// Commands

/// Takes the entry that the operator has begun to type; refuses a text that begins none.
bool frmAccountBook::accountChosen()
{
    if (ComboFindIndex(*ui->cmbAccount) >= 0)
        return true;
    forms::plainMessage(this, u"Please select Account!"_s);
    ui->cmbAccount->setFocus();
    return false;
}

void frmAccountBook::view()
{
    if (!period.accepted(this) || !accountChosen())
        return;
    ExecuteSQL();
    ui->lvSummary->setFocus();
}

void frmAccountBook::addEntry()
{
    if (!accountChosen())
        return;
    frmTransiction entry;
    qint16 saved = 0;
    entry.ShowAddNew(ui->cmbAccount->Text(), saved);
    if (saved != 0)
        showSaved(entry);
}

/// What the account owes, as a receipt.
void frmAccountBook::takeMoney()
{
    if (!accountChosen())
        return;
    frmTransiction entry;
    qint16 saved = 0;
    entry.ShowReceipt(ui->cmbAccount->Text(), saved);
    if (saved != 0)
        showSaved(entry);
}

void frmAccountBook::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    if (key != forms::key::F5)
        return;
    key = 0;
    takeMoney();
}

void frmAccountBook::showSaved(const frmTransiction& entry)
{
    refresh();
    select(VoucherTag{entry.number(), VoucherType::Entry}.text());
    ui->lvSummary->setFocus();
}

void frmAccountBook::openSelected()
{
    const int row = ui->lvSummary->selectedRow();
    if (!ui->lvSummary->tag(row).isEmpty() && accountChosen())
        Book::openSelected();
}

/// What was changed in the day book must not stand unchanged here.
void frmAccountBook::openDayBook()
{
    frmDayBook().showModal();
    if (!m_account.isEmpty())
        refresh();
    ui->lvSummary->setFocus();
}

/// A payroll made there credits the worker whose book this may be.
void frmAccountBook::openWages()
{
    frmWorkerWagesRegister().showModal();
    refresh();
    ui->lvSummary->setFocus();
}

/// Tells the client the balance at the end of the days, with its sign: what is owed is negative.
void frmAccountBook::sendBalance(SmsWay way)
{
    if (ui->cmbAccount->Text().isEmpty() || !accountChosen())
        return;
    const QString title = ui->cmbAccount->Text();
    const QDate day = period.to();
    const double balance = GetBalance(values::toInt16(GetAccountID(title)), day);
    TellClient(*swSMS1, way, title,
               MakeDueBalanceSms(values::CStr(balance)) + u" ("_s + dateText(day) + u")\r\r"_s +
                   GetSetting(settings::SmsTitle));
    ui->lvSummary->setFocus();
}

/// The paper says what the list shows, whatever has been chosen since.
void frmAccountBook::printStatement()
{
    const bool withRemark = ShowMsg(u"Print Account Statement with Remark?"_s, 2);
    const bool shown = !m_account.isEmpty();
    auto paper = StatementPaper(*m_book, shown ? m_account : ui->cmbAccount->Text(),
                                shown ? m_period : period.text(), withRemark);
    report::showPaper(this, paper->rows().size(), [&paper] { return std::move(paper); });
    ui->lvSummary->setFocus();
}

void frmAccountBook::printReceipt()
{
    const int row = ui->lvSummary->selectedRow();
    if (row >= 0 && m_book->lines[size_t(row)].isPosting())
        PrintReceipt(m_book->lines[size_t(row)].posting);
    else
        forms::plainMessage(this, u"Select the row of a receipt in the list first."_s);
    ui->lvSummary->setFocus();
}
