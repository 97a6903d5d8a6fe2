#include "core/shell/frmMenu.h"

#include "accounts/frmAccountBook.h"
#include "accounts/frmDayBook.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "core/shell/frmGlance.h"
#include "planning/frmRatings.h"
#include "platform/forms/Icons.h"
#include "registers/frmBirthDayRimenders.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmDueRegister.h"
#include "registers/frmTrailDate.h"
#include "ui_frmMenu.h"

frmMenu::frmMenu()
    : ui(std::make_unique<Ui::frmMenu>())
{
    ui->setupUi(this);
    forms::applyIcons(*this);
    opens<frmBirthDayRimenders>(ui->Command1);
    opens<frmDueRegister>(ui->Command2);
    opens<frmAccountBook>(ui->Command3);
    opens<frmTrailDate>(ui->Command4);
    opens<frmRatings>(ui->Command5);
    opens<frmDayBook>(ui->Command6);
    opens<frmWorkerWagesRegister>(ui->Command7);
    opens<frmDeliveryRegister>(ui->Command9);
    opens<frmGlance>(ui->Command10);
    on(ui->Command8, &QPushButton::clicked, &frmMenu::unload);
}

frmMenu::~frmMenu() = default;
