#pragma once

#include "core/shell/MenuScreen.h"

#include <memory>

namespace Ui {
class frmMasters;
}

/// The way to the shop's lists: clients, workers, ledger accounts, items.
class frmMasters : public MenuScreen
{
    Q_OBJECT
public:
    frmMasters();
    ~frmMasters() override;

private:
    std::unique_ptr<Ui::frmMasters> ui;
};
