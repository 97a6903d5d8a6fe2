#pragma once

#include "masters/EditMaster.h"

#include <memory>

namespace Ui {
class frmEditWorker;
}

/// Adds and edits a worker of the shop, who is an account of the ledger at the same time.
class frmEditWorker : public EditMaster
{
    Q_OBJECT
public:
    frmEditWorker();
    ~frmEditWorker() override;

private:
    void clear() override;
    void read(ado::Recordset& row) override;
    void write(ado::Recordset& row) override;
    bool isInUse(qint16 id) override;

    const std::unique_ptr<Ui::frmEditWorker> ui;
};
