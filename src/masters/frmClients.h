#pragma once

#include "masters/SummaryList.h"

/// The list of the shop's clients.
class frmClients : public SummaryList
{
    Q_OBJECT
public:
    frmClients();

protected:
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void fill(ListTarget& list) override;
    void addRecord() override;
    void editRecord(qint16 id) override;
};
