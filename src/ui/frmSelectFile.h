#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace forms {
class Thumbnails;
}
namespace Ui {
class frmSelectFile;
}

/// Asks for a picture file, with a preview.
class frmSelectFile : public forms::Screen
{
    Q_OBJECT
public:
    explicit frmSelectFile(QWidget* parent = nullptr);
    ~frmSelectFile() override;

    /// Shows the dialog. Gives the path of the chosen file (any text that stands in its box, even none), or
    /// "Cancel".
    QString SelFile();

protected:
    void Form_Load() override;

private:
    void openDrive();
    void openFolder(const QString& path);
    void enterFolder();
    void applyPattern();
    void chooseFile();
    void select();
    void preview(const QString& path);

    std::unique_ptr<Ui::frmSelectFile> ui;
    forms::Thumbnails* m_thumbnails;
    QString m_folder;
    QString m_answer;
};
