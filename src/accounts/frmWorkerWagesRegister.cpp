#include "accounts/frmWorkerWagesRegister.h"

#include "accounts/Payroll.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"
#include "ui/DetailsPanel.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmWorkerWagesRegister.h"

using namespace Qt::StringLiterals;

frmWorkerWagesRegister::frmWorkerWagesRegister()
    : ui(std::make_unique<Ui::frmWorkerWagesRegister>())
{
    ui->setupUi(this);
    m_period = Period(ui->DateFrom, ui->DateTo);
    m_details = new DetailsPanel(ui->picDetails, ui->lvSummary, ui->Command1, ui->Image1);
    ui->lvDetails->setColumns({{u"Name of Item"_s, 72}, {u"QNT"_s, 28, Qt::AlignRight}});

    const auto enterViews = [this](int& key) {
        if (key != forms::key::Enter)
            return;
        key = 0;
        view();
    };
    onKeyPress(ui->cmbClient, [this](int& key) {
        key = AutoSearchCombo(*ui->cmbClient, key);
        if (key != forms::key::Enter)
            return;
        key = 0;
        leaveWorker();
    });
    for (forms::DatePicker* day : {ui->DateFrom, ui->DateTo}) {
        onKeyPress(day, [](int& key) { key = EnterAsTab(key); });
        onGotFocus(day, [this] { m_daysSeen = true; });
    }
    for (QRadioButton* option : {ui->op1, ui->op2, ui->op3})
        onKeyPress(option, enterViews);
    on(ui->Command4, &QPushButton::clicked, &frmWorkerWagesRegister::view);
    on(ui->Command3, &QPushButton::clicked, &frmWorkerWagesRegister::createPayroll);
    on(ui->Command5, &QPushButton::clicked, &frmWorkerWagesRegister::print);

    onOpened(ui->lvSummary, &frmWorkerWagesRegister::openLine);
}

frmWorkerWagesRegister::~frmWorkerWagesRegister() = default;

// Opening

void frmWorkerWagesRegister::Form_Load()
{
    SetFormLanguage(*this);
    useScreenHeight();
    session.RefreshLists = true;
    m_period.set(session.WorkingDate, session.WorkingDate);
    FillList(u"title"_s, u"Accounts"_s, whereType(AccountType::Worker), *ui->cmbClient, DE.rsaccounts);
    m_daysSeen = false;
    for (QRadioButton* option :
         {ui->op1, ui->op2, ui->op3}) // the keys come to the one chosen, from either side
        option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    ui->cmbClient->setFocus();
}

void frmWorkerWagesRegister::Form_Activate()
{
    if (session.RefreshLists.count() != m_filledAt)
        ExecuteSQL();
}

void frmWorkerWagesRegister::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    if (key != forms::key::CtrlD)
        return;
    key = 0;
    m_details->setOpen(true);
}

// Criteria and list

/// What the boxes say; nothing while they name no worker.
std::optional<wages::Scope> frmWorkerWagesRegister::chosen() const
{
    const int entry = ComboFindIndex(*ui->cmbClient);
    const QString title = entry < 0 ? QString() : ui->cmbClient->List(entry);
    const qint32 worker = idOfAccount(title);
    if (worker <= 0)
        return {};
    return wages::Scope{worker, m_period.from(), m_period.to()};
}

/// With no option chosen it stays what it was.
void frmWorkerWagesRegister::chooseStatement()
{
    const std::pair<QRadioButton*, wages::Which> options[] = {
        {ui->op1, wages::Which::All}, {ui->op2, wages::Which::Paid}, {ui->op3, wages::Which::Unpaid}};
    for (const auto& [option, which] : options) {
        if (!option->isChecked())
            continue;
        ListSql = wages::linesOf(m_shown, which);
        UnpaidView = which == wages::Which::Unpaid;
    }
}

