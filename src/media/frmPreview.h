#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmPreview;
}

/// Shows a picture of a garment at full size. One that is larger than the display scrolls.
class frmPreview : public forms::Screen
{
    Q_OBJECT
public:
    frmPreview();
    ~frmPreview() override;

    /// Shows the file's picture. A file that is gone or holds no picture is no error: its place stays empty.
    void ShowImage(const QString& fileName);

protected:
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    std::unique_ptr<Ui::frmPreview> ui;
};
