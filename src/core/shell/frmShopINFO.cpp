#include "core/shell/frmShopINFO.h"

#include "core/store/DE.h"
#include "core/store/Settings.h"
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
    ado::Recordset& shop = DE.rsSHOP;
    shop.Open(u"Select * from Shop where id=1"_s);
    ui->txtName->setText(shop["Name"].text());
    ui->txtADDRESS1->setText(shop["Address1"].text());
    ui->txtADDRESS2->setText(shop["Address2"].text());
    ui->txtADDRESS3->setText(shop["Address3"].text());
    ui->txtCONTACTS->setText(shop["Contacts"].text());
    shop.Close();

    ui->chShowPassword->setChecked(false);
    const bool locked = GetSetting(settings::LoginRequired) == "1"_L1;
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
        ado::Recordset& shop = DE.rsSHOP;
        shop.Open(u"Select * from Shop where id=1"_s);
        shop["Name"] = ui->txtName->text();
        shop["Address1"] = ui->txtADDRESS1->text();
        shop["Address2"] = ui->txtADDRESS2->text();
        shop["Address3"] = ui->txtADDRESS3->text();
        shop["Contacts"] = ui->txtCONTACTS->text();
        shop.UpdateBatch();
        shop.Close();
        SetSetting(settings::LoginRequired, locked ? u"1"_s : u"0"_s);
        SetSetting(settings::UserName, locked ? ui->txtUserName->text() : QString());
        SetSetting(settings::Password, locked ? ui->txtPassword->text() : QString());
    });
    ShowMsg(u"Shop Info Updated."_s);
}
