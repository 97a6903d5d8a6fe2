#include "core/shell/frmSettings.h"

#include "core/shell/CopyList.h"
#include "core/shell/Look.h"
#include "core/shell/frmCheckShop.h"
#include "core/shell/frmNewBooks.h"
#include "core/store/Backup.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "platform/forms/BackgroundTask.h"
#include "platform/forms/FileDialogIcons.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Dates.h"
#include "ui_frmSettings.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Work whose failure does not take back what has been done before it: its text, for after that.
template <typename Work>
QString shortfall(Work work)
{
    try {
        work();
    } catch (const OperatorError& error) {
        return error.text();
    }
    return {};
}

} // namespace

/// The folder is written down at once.
void frmSettings::selectBackupFolder()
{
    QFileDialog dialog(this, u"Select a Folder"_s, ui->txtBackuppath->text());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    forms::useOwnIcons(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString folder = QDir::toNativeSeparators(dialog.selectedFiles().value(0));
    ui->txtBackuppath->setText(folder);
    SetSetting(settings::BackupFolder, folder);
}

void frmSettings::openBackupFolder()
{
    const QString folder = chosenBackupFolder();
    if (folder.isEmpty())
        return;
    if (!QFileInfo(folder).isDir())
        throw OperatorError(
            u"There is no folder %1. If it is on a stick or another disk, is that in?"_s.arg(folder));
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        throw OperatorError(u"This computer has no program that shows the folder %1."_s.arg(folder));
}

/// The folder; empty, and said so, when none has been chosen.
QString frmSettings::chosenBackupFolder()
{
    const QString folder = ui->txtBackuppath->text();
    if (folder.isEmpty())
        forms::criticalMessage(this, u"Please select backup file path!"_s);
    return folder;
}

void frmSettings::backUp()
{
    const QString folder = chosenBackupFolder();
    if (folder.isEmpty())
        return;
    if (archive::gzip().isEmpty()) {
        forms::criticalMessage(this, u"gZip is missing! can't create backup. Please reinstall Seamwise to "
                                     "fix this problem."_s);
        return;
    }
    QString pictures;
    {
        Backup backup(folder);
        forms::runInBackground(this, u"Backup Database"_s, [&](const Progress& progress) {
            backup.run(progress);
            pictures = shortfall([&] { backup.copyPictures(progress); });
        });
    }
    SetSetting(settings::LastBackup, values::CStr(QDate::currentDate()));
    showLastBackup();
    forms::plainMessage(this, u"Database Backup Created."_s);
    if (!pictures.isEmpty())
        forms::criticalMessage(this, pictures);
}

void frmSettings::restore()
{
    const QString folder = chosenBackupFolder();
    if (folder.isEmpty())
        return;
    const QString archive = archive::find(folder);
    if (archive.isEmpty()) {
        forms::criticalMessage(this, u"No backup file found!"_s);
        return;
    }
    restoreFrom(archive);
}

/// The file; empty, and said so, when none is chosen.
QString frmSettings::chosenCopy()
{
    const QString copy = m_copies->chosen();
    if (copy.isEmpty())
        forms::criticalMessage(this, u"Please choose a copy in the list!"_s);
    return copy;
}

void frmSettings::look()
{
    if (const QString copy = chosenCopy(); !copy.isEmpty())
        lookInto(copy);
}

void frmSettings::restoreCopy()
{
    if (const QString copy = chosenCopy(); !copy.isEmpty())
        restoreFrom(copy);
}

/// The program ends with the shop's file exchanged: no screen may look into the one that it had open.
void frmSettings::restoreFrom(const QString& archive)
{
    QString pictures;
    {
        Restore restore(archive);
        forms::runInBackground(this, u"Restore Database"_s, [&](const Progress& progress) {
            restore.unpack(progress);
            pictures = shortfall([&] { restore.copyPictures(progress); });
        });
        restore.takePlace({});
    }
    if (!pictures.isEmpty())
        forms::criticalMessage(this, pictures);
    forms::plainMessage(this, u"Database restored.\r\nPlease restart application."_s);
    setNotice(true);
    QCoreApplication::exit();
}

void frmSettings::checkShop()
{
    shopcheck::Report report;
    forms::runInBackground(this, u"Check the Shop"_s,
                           [&report](const Progress& progress) { report = shopcheck::run(progress); });
    frmCheckShop(std::move(report)).showModal();
}

/// The program ends with the new books, as it does with a restored shop.
void frmSettings::makeNewBooks()
{
    frmNewBooks books;
    books.showModal();
    if (!books.isMade())
        return;
    setNotice(true);
    QCoreApplication::exit();
}

void frmSettings::showLastBackup()
{
    QString text = lastBackupText(lastBackupDay(), QDate::currentDate());
    if (!session.CopyTrouble.isEmpty())
        text += u'\n' + session.CopyTrouble;
    ui->lblLastBackup->setText(text);
}
