#pragma once

#include <QImage>
#include <QObject>
#include <QStringList>
#include <memory>
#include <vector>

/// The cameras of the machine. What looks at one sees its pictures come, or reads why none come; a camera
/// that is missing, taken, slow or pulled out holds nobody up.
namespace devices {

/// A way in which a camera can deliver its pictures.
struct CameraFormat
{
    QSize size;
    double rate = 0; ///< pictures a second
    QString coding;  ///< of the pixels

    QString text() const;
};

/// A camera that is open, or being opened. Its end closes it.
class Camera : public QObject
{
    Q_OBJECT
public:
    /// Those that can be chosen; larger ones than a picture of a line needs are left out. Empty until the
    /// camera is open.
    virtual std::vector<CameraFormat> formats() const = 0;
    /// The one in use, -1 for the camera's own choice.
    virtual int format() const = 0;
    virtual void setFormat(int index) = 0;

Q_SIGNALS:
    /// At most one in 66 milliseconds.
    void frameArrived(const QImage& frame);
    /// No picture will come any more; why not, in a sentence.
    void failed(const QString& reason);
};

/// What a camera is called in a list; one without a name is numbered by its place there.
QString cameraName(const QString& description, qsizetype index);

class Cameras
{
public:
    virtual ~Cameras() = default;
    virtual QStringList names() = 0;
    /// Returns at once. Null when there is no such camera.
    virtual std::unique_ptr<Camera> open(int index) = 0;
};

/// Those of the system, unless others have been put in their place.
Cameras& cameras();
void setCameras(std::unique_ptr<Cameras> others);

/// Plays a sound and waits for its end; the screens are painted meanwhile. No sound, or nothing to play it
/// with, is silence.
void playSound(const QString& path);

} // namespace devices
