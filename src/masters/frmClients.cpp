#include "masters/frmClients.h"

#include "core/DE.h"
#include "core/Lookups.h"
#include "masters/frmEditClients.h"

frmClients::frmClients()
    : SummaryList({QStringLiteral("frmClients"), QStringLiteral("Clients"), QStringLiteral("Accounts"),
                   QStringLiteral("Title"), SearchFrom::SecondEntry})
{
}

void frmClients::fill(ListTarget& list)
{
    FillList(QStringLiteral("Title"), QStringLiteral("Accounts"), QStringLiteral(" where Type=0"), list,
             DE.rsaccounts);
}

void frmClients::addRecord() { std::make_unique<frmEditClients>()->AddNew(); }

void frmClients::editRecord(qint16 id) { std::make_unique<frmEditClients>()->Edit(id); }
