#include "platform/devices/SystemCameras.h"

#include <QCamera>
#include <QCameraDevice>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QMutex>
#include <QThread>
#include <QTimer>
#include <QVideoFrame>
#include <QVideoSink>

using namespace Qt::StringLiterals;

namespace devices {

namespace {

constexpr int timeOfPreview = 66;       ///< milliseconds from picture to picture
constexpr int timeToClose = 2000;       ///< milliseconds that a camera may take to let go
constexpr qint64 mostPixels = 16000000; ///< of a format that is offered

std::vector<QCameraFormat> usable(const QCameraDevice& device)
{
    std::vector<QCameraFormat> formats;
    for (const QCameraFormat& format : device.videoFormats())
        if (const QSize size = format.resolution(); qint64(size.width()) * size.height() <= mostPixels)
            formats.push_back(format);
    return formats;
}

/// Works the camera in a thread of its own, where nothing else has to wait for it.
class Capture : public QObject
{
    Q_OBJECT
public:
    void start(const QCameraDevice& device, const QCameraFormat& format)
    {
        m_camera = new QCamera(device, this);
        auto* session = new QMediaCaptureSession(this);
        auto* sink = new QVideoSink(this);
        connect(
            sink, &QVideoSink::videoFrameChanged, this,
            [this](const QVideoFrame& frame) {
                const QMutexLocker lock(&m_lock);
                m_latest = frame;
            },
            Qt::DirectConnection);
        connect(m_camera, &QCamera::errorOccurred, this, [this](QCamera::Error error, const QString& text) {
            if (error != QCamera::NoError)
                Q_EMIT failed(text);
        });
        session->setCamera(m_camera);
        session->setVideoSink(sink);
        if (!format.isNull())
            m_camera->setCameraFormat(format);
        m_camera->start();
    }
    void stop() { delete std::exchange(m_camera, nullptr); }
    void setFormat(const QCameraFormat& format)
    {
        if (m_camera)
            m_camera->setCameraFormat(format);
    }
    /// The picture that came since the last call, if one did.
    QVideoFrame takeLatest()
    {
        const QMutexLocker lock(&m_lock);
        return std::exchange(m_latest, {});
    }

Q_SIGNALS:
    void failed(const QString& reason);

private:
    QCamera* m_camera = nullptr;
    QMutex m_lock;
    QVideoFrame m_latest;
};

class SystemCamera : public Camera
{
    Q_OBJECT
public:
    explicit SystemCamera(const QCameraDevice& device)
        : m_device(device)
        , m_formats(usable(device))
        , m_thread(new QThread)
        , m_capture(new Capture)
    {
        m_capture->moveToThread(m_thread);
        connect(m_thread, &QThread::finished, m_capture, &QObject::deleteLater);
        connect(m_capture, &Capture::failed, this, &Camera::failed);
        connect(&m_clock, &QTimer::timeout, this, &SystemCamera::deliver);
        connect(&m_devices, &QMediaDevices::videoInputsChanged, this, [this] {
            if (!QMediaDevices::videoInputs().contains(m_device))
                Q_EMIT failed(u"The camera has been unplugged."_s);
        });
        m_thread->start();
        QMetaObject::invokeMethod(m_capture, [capture = m_capture, device, format = startFormat()] {
            capture->start(device, format);
        });
        m_clock.start(timeOfPreview);
    }

    /// One that does not let go keeps its thread to itself.
    ~SystemCamera() override
    {
        QMetaObject::invokeMethod(m_capture, [capture = m_capture, thread = m_thread] {
            capture->stop();
            thread->quit();
        });
        if (m_thread->wait(timeToClose))
            delete m_thread;
        else
            connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    }

    std::vector<CameraFormat> formats() const override
    {
        std::vector<CameraFormat> all;
        for (const QCameraFormat& format : m_formats)
            all.push_back({format.resolution(), double(format.maxFrameRate()),
                           QVideoFrameFormat::pixelFormatToString(format.pixelFormat())});
        return all;
    }
    int format() const override { return m_format; }
    void setFormat(int index) override
    {
        if (index < 0 || index >= int(m_formats.size()))
            return;
        m_format = index;
        QMetaObject::invokeMethod(m_capture, [capture = m_capture, format = m_formats[size_t(index)]] {
            capture->setFormat(format);
        });
    }

private:
    /// The camera's own choice, unless that is too large.
    QCameraFormat startFormat() const
    {
        return m_formats.empty() || m_formats.size() == size_t(m_device.videoFormats().size())
                   ? QCameraFormat()
                   : m_formats.front();
    }

    void deliver()
    {
        if (const QVideoFrame frame = m_capture->takeLatest(); frame.isValid())
            if (const QImage image = frame.toImage(); !image.isNull())
                Q_EMIT frameArrived(image);
    }

    const QCameraDevice m_device;
    const std::vector<QCameraFormat> m_formats;
    int m_format = -1;
    QThread* m_thread;
    Capture* m_capture;
    QMediaDevices m_devices;
    QTimer m_clock;
};

} // namespace

QStringList SystemCameras::names()
{
    QStringList names;
    for (const QCameraDevice& device : QMediaDevices::videoInputs())
        names << cameraName(device.description(), names.size());
    return names;
}

std::unique_ptr<Camera> SystemCameras::open(int index)
{
    const QList<QCameraDevice> devices = QMediaDevices::videoInputs();
    if (index < 0 || index >= devices.size())
        return nullptr;
    return std::make_unique<SystemCamera>(devices[index]);
}

} // namespace devices

#include "SystemCameras.moc"
