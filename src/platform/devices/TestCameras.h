#pragma once

#include "platform/devices/Camera.h"

namespace devices {

/// What a camera that makes its own pictures does.
struct TestCamera
{
    QString name = {};
    QString fault = {};    ///< reported in place of the first picture; empty: none
    int timeToOpen = 0;    ///< milliseconds until the first picture
    int picturesLeft = -1; ///< then it counts as pulled out; -1: never
};

/// Cameras that make test pictures, for trying and testing without one.
class TestCameras : public Cameras
{
public:
    explicit TestCameras(std::vector<TestCamera> cameras)
        : m_cameras(std::move(cameras))
    {
    }
    QStringList names() override;
    std::unique_ptr<Camera> open(int index) override;

private:
    std::vector<TestCamera> m_cameras;
};

} // namespace devices
