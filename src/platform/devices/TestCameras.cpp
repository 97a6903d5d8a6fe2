#include "platform/devices/TestCameras.h"

#include <QPainter>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace devices {

namespace {

constexpr int timeOfPreview = 66; ///< milliseconds from picture to picture

/// Bars of colour with a band that moves.
class PatternCamera : public Camera
{
    Q_OBJECT
public:
    explicit PatternCamera(const TestCamera& about)
        : m_about(about)
    {
        connect(&m_clock, &QTimer::timeout, this, &PatternCamera::deliver);
        m_clock.start(about.timeToOpen);
    }

    std::vector<CameraFormat> formats() const override
    {
        return {{{640, 480}, 30, u"test"_s}, {{1280, 720}, 15, u"test"_s}};
    }
    int format() const override { return m_format; }
    void setFormat(int index) override { m_format = index; }

private:
    void deliver()
    {
        m_clock.setInterval(timeOfPreview);
        if (!m_about.fault.isEmpty() || m_about.picturesLeft == 0) {
            m_clock.stop();
            Q_EMIT failed(m_about.fault.isEmpty() ? u"The camera has been unplugged."_s : m_about.fault);
            return;
        }
        if (m_about.picturesLeft > 0)
            --m_about.picturesLeft;
        Q_EMIT frameArrived(pattern());
    }

    QImage pattern()
    {
        QImage image(formats()[size_t(qMax(0, m_format))].size, QImage::Format_RGB32);
        QPainter painter(&image);
        constexpr Qt::GlobalColor bars[] = {Qt::white,   Qt::yellow, Qt::cyan, Qt::green,
                                            Qt::magenta, Qt::red,    Qt::blue, Qt::black};
        constexpr int count = int(std::size(bars));
        for (int bar = 0; bar < count; ++bar)
            painter.fillRect(image.width() * bar / count, 0, image.width() / count + 1, image.height(),
                             bars[bar]);
        constexpr int band = 12;
        painter.fillRect(0, m_at++ * band % image.height(), image.width(), band, Qt::gray);
        return image;
    }

    TestCamera m_about;
    int m_format = -1;
    int m_at = 0;
    QTimer m_clock;
};

} // namespace

QStringList TestCameras::names()
{
    QStringList names;
    for (const TestCamera& camera : m_cameras)
        names << cameraName(camera.name, names.size());
    return names;
}

std::unique_ptr<Camera> TestCameras::open(int index)
{
    if (index < 0 || index >= int(m_cameras.size()))
        return nullptr;
    return std::make_unique<PatternCamera>(m_cameras[size_t(index)]);
}

} // namespace devices

#include "TestCameras.moc"
