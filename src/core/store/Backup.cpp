#include "core/store/Backup.h"

#include "core/store/Copies.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Startup.h"
#include "core/store/Texts.h"
#include "platform/devices/Files.h"
#include "platform/values/Dates.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString earlierStands = u"No backup has been made. An earlier one is as it was."_s;
const QString shopStands = u"Nothing has been restored. The shop is as it was."_s;

// Their files while they are not finished.
QString restoringPath() { return session.appFolder + u"/data.restoring.mdb"_s; }
QString proofPath() { return session.appFolder + u"/data.backup-proof.mdb"_s; }
QString packedPath(const QString& folder) { return folder + u'/' + archive::fileName + u".new"_s; }

/// Pictures of the shop, beside the archive.
QString pictureFolder(const QString& folder) { return folder + u"/SEimages"_s; }

/// Runs the work; an error of it begins with what stands.
void orSay(const QString& whatStands, const std::function<void()>& work)
{
    try {
        work();
    } catch (OperatorError& error) {
        error.putBefore(whatStands);
        throw;
    }
}

bool sameFile(const QFileInfo& copy, const QFileInfo& original)
{
    constexpr qint64 coarsest = 2; // seconds: the finest difference of times on a memory stick
    return copy.size() == original.size() && copy.lastModified().addSecs(coarsest) >= original.lastModified();
}

/// Copies the files of a folder that `isWanted`, by the original and the place of its copy. A file that
/// cannot be copied stops none of the others.
void copyFiles(const QString& from, const QString& to, const Progress& progress,
               const std::function<bool(const QFileInfo& original, const QFileInfo& copy)>& isWanted)
{
    QList<QFileInfo> wanted;
    for (const QFileInfo& file : QDir(from).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name))
        if (file.fileName() != files::unfinishedCopy &&
            isWanted(file, QFileInfo(to + u'/' + file.fileName())))
            wanted << file;
    QStringList failed;
    for (qsizetype i = 0; i < wanted.size(); ++i)
        try {
            progress.step(u"copying the pictures, %1 of %2"_s.arg(i + 1).arg(wanted.size()),
                          [&] { files::copyWhole(wanted[i].filePath(), to + u'/' + wanted[i].fileName()); });
        } catch (const Cancelled&) {
            throw;
        } catch (const OperatorError& error) {
            failed << error.text();
        }
    if (!failed.isEmpty())
        throw OperatorError(
            u"%1 of %2 pictures could not be copied, the first for this reason:\r\n%3"_s.arg(failed.size())
                .arg(wanted.size())
                .arg(failed.first()));
}

/// One program at a time makes or restores a backup of the shop.
void takeTurn(QLockFile& lock)
{
    if (files::takeLock(lock))
        return;
    throw OperatorError(lock.error() == QLockFile::LockFailedError
                            ? u"Another program is at a backup of this shop."_s
                            : u"The shop's folder cannot be written: "_s +
                                  QDir::toNativeSeparators(session.appFolder));
}

QString lockPath() { return session.appFolder + u"/data.backup.lock"_s; }

/// Removes the files, with their journals, unless a program that holds the lock may be at them.
void clearUnlessHeld(const QString& lockPath, const QStringList& paths)
{
    if (std::none_of(paths.begin(), paths.end(), [](const QString& path) { return QFileInfo::exists(path); }))
        return;
    QLockFile lock(lockPath);
    if (!files::takeLock(lock))
        return;
    for (const QString& path : paths) {
        QFile::remove(path);
        QFile::remove(ado::journalOf(path));
    }
}

/// A shop without a single record, as a first start makes it.
bool isNewShop()
{
    try {
        archive::Counts counts = archive::countRows(DE.connection());
        ado::Recordset own(DE.connection());
        own.Open(u"Select * from Accounts where readonly<>1"_s);
        return own.RecordCount() + counts[u"JOBS"_s] + counts[u"JOBS_DETAIL"_s] + counts[u"postings"_s] +
                   counts[u"ITEMS"_s] ==
               0;
    } catch (const ado::DatabaseError&) {
        return false; // it cannot be read: that may be why a backup is wanted
    }
}

