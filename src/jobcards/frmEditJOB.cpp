#include "jobcards/frmEditJOB.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
#include "jobcards/frmAddItem.h"
#include "masters/ClientFolder.h"
#include "masters/frmEditClients.h"
#include "messaging/swSMS.h"
#include "planning/frmDDP.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"
#include "registers/frmSearchClient.h"
#include "ui/DateDiff.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmEditJOB.h"

using namespace Qt::StringLiterals;

namespace {

bool matchesEntry(forms::ComboBox& combo) { return ComboFindIndex(combo) >= 0; }

} // namespace

frmEditJOB::frmEditJOB(QWidget* parent)
    : forms::Screen(parent)
    , ui(std::make_unique<Ui::frmEditJOB>())
{
    ui->setupUi(this);
    ui->lvItems->setColumns({{u"Item"_s, 30},
                             {u"Remark"_s, 30},
                             {u"QTY"_s, 12, Qt::AlignRight},
                             {u"FEES"_s, 12, Qt::AlignRight},
                             {u"Amount"_s, 12, Qt::AlignRight}});
    for (forms::DatePicker* picker : {ui->JobDate, ui->DateDel, ui->DateTrial})
        picker->setCustomFormat(u"dd-MMM-yyyy"_s);
    for (forms::DatePicker* promised : {ui->DateDel, ui->DateTrial})
        promised->look(values::Looks::Ahead, ui->JobDate);
    for (forms::DatePicker* picker : {ui->JobDate, ui->DateDel, ui->DateTrial})
        on(picker, &forms::DatePicker::changed, [this] { showHelp(); });

    for (forms::ComboBox* combo : {ui->cmbClient, ui->cmbAccount}) {
        onGotFocus(combo, [combo] {
            ComboSyncIndex(*combo);
            combo->select(0, int(combo->text().size()));
            ComboDropDown(*combo);
        });
    }
    onKeyPress(ui->cmbClient, [this](int& key) { typeClient(key); });
    on(ui->cmbClient, &forms::ComboBox::clicked, &frmEditJOB::leaveClient);
    onLostFocus(ui->cmbClient, [this] {
        leaveClient();
        greetClient();
    });
    onLostFocus(ui->cmbAccount, [this] { ComboFindIndex(*ui->cmbAccount); });
    onKeyPress(ui->cmbAccount, [this](int& key) { key = AutoSearchCombo(*ui->cmbAccount, key); });
    on(ui->txtAmountPaid, &QLineEdit::textEdited, &frmEditJOB::limitPaid);
    on(ui->txtAmountPaid, &swTextBox::Change, &frmEditJOB::showBalance);
    on(ui->txtAmountDue, &QLineEdit::textChanged, &frmEditJOB::showGarments);

    on(ui->lvItems, &forms::ListView::dblClicked, &frmEditJOB::editLine);
    onKeyDown(ui->lvItems, [this](int& key) {
        if (key == forms::key::Enter && ui->lvItems->rowCount() > 0) {
            key = 0;
            editLine();
        }
    });

    on(ui->Command1, &QPushButton::clicked, &frmEditJOB::save);
    on(ui->Command2, &QPushButton::clicked, &frmEditJOB::print);
    on(ui->Command3, &QPushButton::clicked, &frmEditJOB::startNewCard);
    on(ui->Command4, &QPushButton::clicked, &frmEditJOB::addLine);
    on(ui->Command5, &QPushButton::clicked, &frmEditJOB::removeLine);
    on(ui->Command6, &QPushButton::clicked, &frmEditJOB::clearLines);
    on(ui->Command7, &QPushButton::clicked, &frmEditJOB::remove);
    on(ui->Command8, &QPushButton::clicked, &frmEditJOB::toggleCancelReason);
    on(ui->Command9, &QPushButton::clicked, &frmEditJOB::quickFind);
    on(ui->Command10, &QPushButton::clicked, &frmEditJOB::copyLine);
    on(ui->Command11, &QPushButton::clicked, [] { frmDDP().showModal(); });
    on(ui->Command12, &QPushButton::clicked, &frmEditJOB::hideCancelReason);
}

frmEditJOB::~frmEditJOB() = default;

// Opening

