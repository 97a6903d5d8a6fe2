#pragma once

#include "core/store/ShopCheck.h"
#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmCheckShop;
}

/// What was found in the shop that does not fit together, and what can be done about it: on the screens that
/// the finding names, or, where those cannot, by a mend that is asked for here.
class frmCheckShop : public forms::Screen
{
    Q_OBJECT
public:
    explicit frmCheckShop(shopcheck::Report report);
    ~frmCheckShop() override;

protected:
    void Form_Load() override;

private:
    void showReport(int row);
    void showChosen();
    void mend();

    const std::unique_ptr<Ui::frmCheckShop> ui;
    shopcheck::Report m_report;
    int m_mended = 0;
};