/// Where the shop's file is kept: a name that nothing has.
QString freeName()
{
    const auto name = [](int number) -> QString {
        return session.appFolder +
               (number == 1 ? u"/data.before-restore.mdb"_s : u"/data.before-restore-%1.mdb"_s.arg(number));
    };
    int number = 1;
    while (QFileInfo::exists(name(number)) || QFileInfo(name(number)).isSymLink())
        ++number;
    return name(number);
}

} // namespace

/// A read transaction: no program changes the file while it lasts, and all that is read is of one moment.
class Backup::Hold
{
public:
    Hold() { DE.connection().Execute(u"BEGIN"_s); }
    ~Hold() { DE.connection().letGo(); }
    Q_DISABLE_COPY_MOVE(Hold)
};

Backup::Backup(const QString& folder)
    : m_lock(lockPath())
    , m_folder(folder)
{
    orSay(earlierStands, [this] {
        if (!QFileInfo(m_folder).isDir())
            throw OperatorError(
                u"There is no folder %1. If it is on a stick or another disk, is that in?"_s.arg(
                    QDir::toNativeSeparators(m_folder)));
        for (const QString& path : archive::spellings(m_folder))
            if (!QFileInfo(path).isFile())
                throw OperatorError(
                    u"%1 is in the way: it is no file."_s.arg(QDir::toNativeSeparators(path)));
        takeTurn(m_lock);
        m_hold = std::make_unique<Hold>();
        m_counts = archive::countRows(DE.connection()); // the first read takes the lock
    });
}

Backup::~Backup() = default;

void Backup::run(const Progress& progress)
{
    orSay(earlierStands, [&] {
        std::unique_ptr<archive::Scratch> packed;
        const QString place = m_folder + u'/' + archive::fileName;
        progress.step(u"packing the database"_s, [&] {
            packed = std::make_unique<archive::Scratch>(packedPath(m_folder));
            archive::pack(packed->path(), progress.stop);
        });
        {
            const archive::Scratch unpacked(proofPath());
            progress.step(u"unpacking it again for a proof"_s,
                          [&] { archive::unpack(packed->path(), unpacked.path(), progress.stop); });
            progress.step(u"comparing it with the shop"_s, [&] {
                if (archive::prove(unpacked.path(), progress.stop) != m_counts)
                    throw OperatorError(u"It holds other records than the shop."_s);
            });
        }
        m_hold.reset();
        progress.step(u"putting it in its place"_s, [&] { files::replace(place, packed->path()); });
        for (const QString& path : archive::spellings(m_folder)) // the same archive, an earlier one
            if (QFileInfo(path).fileName() != archive::fileName)
                QFile::remove(path);
    });
}

void Backup::copyPictures(const Progress& progress) const
{
    orSay(u"The database is backed up, but not all pictures are."_s, [&] {
        const QString to = pictureFolder(m_folder);
        if (QDir(session.imagesFolder()).isEmpty(QDir::Files | QDir::Hidden))
            return;
        if (!QDir().mkpath(to))
            throw OperatorError(u"The folder %1 cannot be made."_s.arg(QDir::toNativeSeparators(to)));
        files::keepPrivate(to);
        copyFiles(session.imagesFolder(), to, progress, [](const QFileInfo& original, const QFileInfo& copy) {
            return !copy.exists() || !sameFile(copy, original);
        });
    });
}

Restore::Restore(const QString& archive)
    : m_lock(lockPath())
    , m_archive(archive)
    , m_birthMark(archive::birthMark(session.databasePath()))
    , m_isNew(isNewShop())
{
    orSay(shopStands, [this] { takeTurn(m_lock); });
}