void frmEditJOB::Form_Load()
{
    SetFormLanguage(*this);
    fillClients();
    FillList(u"Title"_s, u"Accounts"_s, whereType(AccountType::Ledger) + u" and nature=0 "_s, *ui->cmbAccount,
             DE.rsaccounts);
    ui->lvItems->Clear();
    ui->picCancel->hide();
    m_card = JobCard();
    CardChanged = false;
    m_anotherCard = false;
    m_blank.reset();
    swSMS1 = std::make_unique<swSMS>(this);
    swSMS1->setObjectName(u"swSMS1"_s);
}

void frmEditJOB::Form_Unload()
{
    keepUnsaved();
    m_card.Clear();
    swSMS1.reset();
}

void frmEditJOB::fillClients()
{
    FillList(u"Title"_s, u"Accounts"_s, whereType(AccountType::Client), *ui->cmbClient, DE.rsaccounts);
}

void frmEditJOB::ShowAddNew()
{
    openWith([this] { showNewCard(); });
    showCardsAskedFor();
}

bool frmEditJOB::ShowEdit(qint32 JobID)
{
    openWith([this, JobID] { showStoredCard(JobID); });
    showCardsAskedFor();
    return CardChanged;
}

/// One new card after the other, each on a fresh screen, for as long as the operator asks for the next.
void frmEditJOB::showCardsAskedFor()
{
    for (bool another = m_anotherCard; another;) {
        frmEditJOB fresh;
        fresh.openWith([&fresh] { fresh.showNewCard(); });
        another = fresh.m_anotherCard;
    }
}

/// Shows the screen on the card that `fill` puts on it. A card that cannot be put on it isn't shown.
void frmEditJOB::openWith(const std::function<void()>& fill)
{
    load();
    try {
        fill();
    } catch (...) {
        unload();
        throw;
    }
    showModal();
}

void frmEditJOB::showNewCard()
{
    const qint32 margin = values::CLng(GetNumber(settings::DeliveryMargin), u"Delivery margin"_s);
    JobCardHead head;
    head.Date = session.WorkingDate;
    head.DeliveryDate = session.WorkingDate.addDays(margin);
    head.TrialDate = session.WorkingDate;
    showHead(head);
    ui->lblTitle->setText(u"Create New Job Card"_s);
    ui->txtJOBID->setReadOnly(false);
    ui->txtJOBID->setText(QString::number(GetNewNum()));
    m_blank = draft();
    showHelp();
    ui->cmbClient->setFocus();
}

void frmEditJOB::showStoredCard(qint32 JobID)
{
    m_card.CurrentJobID = JobID;
    m_card.EditMode = RecordMode::Stored;
    const StoredCard card = StoredCard::read(JobID);
    showHead(card.head);
    showMode();
    if (card.head.Delivered && card.handedOver.isValid())
        ui->lblDelDate->setText(u"Delivered to Client : "_s + dateText(card.handedOver));
    switch (card.trial) {
    case TrialState::NotAppeared:
        ui->lblTrialInfo->setText(u"Not Appeared for Trial"_s);
        break;
    case TrialState::Appeared:
        if (card.appeared.isValid())
            ui->lblTrialInfo->setText(u"Appeared for Trial "_s + dateText(card.appeared));
        break;
    case TrialState::Canceled:
        ui->lblTrialInfo->setText(u"Trial Canceled"_s);
        break;
    }
    m_card.LoadLines();
    showLines();
    showBalance();
    ui->lvItems->setFocus();
}

void frmEditJOB::showHead(const JobCardHead& head)
{
    ui->picBanner->setText(u"Welcome to "_s + session.ShopName);
    ui->JobDate->setValue(head.Date);
    ui->cmbClient->setText(head.Client);
    m_measured = head.Client;
    ui->cmbAccount->setText(head.ReceiptAccount);
    ui->DateDel->setValue(head.DeliveryDate);
    ui->DateTrial->setValue(head.TrialDate);
    ui->txtAmountDue->setText(head.Total.toString());
    ui->txtAmountPaid->setText(head.Paid.toString());
    ui->chJobStatus->setChecked(head.Delivered);
    ui->txtRemark->setText(head.Remark);
    ui->chStatus->setChecked(head.Cancelled);
    ui->txtCancel->setText(head.CancelReason);
    ui->lblDelDate->clear();
    ui->lblTrialInfo->clear();
    showBalance();
}

