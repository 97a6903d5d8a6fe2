#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmCam;
}

/// Takes a picture of a garment or a client with a camera, into a file whose path the caller gives.
class frmCam : public forms::Screen
{
    Q_OBJECT
public:
    frmCam();
    ~frmCam() override;

    /// `cancelled` stays true unless a picture was taken.
    void TakeSnap(const QString& fileName, bool& cancelled);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void startCam();
    void stopCam();
    void capture();
    void rememberCamera();
    void showWhatCanBeDone();

    std::unique_ptr<Ui::frmCam> ui;
    QString TargetFile;
    bool Cancelled = true;
    bool PictureTaken = false; ///< no other is taken until the camera is started again
};
