#pragma once

#include "core/store/ShopCheck.h"
#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmCheckShop;
}

/// What was found in the shop that does not fit together, and what can be done about it.
class frmCheckShop : public forms::Screen
{
    Q_OBJECT
public:
    explicit frmCheckShop(shopcheck::Report report);
    ~frmCheckShop() override;

protected:
    void Form_Load() override;

private:
    void showChosen();

    const std::unique_ptr<Ui::frmCheckShop> ui;
    const shopcheck::Report m_report;
};
