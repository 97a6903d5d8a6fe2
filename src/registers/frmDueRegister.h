#pragma once

#include "core/store/ShopMoment.h"
#include "platform/forms/Screen.h"

#include <memory>
#include <optional>

namespace Ui {
class frmDueRegister;
}

/// The clients who owe the shop money on the working date, and how much.
class frmDueRegister : public forms::Screen
{
    Q_OBJECT
public:
    frmDueRegister();
    ~frmDueRegister() override;

    /// Fills the list. Throws ado::DatabaseError.
    void ExcuteSQl();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void openAccount();

    const std::unique_ptr<Ui::frmDueRegister> ui;
    std::optional<ShopMoment> m_shown;
};
