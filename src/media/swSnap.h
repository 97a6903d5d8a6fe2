#pragma once

#include "platform/devices/Camera.h"

#include <QWidget>

/// What a camera sees, and then the picture that was taken. Shows in its area why there is nothing to see.
class swSnap : public QWidget
{
    Q_OBJECT
public:
    explicit swSnap(QWidget* parent = nullptr);
    ~swSnap() override;

    QString FileName;       ///< where the picture goes
    qint16 DriverIndex = 0; ///< of the camera in the list of the system's

    /// Connects the camera and shows what it sees. Returns at once.
    void StartCam();
    void CloseCam();
    /// Lets the operator choose in which size and rate the camera works.
    void FormatCam();
    /// Writes what the camera sees to the file, closes the camera and shows the file. Says nothing
    /// when the picture can't be written.
    void SaveImage();

    bool isConnected() const { return CamWindow != nullptr; }
    /// Whether there is a picture that could be taken.
    bool seesPicture() const { return isConnected() && !m_seen.isNull(); }

Q_SIGNALS:
    /// There is a picture to be taken now, or none any more.
    void picturesChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void show(const QImage& picture);
    void tell(const QString& text);

    std::unique_ptr<devices::Camera> CamWindow; ///< while a camera is connected
    QImage m_seen;
    QString m_note;
};
