#include "accounts/frmAccountsList.h"

#include "accounts/frmEditAccount.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"

using namespace Qt::StringLiterals;

frmAccountsList::frmAccountsList()
    : SummaryList({u"frmAccountsList"_s, u"Accounts"_s, u"account"_s, u"Accounts"_s, u"Title"_s,
                   SearchFrom::FirstEntry})
{
    setButtonCaptions(u"Add New"_s, u"Back"_s);
}

void frmAccountsList::fill(ListTarget& list)
{
    FillList(u"Title"_s, u"Accounts"_s, whereType(AccountType::Ledger), list, DE.rsaccounts);
}

void frmAccountsList::addRecord() { std::make_unique<frmEditAccount>()->ShowAddNew(); }

void frmAccountsList::editRecord(qint16 id) { std::make_unique<frmEditAccount>()->ShowEdit(id); }