void frmWorkerWagesRegister::ExecuteSQL()
{
    const std::optional<wages::Scope> scope = chosen();
    if (!scope) {
        ListSql.clear();
        m_shownWorker.clear();
        showLines();
        return;
    }
    ComboSyncIndex(*ui->cmbClient);
    m_shownWorker = ui->cmbClient->text();
    if (*scope != std::exchange(m_shown, *scope))
        ReturnIndex = 1;
    chooseStatement();
    showLines();
}

void frmWorkerWagesRegister::showLines()
{
    session.RefreshLists = false; // also if it fails: the message comes once, not at each activation
    m_filledAt = session.RefreshLists.count();
    ui->lvSummary->setLines({});
    ui->lblTotal->clear();
    if (ListSql.isEmpty())
        return;
    ui->lvSummary->setLines(wages::read(ListSql));
    ui->lblTotal->setText(ui->lvSummary->total());
    ui->lvSummary->selectRow(std::min(ReturnIndex, ui->lvSummary->rowCount()) - 1);
    fillDetails();
}

/// How many lines of each item the worker made.
void frmWorkerWagesRegister::fillDetails()
{
    ui->lvDetails->Clear();
    for (const ItemCount& count : wages::itemCounts(m_shown))
        ui->lvDetails->addRow({count.item, QString::number(count.lines)});
}

void frmWorkerWagesRegister::view()
{
    if (!m_period.accepted(this))
        return;
    session.RefreshLists = true;
    ExecuteSQL();
    if (ui->lvSummary->rowCount() > 0)
        ui->lvSummary->setFocus();
}

/// Enter goes on to the days until they have been seen; after that it views at once.
void frmWorkerWagesRegister::leaveWorker()
{
    if (m_daysSeen)
        view();
    else
        ui->DateFrom->setFocus(Qt::TabFocusReason);
}

/// Opens the selected line in the workshop's screen; the list is listed anew when that has saved it.
void frmWorkerWagesRegister::openLine()
{
    const int row = ui->lvSummary->selectedRow();
    if (row < 0)
        return;
    ReturnIndex = row + 1;
    frmEditWorkerAssign().ShowEdit(ui->lvSummary->lines()[size_t(row)].id);
}

// Payroll

/// Tells the operator why the list is none to be paid.
bool frmWorkerWagesRegister::refusesPayroll()
{
    const std::vector<wages::Line>& lines = ui->lvSummary->lines();
    if (!UnpaidView)
        ShowMsg(u"Select Unpaid jobs only!"_s);
    else if (m_period.from() > m_period.to())
        ShowMsg(u"Invalid date selection!"_s);
    else if (ComboFindIndex(*ui->cmbClient) < 0)
        ShowMsg(u"Please select Worker!"_s);
    else if (lines.empty())
        ShowMsg(u"No job found to make payroll for this worker!"_s);
    else if (values::Val(moneyText(lines.back().wage.toDouble())) == 0.0) // of the last line, not the total
        forms::plainMessage(this, u"Balance is 0"_s);
    else if (chosen() != m_shown)
        forms::plainMessage(this,
                            u"The list was made for another worker or other days than the boxes show now.\n"
                            "No payroll has been made: press View, look at the lines, then create it."_s);
    else
        return false;
    return true;
}

void frmWorkerWagesRegister::createPayroll()
{
    if (refusesPayroll())
        return;
    payroll::Create(m_shown, ui->lvSummary->lines(), session.TodayDate);
    ExecuteSQL();
    forms::plainMessage(this, u"Payroll Created."_s);
    ui->cmbClient->setFocus();
}

/// The paper names the worker whose lines it has, whatever the box says by now.
void frmWorkerWagesRegister::print()
{
    if (ComboFindIndex(*ui->cmbClient) < 0) {
        ShowMsg(u"Please select Worker!"_s);
        ui->cmbClient->setFocus();
        return;
    }
    ui->lvSummary->print(m_shownWorker.isEmpty() ? ui->cmbClient->text() : m_shownWorker);
}
