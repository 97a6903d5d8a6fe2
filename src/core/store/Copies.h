#pragma once

#include "core/store/Archive.h"
#include "platform/ado/FileCopy.h"

#include <QDate>
#include <QDateTime>
#include <QLockFile>
#include <QSet>
#include <memory>
#include <optional>

/// The shop's dated copies: one of each day on which something changed, as the day's last change left the
/// shop, in the folder `copies` beside the shop's file. They are encrypted as the shop is, open with its
/// password, and are taken by Restore.
namespace copies {

/// A file that holds the shop as it was.
struct Copy
{
    QString path;
    QDate day;         ///< of the last change in it, by the system's clock; invalid: the name tells none
    QDate workingDay;  ///< the day that the shop worked on
    QDateTime changed; ///< of the last change in it, or of the file
    qint64 size = 0;   ///< bytes
};

QString folder();
/// Held by the program that makes a copy.
QString lockPath();

/// "shop-2026-11-23-works-on-2024-02-10.mdb".
QString fileName(const QDate& day, const QDate& workingDay);
/// Reads such a name; nothing for any other.
std::optional<std::pair<QDate, QDate>> readFileName(const QString& name);

/// One file, by its path.
Copy read(const QString& path);
/// The copies in a folder, the newest first; those of other names behind them.
QList<Copy> inFolder(const QString& folder);
/// The shop's files that a restore has put aside, the newest first, and behind them the old books.
QList<Copy> putAside();
/// The shop's old books, the newest first.
QList<Copy> oldBooks();
/// Their last day; invalid for any other file.
QDate lastDayOfBooks(const QString& path);

/// The days whose copies stay: the last seven, the last of each of four weeks (from Monday) before those, the
/// last of each of twelve months before those. Days are counted as they are there, so that a long rest takes
/// nothing away. Those behind `today`, from when the clock was wrong, are counted by themselves.
QSet<QDate> kept(const QList<QDate>& days, const QDate& today);

/// What a list tells of a copy. Slow: the key alone takes a good part of a tenth of a second. For any thread.
/// Throws OperatorError when the file is none of a shop.
struct Contents
{
    qint64 cards = 0;
    qint64 postings = 0;
};
Contents contentsOf(const QString& path);

/// Whether something in the shop has changed since its newest copy was made.
bool isDue();

/// A copy in the making. Throws OperatorError that says what has failed; what stood before then stands.
class Making
{
public:
    /// For the connection's thread, as are the steps. An invalid working day is that of the last change.
    explicit Making(const QDate& workingDay);

    /// Copies so many pages more, all of them for -1; true when all are there.
    bool step(int pages);

    /// Proves the copy, gives it its name in place of an earlier one of the same day, and thins the others.
    /// Slow; for any thread, after the last step.
    void takePlace();

private:
    void settle();

    QLockFile m_lock;
    QDate m_workingDay;
    QDateTime m_changed;
    archive::Counts m_counts;
    std::unique_ptr<archive::Scratch> m_scratch;
    std::unique_ptr<ado::FileCopy> m_copy;
};

/// Makes sure that the backup folder has the newest copy, and no older one of this shop, in `SEcopies`. Slow;
/// for any thread. Throws OperatorError. Nothing to do for an empty folder.
void bringTo(const QString& backupFolder);

/// The whole work at the end of the program: what fails here is tried again, and reported, at the next start.
void finishDay();

} // namespace copies
