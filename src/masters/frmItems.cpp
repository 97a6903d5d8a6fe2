#include "masters/frmItems.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "masters/frmEditItem.h"

using namespace Qt::StringLiterals;

frmItems::frmItems()
    : SummaryList({u"frmItems"_s, u"Items"_s, u"item"_s, u"Items"_s, u"Name"_s, SearchFrom::SecondEntry})
{
    offerBringIn(bringin::Kind::Items);
}

void frmItems::fill(ListTarget& list) { FillCombo(u"Name"_s, u"Items"_s, list, DE.rsITEMS); }

void frmItems::addRecord() { std::make_unique<frmEditItem>()->AddNew(); }

void frmItems::editRecord(qint16 id) { std::make_unique<frmEditItem>()->Edit(id); }