/// What tells a stored card from a new one. Its number never changes again.
void frmEditJOB::showMode()
{
    if (m_card.EditMode != RecordMode::Stored)
        return;
    ui->txtJOBID->setReadOnly(true);
    ui->txtJOBID->setText(QString::number(m_card.CurrentJobID));
    ui->lblTitle->setText(u"Edit JOB Card"_s);
    showHelp();
}

// Fields and keys

void frmEditJOB::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    if (key == forms::key::CtrlZ) {
        key = 0;
        undo();
    }
    key = EnterAsTab(key);
}

void frmEditJOB::Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers)
{
    // From the list itself Tab goes on to the next field, or the list would hold the operator fast.
    if (key == forms::key::Tab && modifiers == Qt::NoModifier && !ui->lvItems->hasFocus()) {
        key = 0;
        ui->lvItems->setFocus(Qt::TabFocusReason);
        return;
    }
    if (key == forms::key::F3) {
        key = 0;
        showClientFolder(ui->cmbClient->text());
        return;
    }
    if (key == forms::key::F5 || key == forms::key::F11) {
        std::exchange(key, 0) == forms::key::F5 ? goToMoney() : void(frmDDP().showModal());
        return;
    }
    key = ArrowsAsTab(key);
}

/// To the amount received, which goes into the shop's cash where no account has been chosen.
void frmEditJOB::goToMoney()
{
    if (ui->cmbAccount->text().isEmpty() && ui->cmbAccount->findText(cashAccount) >= 0)
        ui->cmbAccount->setText(cashAccount);
    ui->txtAmountPaid->setFocus();
    ui->txtAmountPaid->selectAll();
}

void frmEditJOB::typeClient(int& key)
{
    if (key == forms::key::CtrlA) {
        QString added;
        frmEditClients().AddNewFromJobCard(added, m_typedClient.unknown());
        if (!added.isEmpty()) {
            m_typedClient.clear();
            fillClients();
            ui->cmbClient->setText(added);
        }
    } else {
        m_typedClient.take(*ui->cmbClient, key);
    }
    key = AutoSearchCombo(*ui->cmbClient, key);
    showHelp();
}

void frmEditJOB::leaveClient()
{
    m_typedClient.clear();
    showHelp();
}

/// Greets the client with the last visit and the balance.
void frmEditJOB::greetClient()
{
    if (!matchesEntry(*ui->cmbClient))
        return;
    const QString client = ui->cmbClient->text();
    const qint32 clientID = GetAccountID(client);
    const std::optional<Visit> visit = Visit::last(clientID);
    if (!visit) {
        ui->picBanner->setText(u"Welcome "_s + client);
        return;
    }
    const double balance = GetBalance(values::toInt16(clientID, u"Client number"_s), session.WorkingDate);
    QString greeting = u"Welcome back "_s + client + u", Your previous visit was: "_s + dateText(visit->day) +
                       u" ( "_s + DateDiffText(visit->day, session.WorkingDate, false, true);
    if (balance == 0) {
        greeting += u"  ago )  , Job # "_s + visit->job;
    } else {
        // The sign is turned round either way, so that a credit shows with a minus.
        greeting += u"  ago ) , Job # "_s + visit->job + u" , Due Balance : "_s + moneyText(-balance) +
                    (balance < 0 ? u" Dr"_s : u" Cr"_s);
    }
    ui->picBanner->setText(greeting);
}

/// Nobody pays more than the total at the counter. A receipt that is stored stays what it is, also where the
/// card's total has fallen below it.
void frmEditJOB::limitPaid()
{
    if (values::Val(ui->txtAmountPaid->text()) > values::Val(ui->txtAmountDue->text()))
        ui->txtAmountPaid->setText(ui->txtAmountDue->text());
}

void frmEditJOB::showBalance()
{
    ui->txtAmount->setText(
        moneyText(values::Val(ui->txtAmountDue->text()) - values::Val(ui->txtAmountPaid->text())));
}

