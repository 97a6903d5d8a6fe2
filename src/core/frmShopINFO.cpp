#include "core/frmShopINFO.h"

#include "core/DE.h"
#include "core/Settings.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmShopINFO.h"

frmShopINFO::frmShopINFO()
    : ui(std::make_unique<Ui::frmShopINFO>())
{
    ui->setupUi(this);
    on(ui->Check1, &QCheckBox::clicked, &frmShopINFO::Check1_Click);
    on(ui->Command1, &QPushButton::clicked, &frmShopINFO::Command1_Click);
}

frmShopINFO::~frmShopINFO() = default;

void frmShopINFO::Form_Load()
{
    SetFormLanguage(*this);
    ado::Recordset& shop = DE.rsSHOP;
    shop.Open(QStringLiteral("Select * from Shop where id=1"));
    ui->txtName->setText(shop["Name"].text());
    ui->txtADDRESS1->setText(shop["Address1"].text());
    ui->txtADDRESS2->setText(shop["Address2"].text());
    ui->txtADDRESS3->setText(shop["Address3"].text());
    ui->txtCONTACTS->setText(shop["Contacts"].text());
    shop.Close();

    const bool locked = GetSetting(7, QStringLiteral("0")) == QLatin1String("1");
    ui->Check1->setChecked(locked);
    ui->Frame1->setEnabled(locked);
    if (locked) {
        ui->txtUserName->setText(GetSetting(8, QString()));
        ui->txtPassword->setText(GetSetting(9, QString()));
    }
}

void frmShopINFO::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    key = EnterAsTab(key);
}

void frmShopINFO::Check1_Click()
{
    ui->Frame1->setEnabled(ui->Check1->isChecked());
    ui->txtUserName->clear();
    ui->txtPassword->clear();
}

void frmShopINFO::Command1_Click()
{
    const bool locked = ui->Check1->isChecked();
    if (locked && (ui->txtUserName->text().isEmpty() || ui->txtPassword->text().isEmpty())) {
        ShowMsg(QStringLiteral("Please enter User Name and Password!"));
        ui->txtUserName->setFocus();
        return;
    }
    DE.connection().writeBatch([this, locked] {
        ado::Recordset& shop = DE.rsSHOP;
        shop.Open(QStringLiteral("Select * from Shop where id=1"));
        shop["Name"] = ui->txtName->text();
        shop["Address1"] = ui->txtADDRESS1->text();
        shop["Address2"] = ui->txtADDRESS2->text();
        shop["Address3"] = ui->txtADDRESS3->text();
        shop["Contacts"] = ui->txtCONTACTS->text();
        shop.UpdateBatch();
        shop.Close();
        SetSetting(7, locked ? QStringLiteral("1") : QStringLiteral("0"));
        SetSetting(8, locked ? ui->txtUserName->text() : QString());
        SetSetting(9, locked ? ui->txtPassword->text() : QString());
    });
    ShowMsg(QStringLiteral("Shop Info Updated."));
}
