#include "masters/frmWorkers.h"

#include "core/DE.h"
#include "core/Lookups.h"
#include "masters/frmEditWorker.h"

frmWorkers::frmWorkers()
    : SummaryList({QStringLiteral("frmWorkers"), QStringLiteral("Workers"), QStringLiteral("Accounts"),
                   QStringLiteral("Title"), SearchFrom::SecondEntry})
{
}

void frmWorkers::fill(ListTarget& list)
{
    FillList(QStringLiteral("Title"), QStringLiteral("Accounts"), QStringLiteral(" where Type=1"), list,
             DE.rsaccounts);
}

void frmWorkers::addRecord() { std::make_unique<frmEditWorker>()->AddNew(); }

void frmWorkers::editRecord(qint16 id) { std::make_unique<frmEditWorker>()->Edit(id); }
