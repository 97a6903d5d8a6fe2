#include "core/shell/frmMasters.h"

#include "accounts/frmAccountsList.h"
#include "masters/frmClients.h"
#include "masters/frmItems.h"
#include "masters/frmWorkers.h"
#include "platform/forms/Icons.h"
#include "ui_frmMasters.h"

frmMasters::frmMasters()
    : ui(std::make_unique<Ui::frmMasters>())
{
    ui->setupUi(this);
    forms::applyIcons(*this);
    opens<frmClients>(ui->cmdCreateNewClint);
    opens<frmWorkers>(ui->Command1);
    opens<frmAccountsList>(ui->Command2);
    opens<frmItems>(ui->Command3);
    on(ui->Command8, &QPushButton::clicked, &frmMasters::unload);
}

frmMasters::~frmMasters() = default;
