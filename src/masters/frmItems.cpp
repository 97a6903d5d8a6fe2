#include "masters/frmItems.h"

#include "core/DE.h"
#include "core/Lookups.h"
#include "masters/frmEditItem.h"

frmItems::frmItems()
    : SummaryList({QStringLiteral("frmItems"), QStringLiteral("Items"), QStringLiteral("Items"),
                   QStringLiteral("Name"), SearchFrom::SecondEntry})
{
}

void frmItems::fill(ListTarget& list)
{
    FillCombo(QStringLiteral("Name"), QStringLiteral("Items"), list, DE.rsITEMS);
}

void frmItems::addRecord() { std::make_unique<frmEditItem>()->AddNew(); }

void frmItems::editRecord(qint16 id) { std::make_unique<frmEditItem>()->Edit(id); }
