#include "core/frmAbout.h"

#include "core/Schema.h"
#include "platform/forms/Icons.h"
#include "ui_frmAbout.h"

#include <QCoreApplication>
#include <QVersionNumber>

frmAbout::frmAbout()
    : ui(std::make_unique<Ui::frmAbout>())
{
    ui->setupUi(this);
    ui->Image1->setPixmap(forms::picture(QStringLiteral("app"), 104));
    on(ui->Command1, &QPushButton::clicked, &frmAbout::unload);
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load()
{
    const int major = QVersionNumber::fromString(QCoreApplication::applicationVersion()).majorVersion();
    ui->lblAppVer->setText(QStringLiteral("Version : %1").arg(major));
    ui->lblDBVer->setText(QStringLiteral("Database Version : %1").arg(DatabaseVersion));
    ui->lblInfo->setText(QStringLiteral("Build Date : 2-March-2012"));
}
