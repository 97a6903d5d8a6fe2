#include "masters/frmWorkers.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "masters/frmEditWorker.h"

using namespace Qt::StringLiterals;

frmWorkers::frmWorkers()
    : SummaryList(
          {u"frmWorkers"_s, u"Workers"_s, u"worker"_s, u"Accounts"_s, u"Title"_s, SearchFrom::SecondEntry})
{
}

void frmWorkers::fill(ListTarget& list)
{
    FillList(u"Title"_s, u"Accounts"_s, whereType(AccountType::Worker), list, DE.rsaccounts);
}

void frmWorkers::addRecord() { std::make_unique<frmEditWorker>()->AddNew(); }

void frmWorkers::editRecord(qint16 id) { std::make_unique<frmEditWorker>()->Edit(id); }