void frmEditJOB::DoTotal()
{
    if (ui->lvItems->rowCount() == 0)
        return;
    ui->txtAmountDue->setText(moneyText(garments()));
    showBalance();
}

/// What the lines come to, as their amounts stand in the list.
double frmEditJOB::garments() const
{
    double total = 0;
    for (int row = 1; row <= m_card.JobRows.RowCount(); ++row)
        total += shownMoney(m_card.JobRows.Amount(row));
    return total;
}

/// Says beside the total what the garments come to, where that is something else: after a copy, or where the
/// total was typed.
void frmEditJOB::showGarments()
{
    const QString sum = moneyText(garments());
    const bool same = ui->lvItems->rowCount() == 0 || sum == moneyText(values::Val(ui->txtAmountDue->text()));
    ui->lblGarments->setText(same ? QString() : u"Garments: "_s + sum);
}

void frmEditJOB::quickFind()
{
    QString client;
    SearchClient(client);
    if (client.isEmpty())
        return;
    ui->cmbClient->setText(client);
    ui->cmbClient->setFocus();
}

// Lines

QStringList frmEditJOB::lineCells(int row) const
{
    const clsJobCardData& rows = m_card.JobRows;
    return {rows.ItemName(row), rows.Remarks(row), QString::number(rows.Qty(row)), moneyText(rows.Fees(row)),
            moneyText(rows.Amount(row))};
}

void frmEditJOB::showLines()
{
    ui->lvItems->Clear();
    for (int row = 1; row <= m_card.JobRows.RowCount(); ++row)
        ui->lvItems->addRow(lineCells(row));
    ui->lvItems->selectRow(0);
    showGarments();
}

/// Shows the last row of the card at the end of the list.
void frmEditJOB::appendLine()
{
    ui->lvItems->selectRow(ui->lvItems->addRow(lineCells(m_card.JobRows.RowCount())));
    showGarments();
}

/// The row of the card (from 1) whose list entry is selected.
int frmEditJOB::selectedLine() const { return qMax(0, ui->lvItems->selectedRow()) + 1; }

void frmEditJOB::addLine()
{
    if (ui->cmbClient->text().isEmpty()) {
        refuse(u"Please Select Client!"_s, ui->cmbClient);
        return;
    }
    if (frmAddItem().ItemDetails(m_card.JobRows, GetAccountID(ui->cmbClient->text()))) {
        ui->cmbAccount->setFocus();
        return;
    }
    if (m_card.JobRows.RowCount() == 1)
        m_measured = ui->cmbClient->text();
    appendLine();
    DoTotal();
}

void frmEditJOB::editLine()
{
    if (ui->lvItems->rowCount() == 0)
        return;
    if (!matchesEntry(*ui->cmbClient)) {
        ShowMsg(u"Please Select Client!"_s);
        return;
    }
    const int row = selectedLine();
    if (frmAddItem().EditItemDetails(m_card.JobRows, GetAccountID(ui->cmbClient->text()), row))
        return;
    ui->lvItems->setRow(row - 1, lineCells(row));
    DoTotal();
}

void frmEditJOB::removeLine()
{
    if (ui->lvItems->rowCount() == 0)
        return;
    const int row = selectedLine();
    m_card.RemoveLine(row);
    ui->lvItems->removeRow(row - 1);
    ui->lvItems->selectRow(qMin(row, ui->lvItems->rowCount()) - 1);
    DoTotal();
    showGarments();
}

void frmEditJOB::clearLines()
{
    m_card.Clear();
    ui->lvItems->Clear();
    DoTotal();
    showGarments();
}

/// The copy shares the stored line of its source, and the total waits for the next change.
void frmEditJOB::copyLine()
{
    if (ui->lvItems->rowCount() == 0)
        return;
    m_card.JobRows.Copy(selectedLine());
    appendLine();
}

// The cancel panel, the next card

void frmEditJOB::toggleCancelReason()
{
    const bool show = !ui->picCancel->isVisible();
    ui->picCancel->setVisible(show);
    if (show)
        ui->txtCancel->setFocus();
}

void frmEditJOB::hideCancelReason()
{
    ui->picCancel->hide();
    ui->Command8->setFocus();
}

void frmEditJOB::startNewCard()
{
    m_anotherCard = true;
    unload();
}
