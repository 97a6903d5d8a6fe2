#include "ui/ctlInfo.h"

#include "ui_ctlInfo.h"

ctlInfo::ctlInfo(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::ctlInfo>())
{
    ui->setupUi(this);
    ui->pic->hide();
    connect(ui->Image1, &QAbstractButton::clicked, this, &ctlInfo::HideInfo);
}

ctlInfo::~ctlInfo() = default;

void ctlInfo::ShowInfo(const QString& text)
{
    ui->lblInfo->setText(text);
    ui->pic->show();
    ui->pic->raise();
}

void ctlInfo::HideInfo() { ui->pic->hide(); }
