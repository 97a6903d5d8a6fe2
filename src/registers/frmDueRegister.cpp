#include "registers/frmDueRegister.h"

#include "accounts/frmAccountBook.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/forms/ListView.h"
#include "platform/values/Currency.h"
#include "ui/modLang.h"
#include "ui_frmDueRegister.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double heightOfScreen = 0.97;

} // namespace

frmDueRegister::frmDueRegister()
    : ui(std::make_unique<Ui::frmDueRegister>())
{
    ui->setupUi(this);
    ui->lvSummary->setSeveral(true);
    ui->lvSummary->setColumns({{u"Client"_s, 70}, {u"Due Amount"_s, 25, Qt::AlignRight, 120}});
    onOpened(ui->lvSummary, &frmDueRegister::openAccount);
}

frmDueRegister::~frmDueRegister() = default;

void frmDueRegister::Form_Load()
{
    SetFormLanguage(*this);
    useScreenHeight(heightOfScreen);
    ui->lvSummary->setFocus();
}

/// Back from an account the list shows what is owed now, on the client that was opened.
void frmDueRegister::Form_Activate() { ExcuteSQl(); }

void frmDueRegister::ExcuteSQl()
{
    std::vector<forms::ListView::Row> rows;
    each(u"Select Accounts.ID, Title, sum(Amount) as Balance from Accounts, Postings"_s +
             whereType(AccountType::Client) + u" and accID=Accounts.ID and "_s +
             countsUpTo(session.WorkingDate) + u" group by Accounts.ID having sum(Amount)<0 order by Title"_s,
         [&](ado::Recordset& accounts) {
             const Currency balance = Currency::fromDouble(accounts["Balance"].number());
             if (balance < Currency())
                 rows.push_back({{accounts["Title"].text(), moneyText((-balance).toDouble())},
                                 QString::number(accounts["ID"].integer())});
         });
    ui->lvSummary->refreshRows(std::move(rows));
}

void frmDueRegister::openAccount()
{
    if (const int row = ui->lvSummary->selectedRow(); row >= 0)
        frmAccountBook().ShowAccount(ui->lvSummary->cell(row, 0));
}
