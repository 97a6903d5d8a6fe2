#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmLogin;
}

/// Asks for the one user name and password of the shop (settings 8 and 9).
class frmLogin : public forms::Screen
{
    Q_OBJECT
public:
    frmLogin();
    ~frmLogin() override;

    /// Shows the dialog; true when the operator has logged in, false when it was closed in any other way.
    bool Login();

protected:
    void Form_KeyPress(int& key) override;

private:
    void logIn();

    std::unique_ptr<Ui::frmLogin> ui;
    bool m_loggedIn = false;
};
