#include "ui/frmSelectFile.h"

#include "platform/forms/Pictures.h"
#include "platform/forms/Thumbnails.h"
#include "ui_frmSelectFile.h"

#include <QDir>
#include <QSet>
#include <QStandardPaths>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace {

const QString cancelled = u"Cancel"_s;
const QString upwards = u".."_s;

/// The drives, or on systems with one tree its root and what is mounted for the operator.
QStringList drives()
{
    QStringList paths;
    for (const QFileInfo& drive : QDir::drives())
        paths += drive.absoluteFilePath();
    static const QStringList operatorsFolders{u"/media/"_s, u"/run/media/"_s, u"/mnt/"_s, u"/Volumes/"_s};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QString path = volume.rootPath();
        for (const QString& folder : operatorsFolders)
            if (path.startsWith(folder) && !paths.contains(path))
                paths += path;
    }
    return paths;
}

} // namespace

frmSelectFile::frmSelectFile(QWidget* parent)
    : Screen(parent)
    , ui(std::make_unique<Ui::frmSelectFile>())
{
    ui->setupUi(this);
    constexpr QSize thumbnail{48, 36};
    m_thumbnails = new forms::Thumbnails(thumbnail, this);
    ui->files->setPictures(
        thumbnail, [this](const QString& name) { return m_thumbnails->of(QDir(m_folder).filePath(name)); });
    connect(m_thumbnails, &forms::Thumbnails::arrived, ui->files->viewport(), qOverload<>(&QWidget::update));
    on(ui->drv, &forms::ComboBox::clicked, &frmSelectFile::openDrive);
    on(ui->Dir, &forms::ListBox::dblClicked, &frmSelectFile::enterFolder);
    onKeyPress(ui->Dir, [this](int& key) {
        if (key == forms::key::Enter)
            enterFolder();
    });
    on(ui->cmbFIletype, &forms::ComboBox::changed, &frmSelectFile::applyPattern);
    on(ui->cmbFIletype, &forms::ComboBox::clicked, &frmSelectFile::applyPattern);
    onLostFocus(ui->cmbFIletype, [this] { applyPattern(); });
    on(ui->files, &forms::ListBox::indexChanged, &frmSelectFile::chooseFile);
    on(ui->files, &forms::ListBox::dblClicked, &frmSelectFile::select);
    onKeyPress(ui->files, [this](int& key) {
        if (key == forms::key::Enter && ui->files->ListIndex() >= 0)
            select();
    });
    onKeyPress(ui->txtfilename, [this](int& key) {
        if (key == forms::key::Enter && !ui->txtfilename->text().isEmpty())
            select();
    });
    on(ui->cmdOK, &QPushButton::clicked, &frmSelectFile::select);
    on(ui->Command1, &QPushButton::clicked, [this] {
        m_answer = cancelled;
        unload();
    });
}

frmSelectFile::~frmSelectFile() = default;

void frmSelectFile::select()
{
    m_answer = ui->txtfilename->text();
    unload();
}

QString frmSelectFile::SelFile()
{
    m_answer = cancelled;
    showModal();
    return m_answer;
}

void frmSelectFile::Form_Load()
{
    ui->cmbFIletype->Clear();
    ui->cmbFIletype->AddItems({u"*.gif"_s, u"*.wmf"_s, u"*.ico"_s, u"*.bmp"_s, u"*.jpg"_s});
    ui->cmbFIletype->setText(u"*.*"_s);
    ui->drv->Clear();
    ui->drv->AddItems(drives());
    openFolder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
}

void frmSelectFile::openDrive() { openFolder(ui->drv->text()); }

/// Lists the folders in a folder; one that isn't there gives way to the operator's own.
void frmSelectFile::openFolder(const QString& path)
{
    QDir folder(path);
    if (!folder.exists())
        folder = QDir::home();
    m_folder = folder.absolutePath();
    m_thumbnails->leave();
    ui->lblFolder->setText(QDir::toNativeSeparators(m_folder));

    QString drive;
    for (const QString& each : drives())
        if (m_folder.startsWith(each, Qt::CaseInsensitive) && each.size() > drive.size())
            drive = each;
    ui->drv->setText(drive);

    ui->Dir->Clear();
    if (!folder.isRoot())
        ui->Dir->AddItem(upwards);
    ui->Dir->AddItems(folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    ui->files->Clear();
    applyPattern();
}

void frmSelectFile::enterFolder()
{
    if (ui->Dir->ListIndex() >= 0)
        openFolder(QDir::cleanPath(m_folder + u'/' + ui->Dir->Text()));
}

/// Lists the files again when they are others; the chosen one stays chosen.
void frmSelectFile::applyPattern()
{
    // "*.*" means all files, those without a point in their name too.
    QString pattern = ui->cmbFIletype->text().trimmed();
    if (pattern == "*.*"_L1)
        pattern = u"*"_s;
    const QStringList names = QDir(m_folder).entryList(pattern.split(u';', Qt::SkipEmptyParts), QDir::Files,
                                                       QDir::Name | QDir::IgnoreCase);
    QStringList listed;
    for (int i = 0; i < ui->files->ListCount(); ++i)
        listed += ui->files->List(i);
    if (names == listed)
        return;
    const QString chosen = ui->files->Text();
    ui->files->Clear();
    ui->files->AddItems(names);
    ui->files->setListIndex(chosen.isEmpty() ? -1 : int(names.indexOf(chosen)));
}

void frmSelectFile::chooseFile()
{
    ui->pic1->clear();
    if (ui->files->ListIndex() < 0)
        return;
    const QString path = QDir(m_folder).filePath(ui->files->Text());
    ui->txtfilename->setText(QDir::toNativeSeparators(path));
    preview(path);
}

/// The picture in the middle of the panel, at its own size unless it is larger than the panel.
void frmSelectFile::preview(const QString& path)
{
    const QSize panel = ui->prv->contentsRect().size();
    QPixmap picture = forms::loadPicture(path, panel * devicePixelRatio());
    picture.setDevicePixelRatio(devicePixelRatio());
    ui->pic1->setPixmap(picture);
}
