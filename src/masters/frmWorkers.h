#pragma once

#include "masters/SummaryList.h"

/// The list of the shop's workers.
class frmWorkers : public SummaryList
{
    Q_OBJECT
public:
    frmWorkers();

private:
    void fill(ListTarget& list) override;
    void addRecord() override;
    void editRecord(qint16 id) override;
};
