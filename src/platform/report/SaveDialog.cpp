#include "platform/report/SaveDialog.h"

#include "platform/forms/FileDialogIcons.h"

#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int longestFileName = 60;

/// Without the letters that a file's name can't have on every system.
QString fileName(QString name)
{
    static const QRegularExpression unfit(u"[\\\\/:*?\"<>|\\x00-\\x1F]"_s);
    return name.replace(unfit, u"-"_s).simplified().left(longestFileName);
}

} // namespace

QString askSavePath(QWidget* parent, const QString& title, const QString& name, const QString& suffix,
                    const QString& kinds)
{
    QFileDialog dialog(parent, title, {}, kinds);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    forms::useOwnIcons(dialog);
    dialog.setDefaultSuffix(suffix);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    dialog.setDirectory(QDir(documents).exists() ? documents : QDir::homePath());
    dialog.selectFile(fileName(name) + u'.' + suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

} // namespace report
