#include "registers/frmDueRegister.h"

#include "accounts/frmAccountBook.h"
#include "accounts/frmTransiction.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/forms/ListView.h"
#include "registers/Dues.h"
#include "ui/HelpLine.h"
#include "ui/modLang.h"
#include "ui_frmDueRegister.h"

using namespace Qt::StringLiterals;

namespace {

/// "Total 1500.00: to 30 days 500.00, older 1000.00": what is owed, and how old it is.
QString totalText(Currency total, const std::array<Currency, Due::ages>& byAge)
{
    static const QString ages[Due::ages] = {u"to 30 days "_s, u"to 60 days "_s, u"to 90 days "_s,
                                            u"older "_s};
    QStringList parts;
    for (size_t age = 0; age < byAge.size(); ++age)
        if (byAge[age] > Currency())
            parts << ages[age] + moneyText(byAge[age].toDouble());
    return u"Total "_s + moneyText(total.toDouble()) + u": "_s + parts.join(u", "_s);
}

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
    useScreenHeight();
    ui->lvSummary->setFocus();
}

/// Back from an account the list shows what is owed now, on the client that was opened.
void frmDueRegister::Form_Activate()
{
    if (m_shown != ShopMoment::now())
        ExcuteSQl();
}

void frmDueRegister::ExcuteSQl()
{
    std::vector<forms::ListView::Row> rows;
    Currency total;
    std::array<Currency, Due::ages> byAge;
    for (const Due& due : readDues(session.WorkingDate)) {
        rows.push_back({{due.title, moneyText(due.amount.toDouble())}, QString::number(due.client)});
        total += due.amount;
        for (size_t age = 0; age < due.byAge.size(); ++age)
            byAge[age] += due.byAge[age];
    }
    ui->lvSummary->refreshRows(std::move(rows));
    m_shown = ShopMoment::now();
    ui->lblHelp->setNotice(total > Currency() ? totalText(total, byAge) : QString());
}

/// F5 takes what the client of the row owes, or a part of it.
void frmDueRegister::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    if (key != forms::key::F5)
        return;
    key = 0;
    qint16 saved = 0;
    if (const int row = ui->lvSummary->selectedRow(); row >= 0)
        frmTransiction().ShowReceipt(ui->lvSummary->cell(row, 0), saved);
}

void frmDueRegister::openAccount()
{
    if (const int row = ui->lvSummary->selectedRow(); row >= 0)
        frmAccountBook().ShowAccount(ui->lvSummary->cell(row, 0));
}
