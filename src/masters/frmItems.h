#pragma once

#include "masters/SummaryList.h"

/// The list of the garments that the shop makes.
class frmItems : public SummaryList
{
    Q_OBJECT
public:
    frmItems();

private:
    void fill(ListTarget& list) override;
    void addRecord() override;
    void editRecord(qint16 id) override;
};
