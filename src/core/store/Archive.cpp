#include "core/store/Archive.h"

#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "platform/ado/Integrity.h"
#include "platform/devices/Files.h"
#include "platform/devices/RunAndWait.h"
#include "platform/values/Numbers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace archive {

namespace {

constexpr qsizetype birthMarkLength = 16; ///< bytes: the engine's salt, drawn when the file is made

QString gzipOrRefuse()
{
    const QString program = gzip();
    if (program.isEmpty())
        throw OperatorError(u"gZip is missing!"_s);
    return program;
}

/// The length of what was packed, modulo 2^32, as the last bytes of an archive tell it.
quint32 toldLength(const QString& archive)
{
    constexpr qint64 size = sizeof(quint32);
    QFile file(archive);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(file.size() - size))
        throw OperatorError(archive + u": "_s + file.errorString());
    const QByteArray bytes = file.read(size);
    return bytes.size() == size ? qFromLittleEndian<quint32>(bytes.constData()) : 0;
}

void refuseUnlessOurs(ado::Connection& connection)
{
    ado::Recordset version(connection);
    version.Open(u"Select * from Settings where SETTING='%1'"_s.arg(settings::DatabaseVersion.number));
    const QString found = version.AtEOF() ? settings::DatabaseVersion.standard : version["value"].text();
    if (values::Val(found) != DatabaseVersion)
        throw OperatorError(
            u"It is a database of version %1. This program works with version %2 alone."_s.arg(found).arg(
                DatabaseVersion));
}

} // namespace

QStringList spellings(const QString& folder)
{
    QDir dir(folder);
    QStringList paths;
    for (const QString& name :
         dir.entryList(QDir::Files | QDir::Dirs | QDir::System | QDir::Hidden, QDir::Time))
        if (name.compare(fileName, Qt::CaseInsensitive) == 0)
            paths << dir.filePath(name);
    return paths;
}

QString find(const QString& folder)
{
    for (const QString& path : spellings(folder))
        if (QFileInfo(path).isFile())
            return path;
    return {};
}

QString gzip()
{
    const QString own = QStandardPaths::findExecutable(u"gzip"_s, {session.appFolder});
    return own.isEmpty() ? QStandardPaths::findExecutable(u"gzip"_s) : own;
}

Scratch::Scratch(const QString& path)
    : m_path(path)
{
    clear(); // what a power cut has left
    files::createPrivate(path);
}

Scratch::~Scratch() { clear(); }

void Scratch::clear() const
{
    QFile::remove(m_path);
    QFile::remove(ado::journalOf(m_path));
}

void pack(const QString& into, const std::stop_token& stop)
{
    const QFileInfo database(session.databasePath());
    // To its standard output: an older data.mdb.gz in the shop's folder is in nobody's way.
    devices::RunAndWait({.program = gzipOrRefuse(),
                         .arguments = {u"-k"_s, u"-9"_s, u"-c"_s, database.fileName()},
                         .folder = session.appFolder,
                         .input = {},
                         .output = into},
                        stop);
}

void unpack(const QString& archive, const QString& into, const std::stop_token& stop)
{
    if (archive.endsWith(".mdb"_L1)) {
        files::copyWhole(archive, into);
        return;
    }
    devices::RunAndWait({.program = gzipOrRefuse(),
                         .arguments = {u"-d"_s, u"-c"_s},
                         .folder = session.appFolder,
                         .input = archive,
                         .output = into},
                        stop);
    // Bytes behind the end, which gzip passes over, would stand where the length does.
    if (toldLength(archive) != static_cast<quint32>(QFileInfo(into).size()))
        throw OperatorError(u"The archive is damaged: it does not end where it should."_s);
}

Counts countRows(ado::Connection& connection)
{
    Counts counts;
    ado::Recordset names(connection);
    ado::Recordset rows(connection);
    for (names.Open(u"Select name from sqlite_master where type='table' order by name"_s); !names.AtEOF();
         names.MoveNext()) {
        const QString name = names[0].text();
        rows.Open(u"Select count(*) from `%1`"_s.arg(name));
        counts[name] = rows[0].value().toLongLong();
    }
    return counts;
}

Counts prove(const QString& database, const std::stop_token& stop)
{
    ado::Connection connection;
    try {
        connection.open(database, databasePassword(), ado::Connection::Mode::ReadOnly);
    } catch (OperatorError& error) {
        error.putBefore(u"What is in it is no database of this program, or has another password, or is "
                        "damaged."_s);
        throw;
    }
    connection.endWhenAsked(stop);
    if (const QString found = ado::damage(connection); !found.isEmpty())
        throw OperatorError(u"The database in it is damaged.\r\n"_s + found);
    const Counts counts = countRows(connection);
    for (const QString& table : tableNames())
        if (!counts.contains(table))
            throw OperatorError(
                u"It is not a database of this program: the table %1 is missing."_s.arg(table));
    refuseUnlessOurs(connection);
    return counts;
}

QByteArray birthMark(const QString& database)
{
    QFile file(database);
    return file.open(QIODevice::ReadOnly) ? file.read(birthMarkLength) : QByteArray();
}

} // namespace archive
