#include "core/shell/frmMenu.h"

#include "planning/frmRatings.h"
#include "platform/forms/Icons.h"
#include "ui_frmMenu.h"

frmMenu::frmMenu()
    : ui(std::make_unique<Ui::frmMenu>())
{
    ui->setupUi(this);
    forms::applyIcons(*this, forms::iconInk);
    opens<frmRatings>(ui->Command5);
    on(ui->Command8, &QPushButton::clicked, &frmMenu::unload);
}

frmMenu::~frmMenu() = default;
