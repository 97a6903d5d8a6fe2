#include "platform/report/SaveDialog.h"

#include "platform/forms/FileDialogIcons.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
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

/// The kind was chosen: the name that stands in the box ends in its ending.
void useKind(QFileDialog& dialog, const std::vector<FileKind>& kinds, const QString& text)
{
    const auto chosen =
        std::find_if(kinds.begin(), kinds.end(), [&](const FileKind& kind) { return kind.text == text; });
    auto* box = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
    if (chosen == kinds.end() || !box)
        return;
    dialog.setDefaultSuffix(chosen->suffix);
    for (const FileKind& kind : kinds)
        if (const QString ending = u'.' + kind.suffix; box->text().endsWith(ending, Qt::CaseInsensitive))
            return box->setText(box->text().chopped(ending.size()) + u'.' + chosen->suffix);
}

} // namespace

QString askSavePath(QWidget* parent, const QString& title, const QString& name,
                    const std::vector<FileKind>& kinds)
{
    QFileDialog dialog(parent, title);
    QStringList texts;
    for (const FileKind& kind : kinds)
        texts << kind.text;
    dialog.setNameFilters(texts);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    forms::useOwnIcons(dialog);
    dialog.setDefaultSuffix(kinds.front().suffix);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&](const QString& text) { useKind(dialog, kinds, text); });
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    dialog.setDirectory(QDir(documents).exists() ? documents : QDir::homePath());
    dialog.selectFile(fileName(name) + u'.' + kinds.front().suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

} // namespace report
