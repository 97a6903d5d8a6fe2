#include "accounts/frmAccountsList.h"

#include "accounts/frmEditAccount.h"
#include "core/DE.h"
#include "core/Lookups.h"

frmAccountsList::frmAccountsList()
    : SummaryList({QStringLiteral("frmAccountsList"), QStringLiteral("Accounts"), QStringLiteral("Accounts"),
                   QStringLiteral("Title"), SearchFrom::FirstEntry})
{
    setButtonCaptions(QStringLiteral("Add New"), QStringLiteral("Back"));
}

void frmAccountsList::fill(ListTarget& list)
{
    FillList(QStringLiteral("Title"), QStringLiteral("Accounts"), QStringLiteral(" where type=2"), list,
             DE.rsaccounts);
}

void frmAccountsList::addRecord() { std::make_unique<frmEditAccount>()->ShowAddNew(); }

void frmAccountsList::editRecord(qint16 id) { std::make_unique<frmEditAccount>()->ShowEdit(id); }
