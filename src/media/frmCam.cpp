#include "media/frmCam.h"

#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "platform/values/Numbers.h"
#include "ui_frmCam.h"

#include <QFile>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

qint16 chosenCamera()
{
    constexpr double highest = std::numeric_limits<qint16>::max();
    return qint16(std::clamp(GetNumber(settings::WebcamDriver), 0.0, highest));
}

} // namespace

frmCam::frmCam()
    : ui(std::make_unique<Ui::frmCam>())
{
    ui->setupUi(this);
    onLostFocus(ui->cmbList, [this] { rememberCamera(); });
    on(ui->Command1, &QPushButton::clicked, &frmCam::startCam);
    on(ui->Command2, &QPushButton::clicked, &frmCam::stopCam);
    on(ui->Command3, &QPushButton::clicked, [this] { ui->swSnap1->FormatCam(); });
    on(ui->Command4, &QPushButton::clicked, &frmCam::capture);
    on(ui->swSnap1, &swSnap::picturesChanged, &frmCam::showWhatCanBeDone);
}

frmCam::~frmCam() = default;

void frmCam::TakeSnap(const QString& fileName, bool& cancelled)
{
    TargetFile = fileName;
    PictureTaken = false;
    Cancelled = true;
    ui->swSnap1->FileName = fileName;
    showModal();
    cancelled = Cancelled;
}

void frmCam::Form_Load()
{
    ui->cmbList->AddItems(devices::cameras().names());
    ui->cmbList->setListIndex(chosenCamera());
    startCam();
}

void frmCam::Form_Unload() { ui->swSnap1->CloseCam(); }

/// Without any camera the one chosen before stays so.
void frmCam::rememberCamera()
{
    if (ui->cmbList->ListIndex() >= 0)
        RememberSetting(settings::WebcamDriver, QString::number(ui->cmbList->ListIndex()));
}

void frmCam::startCam()
{
    PictureTaken = false;
    ui->swSnap1->DriverIndex = chosenCamera();
    ui->swSnap1->StartCam();
}

void frmCam::stopCam()
{
    PictureTaken = true;
    ui->swSnap1->CloseCam();
}

void frmCam::capture()
{
    if (PictureTaken || !ui->swSnap1->seesPicture())
        return;
    QFile::remove(TargetFile);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    devices::playSound(session.appFolder + u"/click.wav"_s);
    ui->swSnap1->SaveImage();
    PictureTaken = true;
    Cancelled = false;
    showWhatCanBeDone();
    ui->Command1->setFocus();
}

void frmCam::showWhatCanBeDone()
{
    const bool live = ui->swSnap1->seesPicture();
    ui->Command3->setEnabled(live);
    ui->Command4->setEnabled(live);
    if (live)
        ui->Command4->setFocus();
}
