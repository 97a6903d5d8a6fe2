#include "core/shell/frmAbout.h"

#include "core/store/Schema.h"
#include "platform/forms/Icons.h"
#include "ui_frmAbout.h"

#include <QCoreApplication>
#include <QVersionNumber>

using namespace Qt::StringLiterals;

frmAbout::frmAbout()
    : ui(std::make_unique<Ui::frmAbout>())
{
    ui->setupUi(this);
    ui->Image1->setPixmap(forms::picture(u"app"_s, 104));
    on(ui->Command1, &QPushButton::clicked, &frmAbout::unload);
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load()
{
    const int major = QVersionNumber::fromString(QCoreApplication::applicationVersion()).majorVersion();
    ui->lblAppVer->setText(u"Version : %1"_s.arg(major));
    ui->lblDBVer->setText(u"Database Version : %1"_s.arg(DatabaseVersion));
    ui->lblInfo->setText(u"Build Date : 2-March-2012"_s);
}
