#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmShopINFO;
}

/// The shop's profile, printed on every paper, and its one login account.
class frmShopINFO : public forms::Screen
{
    Q_OBJECT
public:
    frmShopINFO();
    ~frmShopINFO() override;

protected:
    void Form_Load() override;
    void Form_KeyPress(int& key) override;

private:
    void toggleLogin();
    void save();

    std::unique_ptr<Ui::frmShopINFO> ui;
};
