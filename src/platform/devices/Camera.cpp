#include "platform/devices/Camera.h"

#include "platform/devices/SystemCameras.h"
#include <QAudioDevice>
#include <QEventLoop>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace devices {

namespace {

constexpr int longestSound = 3000; ///< milliseconds

std::unique_ptr<Cameras>& registered()
{
    static std::unique_ptr<Cameras> cameras;
    return cameras;
}

} // namespace

QString CameraFormat::text() const
{
    return u"%1 × %2, %3 pictures a second, %4"_s.arg(size.width())
        .arg(size.height())
        .arg(rate, 0, 'g', 3)
        .arg(coding);
}

QString cameraName(const QString& description, qsizetype index)
{
    const QString name = description.trimmed();
    return name.isEmpty() ? u"Camera %1"_s.arg(index + 1) : name;
}

Cameras& cameras()
{
    if (!registered())
        registered() = std::make_unique<SystemCameras>();
    return *registered();
}

void setCameras(std::unique_ptr<Cameras> others) { registered() = std::move(others); }

void playSound(const QString& path)
{
    if (!QFileInfo(path).isFile() || QMediaDevices::defaultAudioOutput().isNull())
        return;
    QSoundEffect sound;
    QEventLoop loop;
    QObject::connect(&sound, &QSoundEffect::playingChanged, &loop, [&] {
        if (!sound.isPlaying())
            loop.quit();
    });
    QObject::connect(&sound, &QSoundEffect::statusChanged, &loop, [&] {
        if (sound.status() == QSoundEffect::Error)
            loop.quit();
    });
    QTimer::singleShot(longestSound, &loop, &QEventLoop::quit);
    sound.setSource(QUrl::fromLocalFile(path));
    sound.play();
    if (sound.status() != QSoundEffect::Error)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace devices
