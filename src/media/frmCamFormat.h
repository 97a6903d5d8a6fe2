#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmCamFormat;
}
namespace devices {
class Camera;
}

/// The sizes and rates in which a camera can work, one of them to choose.
class frmCamFormat : public forms::Screen
{
    Q_OBJECT
public:
    frmCamFormat();
    ~frmCamFormat() override;

    /// Sets the camera to the format that the operator chooses; leaving it by Esc changes nothing.
    void choose(devices::Camera& camera);

private:
    void accept();

    std::unique_ptr<Ui::frmCamFormat> ui;
    devices::Camera* m_camera = nullptr;
};