void Restore::unpack(const Progress& progress)
{
    orSay(shopStands, [&] {
        progress.step(u"unpacking the archive"_s, [&] {
            m_unpacked = std::make_unique<archive::Scratch>(restoringPath());
            archive::unpack(m_archive, m_unpacked->path(), progress.stop);
        });
        progress.step(u"proving the archive"_s, [&] {
            archive::prove(m_unpacked->path(), progress.stop);
            refuseOtherShop();
        });
    });
}

/// A new computer's shop takes every archive; one at work takes its own alone.
void Restore::refuseOtherShop() const
{
    if (!m_isNew && archive::birthMark(m_unpacked->path()) != m_birthMark)
        throw OperatorError(u"It is the backup of another shop, and this one has records of its own. To "
                            "restore it, start the program in a folder without a shop."_s);
}

void Restore::copyPictures(const Progress& progress) const
{
    orSay(u"Not all pictures could be brought back."_s, [&] {
        MakeImagesFolder();
        copyFiles(
            pictureFolder(QFileInfo(m_archive).path()), session.imagesFolder(), progress,
            [](const QFileInfo&, const QFileInfo& copy) { return !copy.exists() && !copy.isSymLink(); });
    });
}

void Restore::takePlace(const Progress& progress) { replaceShop(m_unpacked->path(), progress); }

void replaceShop(const QString& proved, const Progress& progress, const QString& keptAs)
{
    const QString database = session.databasePath();
    const QString aside = keptAs.isEmpty() ? freeName() : keptAs;
    bool kept = false;
    orSay(shopStands, [&] {
        try {
            progress.step(u"keeping the shop's file under another name"_s, [&] {
                DE.connection().holdAlone();
                kept = files::addName(database, aside);
                if (!kept && QFileInfo::exists(database))
                    throw OperatorError(u"%1 cannot be made."_s.arg(QDir::toNativeSeparators(aside)));
                files::sync(session.appFolder);
            });
            progress.step(u"putting the new file in its place"_s, [&] {
                // The journal that a damaged file may have would be played back into this one.
                if (QFileInfo(ado::journalOf(database)).size() > 0)
                    QFile::rename(ado::journalOf(database), ado::journalOf(aside));
                files::replace(database, proved);
            });
        } catch (...) {
            if (kept)
                QFile::remove(aside);
            DE.connection().letGo();
            throw;
        }
    });
    DE.close();
}

void clearLeftovers(const QString& backupFolder)
{
    QStringList places{restoringPath(), proofPath(), session.appFolder + u"/data.new-books.mdb"_s,
                       session.appFolder + u'/' + files::unfinishedCopy};
    for (const copies::Copy& aside : copies::putAside() + copies::oldBooks()) // the shop's file's second name
        if (files::identity(aside.path) == files::identity(session.databasePath()))
            places << aside.path;
    if (!backupFolder.isEmpty())
        places << packedPath(backupFolder) << backupFolder + u"/SEcopies/"_s + files::unfinishedCopy
               << pictureFolder(backupFolder) + u'/' + files::unfinishedCopy;
    clearUnlessHeld(lockPath(), places);
    clearUnlessHeld(copies::lockPath(), {copies::folder() + u'/' + archive::unfinishedCopy});
}

QDate lastBackupDay()
{
    const QDate noted = values::readDate(GetSetting(settings::LastBackup));
    if (noted.isValid())
        return noted;
    const QString folder = GetSetting(settings::BackupFolder);
    const QString archive = folder.isEmpty() ? QString() : archive::find(folder);
    return archive.isEmpty() ? QDate() : QFileInfo(archive).lastModified().date();
}

QString lastBackupText(const QDate& last, const QDate& today)
{
    if (!last.isValid())
        return u"No backup yet"_s;
    const qint64 days = last.daysTo(today);
    if (days == 0)
        return u"Last backup: today"_s;
    if (days == 1)
        return u"Last backup: yesterday"_s;
    return u"Last backup: "_s + (days > 0 ? u"%1 days ago"_s.arg(days) : dateText(last));
}
