#include "media/frmCamFormat.h"

#include "platform/devices/Camera.h"
#include "platform/forms/Keys.h"
#include "ui_frmCamFormat.h"

#include <QPointer>

frmCamFormat::frmCamFormat()
    : ui(std::make_unique<Ui::frmCamFormat>())
{
    ui->setupUi(this);
    on(ui->lstFormats, &forms::ListBox::dblClicked, &frmCamFormat::accept);
    onKeyPress(ui->lstFormats, [this](int& key) {
        if (key != forms::key::Enter)
            return;
        key = 0;
        accept();
    });
    on(ui->Command1, &QPushButton::clicked, &frmCamFormat::accept);
    on(ui->Command2, &QPushButton::clicked, [this] { unload(); });
}

frmCamFormat::~frmCamFormat() = default;

void frmCamFormat::choose(devices::Camera& camera)
{
    m_camera = &camera;
    const auto close = connect(&camera, &devices::Camera::failed, this, [this] { unload(); });
    for (const devices::CameraFormat& format : camera.formats())
        ui->lstFormats->AddItem(format.text());
    ui->lstFormats->setListIndex(camera.format());
    showModal();
    disconnect(close);
}

void frmCamFormat::accept()
{
    if (const int chosen = ui->lstFormats->ListIndex(); chosen >= 0)
        m_camera->setFormat(chosen);
    unload();
}
