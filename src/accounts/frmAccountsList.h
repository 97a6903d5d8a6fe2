#pragma once

#include "masters/SummaryList.h"

/// The list of the ledger accounts; clients and workers have lists of their own.
class frmAccountsList : public SummaryList
{
    Q_OBJECT
public:
    frmAccountsList();

private:
    void fill(ListTarget& list) override;
    void addRecord() override;
    void editRecord(qint16 id) override;
};
