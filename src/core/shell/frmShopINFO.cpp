#include "core/shell/frmShopINFO.h"

#include "core/store/DE.h"
#include "core/store/Settings.h"
#include "core/store/ShopProfile.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmShopINFO.h"

using namespace Qt::StringLiterals;

frmShopINFO::frmShopINFO()
    : ui(std::make_unique<Ui::frmShopINFO>())
{
    ui->setupUi(this);
    on(ui->Check1, &QCheckBox::clicked, &frmShopINFO::toggleLogin);
    on(ui->chShowPassword, &QCheckBox::toggled,
       [this](bool shown) { ui->txtPassword->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password); });
    on(ui->Command1, &QPushButton::clicked, &frmShopINFO::save);
}

frmShopINFO::~frmShopINFO() = default;

void frmShopINFO::Form_Load()
{
    SetFormLanguage(*this);
    const ShopProfile shop = ShopProfile::read();
    ui->txtName->setText(shop.name);
    ui->txtADDRESS1->setText(shop.address1);
    ui->txtADDRESS2->setText(shop.address2);
    ui->txtADDRESS3->setText(shop.address3);
    ui->txtCONTACTS->setText(shop.contacts);

    ui->chShowPassword->setChecked(false);
    const bool locked = IsOn(settings::LoginRequired);
    ui->Check1->setChecked(locked);
    ui->Frame1->setEnabled(locked);
    if (locked) {
        ui->txtUserName->setText(GetSetting(settings::UserName));
        ui->txtPassword->setText(GetSetting(settings::Password));
    }
}

void frmShopINFO::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    key = EnterAsTab(key);
}

void frmShopINFO::toggleLogin()
{
    ui->Frame1->setEnabled(ui->Check1->isChecked());
    ui->txtUserName->clear();
    ui->txtPassword->clear();
}

void frmShopINFO::save()
{
    const bool locked = ui->Check1->isChecked();
    if (locked && (ui->txtUserName->text().isEmpty() || ui->txtPassword->text().isEmpty())) {
        ShowMsg(u"Please enter User Name and Password!"_s);
        ui->txtUserName->setFocus();
        return;
    }
    DE.connection().writeBatch([this, locked] {
        ShopProfile{ui->txtName->text(), ui->txtADDRESS1->text(), ui->txtADDRESS2->text(),
                    ui->txtADDRESS3->text(), ui->txtCONTACTS->text()}
            .write();
        SetSetting(settings::LoginRequired, locked ? u"1"_s : u"0"_s);
        SetSetting(settings::UserName, locked ? ui->txtUserName->text() : QString());
        SetSetting(settings::Password, locked ? ui->txtPassword->text() : QString());
    });
    ShowMsg(u"Shop Info Updated."_s);
}
