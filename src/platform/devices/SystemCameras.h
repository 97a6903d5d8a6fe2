#pragma once

#include "platform/devices/Camera.h"

namespace devices {

/// The cameras that the system knows.
class SystemCameras : public Cameras
{
public:
    QStringList names() override;
    std::unique_ptr<Camera> open(int index) override;
};

} // namespace devices
