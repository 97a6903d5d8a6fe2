#include "platform/forms/OpenDialog.h"

#include "platform/forms/FileDialogIcons.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace forms {

QString askOpenPath(QWidget* parent, const QString& title, const QString& kinds)
{
    QFileDialog dialog(parent, title, {}, kinds);
    dialog.setFileMode(QFileDialog::ExistingFile);
    useOwnIcons(dialog);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    dialog.setDirectory(QDir(documents).exists() ? documents : QDir::homePath());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace forms
