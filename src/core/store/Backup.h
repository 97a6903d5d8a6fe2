#pragma once

#include "core/store/Archive.h"

#include <QDate>
#include <QLockFile>
#include <memory>

/// The shop's life insurance: its database as one packed file in a folder of the shop's choice, its pictures
/// beside that, and the way back.
///
/// Each comes in two parts: what is slow blocks its thread, so that a screen can let it run aside; the rest
/// belongs to the thread of the shop's connection. All of it throws OperatorError whose text says which step
/// failed and what stands; and Cancelled.

/// Makes a backup. A failure or a cancel leaves an earlier archive as it was and nothing beside it.
class Backup
{
public:
    /// Keeps other programs from changing the shop's file until it is packed. For the connection's thread.
    explicit Backup(const QString& folder);
    ~Backup();

    /// Packs the database, unpacks it again, compares it with the live one, and only then gives it the
    /// archive's name. Slow.
    void run(const Progress& progress);

    /// Brings the pictures beside the archive up to date: new and changed ones. Slow.
    void copyPictures(const Progress& progress) const;

private:
    class Hold;

    QLockFile m_lock;
    QString m_folder;
    archive::Counts m_counts;
    std::unique_ptr<Hold> m_hold;
};

/// Restores a backup. Until takePlace() has done its work the shop is as it was.
class Restore
{
public:
    /// For the connection's thread.
    explicit Restore(const QString& archive);

    /// Unpacks the archive beside the shop and proves it. Slow.
    void unpack(const Progress& progress);

    /// Brings back the pictures that the shop lacks from beside the archive. Slow.
    void copyPictures(const Progress& progress) const;

    /// Keeps the shop's file under another name, "data.before-restore.mdb" or with a number, and puts the
    /// restored one in its place; a power cut leaves the one or the other there, whole. The connection is
    /// closed then. For its thread.
    void takePlace(const Progress& progress);

private:
    void refuseOtherShop() const;

    QLockFile m_lock;
    QString m_archive;
    QByteArray m_birthMark;
    bool m_isNew; ///< the shop has no records yet
    std::unique_ptr<archive::Scratch> m_unpacked;
};

/// Puts a proved file in the place of the shop's, which is kept as `data.before-restore.mdb` (then `-2` and
/// so on), and closes the connection. At any time, also after a power cut, one of both stands under the
/// shop's name. Throws OperatorError: the shop is as it was then.
void replaceShop(const QString& proved, const Progress& progress = {}, const QString& keptAs = {});

/// Removes what a backup, a restore or a copy that was killed has left, beside the shop and in the backup
/// folder. What another program is at stays.
void clearLeftovers(const QString& backupFolder);

/// The day of the last backup. A shop that was restored does not know of the archive that it came from: then
/// the day of the archive in its backup folder. Invalid without either.
QDate lastBackupDay();
/// "Last backup: 12 days ago", "No backup yet": by the system's date, for the shop can move its own.
QString lastBackupText(const QDate& last, const QDate& today);
