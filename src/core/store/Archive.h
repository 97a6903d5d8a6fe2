#pragma once

#include "platform/values/Progress.h"

#include <QMap>
#include <QStringList>

namespace ado {
class Connection;
}

/// The packed copy of the shop's database, and the proof that it is one.
namespace archive {

/// The archive's name in the backup folder. A file of another spelling, "sebackup.gz" say, is the same one.
inline constexpr QLatin1StringView fileName("SEbackup.gz");

/// A copy of the database that is not finished.
inline constexpr QLatin1StringView unfinishedCopy("unfinished.mdb.new");

/// The paths in a folder that are the archive's in any spelling, the newest file first.
QStringList spellings(const QString& folder);
/// The archive of a folder; empty when there is no such file.
QString find(const QString& folder);

/// The program that packs: the one beside our own, else of the search path. Empty when it is missing.
QString gzip();

/// A file of our own beside others, for the owner alone; gone with the object, with its journal.
class Scratch
{
public:
    /// Throws OperatorError.
    explicit Scratch(const QString& path);
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const QString& path() const { return m_path; }

private:
    void clear() const;

    QString m_path;
};

/// Packs the shop's database into the file. These block their thread. They throw OperatorError, and
/// Cancelled.
void pack(const QString& into, const std::stop_token& stop);
/// Unpacks an archive into the file: all of it, and nothing but it. A file of the shop's that is not packed
/// is copied.
void unpack(const QString& archive, const QString& into, const std::stop_token& stop);

/// Each table of a database with the number of its rows.
using Counts = QMap<QString, qint64>;
Counts countRows(ado::Connection& connection);

/// Opens an unpacked database, reads all of it, and gives back its tables. Throws OperatorError when it is
/// not whole, or none of this program's, or of another version; and Cancelled.
Counts prove(const QString& database, const std::stop_token& stop);

/// Tells a shop's database, from the day that it was made, from that of any other shop.
QByteArray birthMark(const QString& database);

} // namespace archive
