#include "platform/forms/FileDialogIcons.h"

#include "platform/forms/Icons.h"

#include <QFileDialog>
#include <QFileIconProvider>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

/// What the rows of a file dialog show. It goes with the dialog.
class RowIcons : public QObject, public QFileIconProvider
{
public:
    explicit RowIcons(QFileDialog& dialog)
        : QObject(&dialog)
    {
    }

    QIcon icon(IconType type) const override
    {
        switch (type) {
        case File:
            return m_file;
        case Drive:
        case Computer:
        case Network:
            return m_drive;
        default:
            return m_folder;
        }
    }
    QIcon icon(const QFileInfo& row) const override
    {
        if (row.isRoot())
            return m_drive;
        if (row.absoluteFilePath() == QDir::homePath())
            return m_home;
        return row.isDir() ? m_folder : m_file;
    }

private:
    const QIcon m_folder = lineIcon(u"folder"_s);
    const QIcon m_file = lineIcon(u"file"_s);
    const QIcon m_drive = lineIcon(u"drive"_s);
    const QIcon m_home = lineIcon(u"home"_s);
};

/// The drawing for a picture that styles know; empty for those of no file dialog.
QString drawingFor(QStyle::StandardPixmap which)
{
    switch (which) {
    case QStyle::SP_FileDialogBack:
    case QStyle::SP_ArrowBack:
        return u"previous"_s;
    case QStyle::SP_ArrowForward:
        return u"next"_s;
    case QStyle::SP_FileDialogToParent:
        return u"folder-up"_s;
    case QStyle::SP_FileDialogNewFolder:
        return u"folder-new"_s;
    case QStyle::SP_FileDialogListView:
        return u"list-view"_s;
    case QStyle::SP_FileDialogDetailedView:
        return u"detail-view"_s;
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirLinkIcon:
        return u"folder"_s;
    case QStyle::SP_DirHomeIcon:
        return u"home"_s;
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
        return u"file"_s;
    case QStyle::SP_DriveHDIcon:
    case QStyle::SP_ComputerIcon:
        return u"drive"_s;
    default:
        return {};
    }
}

} // namespace

void useOwnIcons(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setIconProvider(new RowIcons(dialog));
}

OwnStyle::OwnStyle()
    : QProxyStyle(u"Fusion"_s)
{
}

QIcon OwnStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const
{
    const QString drawing = drawingFor(which);
    return drawing.isEmpty() ? QProxyStyle::standardIcon(which, option, widget) : lineIcon(drawing);
}

} // namespace forms
