#pragma once

#include "core/shell/MenuScreen.h"

#include <memory>

namespace Ui {
class frmMenu;
}

/// The way to the reports.
class frmMenu : public MenuScreen
{
    Q_OBJECT
public:
    frmMenu();
    ~frmMenu() override;

private:
    std::unique_ptr<Ui::frmMenu> ui;
};
