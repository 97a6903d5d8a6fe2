#include "masters/frmClients.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "masters/ClientFolder.h"
#include "masters/frmEditClients.h"

using namespace Qt::StringLiterals;

frmClients::frmClients()
    : SummaryList(
          {u"frmClients"_s, u"Clients"_s, u"client"_s, u"Accounts"_s, u"Title"_s, SearchFrom::SecondEntry})
{
    offerBringIn(bringin::Kind::Clients);
    setHelp(u"Ctrl+A new client  ·  Enter opens  ·  F3 client’s folder  ·  Esc close"_s);
}

void frmClients::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    if (key != forms::key::F3)
        return;
    key = 0;
    showClientFolder(selectedTitle());
}

void frmClients::fill(ListTarget& list)
{
    FillList(u"Title"_s, u"Accounts"_s, whereType(AccountType::Client), list, DE.rsaccounts);
}

void frmClients::addRecord() { std::make_unique<frmEditClients>()->AddNew(); }

void frmClients::editRecord(qint16 id) { std::make_unique<frmEditClients>()->Edit(id); }
