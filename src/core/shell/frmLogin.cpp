#include "core/shell/frmLogin.h"

#include "core/store/Settings.h"
#include "platform/forms/Icons.h"
#include "ui/ModOtherFUN.h"
#include "ui_frmLogin.h"

using namespace Qt::StringLiterals;

frmLogin::frmLogin()
    : ui(std::make_unique<Ui::frmLogin>())
{
    ui->setupUi(this);
    ui->Image1->setPixmap(forms::picture(u"login"_s, 104));
    on(ui->Command1, &QPushButton::clicked, &frmLogin::logIn);
}

frmLogin::~frmLogin() = default;

bool frmLogin::Login()
{
    m_loggedIn = false;
    showModal();
    return m_loggedIn;
}

void frmLogin::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    key = EnterAsTab(key);
}

void frmLogin::logIn()
{
    if (ui->txtUserName->text().isEmpty()) {
        ShowMsg(u"Please enter user name!"_s);
        ui->txtUserName->setFocus();
        return;
    }
    if (ui->txtPassword->text().isEmpty()) {
        ShowMsg(u"Please enter password!"_s);
        ui->txtPassword->setFocus();
        return;
    }
    const QString userName = GetSetting(settings::UserName);
    const QString password = GetSetting(settings::Password);
    if (ui->txtPassword->text() != password || ui->txtUserName->text() != userName) {
        ShowMsg(u"Invalid user name or password!"_s);
        ui->txtUserName->clear();
        ui->txtPassword->clear();
        ui->txtUserName->setFocus();
        return;
    }
    m_loggedIn = true;
    unload();
}
