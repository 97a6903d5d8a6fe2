#include "platform/ado/Connection.h"

#include "platform/ado/ConnectionPrivate.h"
#include "platform/ado/Dialect.h"
#include "platform/ado/FileCopy.h"
#include "platform/ado/Functions.h"
#include "platform/ado/OpenAhead.h"
#include "platform/ado/RecordsetPrivate.h"
#include "platform/devices/Files.h"

#include <QFileInfo>
#include <atomic>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace ado {

namespace {

constexpr int longestWait = 5000; // milliseconds
constexpr int pause = 20;

std::function<void(bool)> busyNotice;

QString engineText(sqlite3* database) { return QString::fromUtf8(sqlite3_errmsg(database)); }

} // namespace

void setBusyNotice(std::function<void(bool waiting)> notice) { busyNotice = std::move(notice); }

int Connection::Private::waitForLock(void* connection, int tries)
{
    auto& self = *static_cast<Private*>(connection);
    if (tries * pause >= longestWait)
        return 0;
    if (!self.waiting && busyNotice)
        busyNotice(true);
    self.waiting = true;
    sqlite3_sleep(pause);
    return 1;
}

void Connection::Private::endWaiting()
{
    if (std::exchange(waiting, false) && busyNotice)
        busyNotice(false);
}

sqlite3* Connection::Private::openHandle() const
{
    if (!database)
        throw DatabaseError(u"The connection is closed."_s);
    return database;
}

std::unique_ptr<Prepared> Connection::Private::prepare(const QString& sql)
{
    try {
        auto statement = statements.take(openHandle(), sql);
        endWaiting();
        return statement;
    } catch (const DatabaseError& error) {
        endWaiting();
        throw DatabaseError(named(error.text(), sqlite3_errcode(database)));
    }
}

bool Connection::Private::step(Prepared& statement)
{
    const int code = sqlite3_step(statement.handle());
    endWaiting();
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    const QString text = named(engineText(database), code);
    statement.reset();
    fail(text);
}

QString Connection::Private::named(const QString& text, int code) const
{
    if ((code & 0xFF) == SQLITE_READONLY && !refusal.isEmpty())
        return refusal;
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_READONLY:
    case SQLITE_IOERR:
    case SQLITE_CORRUPT:
    case SQLITE_FULL:
    case SQLITE_CANTOPEN:
    case SQLITE_NOTADB:
    case SQLITE_NOMEM: // also said of a page that cannot be decrypted
        return path.isEmpty() ? text : path + u": "_s + text;
    default:
        break;
    }
    // So the engine calls a page that cannot be decrypted; its other errors of this kind have their own
    // words.
    if (!path.isEmpty() && text == QLatin1StringView(sqlite3_errstr(SQLITE_ERROR)))
        return path + u": a part of the file is damaged ("_s + text + u')';
    return text;
}

void Connection::Private::fail(const QString& text)
{
    const bool open = sqlite3_get_autocommit(database) == 0;
    if (inBatch && !open && rollbackText.isEmpty())
        rollbackText = text;
    if (!inBatch && open)
        sqlite3_exec(database, "ROLLBACK", nullptr, nullptr, nullptr);
    throw DatabaseError(text);
}

/// A write behind a batch that the engine has taken back would stand alone.
void Connection::Private::refuseIfLost() const
{
    if (!rollbackText.isEmpty())
        throw DatabaseError(rollbackText);
}

/// The engine would go on writing into the file that it has open, or into the one that stands in its place.
void Connection::Private::refuseIfReplaced() const
{
    if (!fileIdentity.isEmpty() && files::identity(path) != fileIdentity)
        throw DatabaseError(path +
                            u": this is no longer the file that was opened. Close the program, see that the "
                            "right file is in its place, and start again."_s);
}

/// Ends the batch with nothing of it in the file. Rows that recordsets still hold may be of the batch.
void Connection::Private::rollBack()
{
    inBatch = false;
    rollbackText.clear();
    closeRecordsets();
    if (database && sqlite3_get_autocommit(database) == 0)
        sqlite3_exec(database, "ROLLBACK", nullptr, nullptr, nullptr);
}

void Connection::Private::closeRecordsets()
{
    while (!recordsets.empty())
        recordsets.back()->Close();
}

void Connection::Private::beforeWrite(const QString& table)
{
    refuseIfLost();
    refuseIfReplaced();
    for (Recordset* recordset : recordsets)
        recordset->d->takeInRest(table);
}

void Connection::Private::run(const QString& sql)
{
    Prepared statement(openHandle(), sql);
    while (step(statement)) {
    }
}

QVariant Connection::Private::firstValue(const QString& sql)
{
    Prepared statement(openHandle(), sql);
    return step(statement) ? statement.column(0) : QVariant();
}

void Connection::Private::makeDurable()
{
    const bool truncate = firstValue(u"PRAGMA journal_mode=TRUNCATE"_s).toString() == u"truncate";
    run(u"PRAGMA synchronous=FULL"_s);
    constexpr int full = 2;
    if (!truncate || firstValue(u"PRAGMA synchronous"_s).toInt() != full)
        throw DatabaseError(u"The journal cannot be made safe."_s);
}

Connection::Connection()
    : d(std::make_unique<Private>())
{
}

Connection::~Connection() { close(); }

void Connection::create(const QString& path, const QString& password)
{
    close();
    if (QFileInfo::exists(path))
        throw DatabaseError(path + u": the file exists already."_s);
    openFile(path, password, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

void Connection::open(const QString& path, const QString& password, Mode mode)
{
    close();
    const QFileInfo file(path);
    if (!file.exists())
        throw DatabaseError(path + u": the file does not exist."_s);
    if (!file.isFile())
        throw DatabaseError(path + u": this is no file."_s);
    // The engine would take a file of one byte, too, for a new database.
    if (file.size() <= 1)
        throw DatabaseError(path + u": the file is empty."_s);
    openFile(path, password, mode == Mode::ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
}

void Connection::openToLook(const QString& path, const QString& password, const QString& refusal)
{
    open(path, password, Mode::ReadOnly);
    d->refusal = refusal;
}

void Connection::openFile(const QString& path, const QString& password, int flags)
{
    static std::atomic<quint64> openings = 0;
    d->opening = ++openings;
    d->database = takeOpenedAhead(path, password, flags);
    try {
        if (!d->database && openHandle(path, password, flags, &d->database) != SQLITE_OK)
            throw DatabaseError(engineText(d->database));
        sqlite3_busy_handler(d->database, &Private::waitForLock, d.get());
        // Only this first read proves the password.
        d->firstValue(u"SELECT count(*) FROM sqlite_master"_s);
        if (flags & SQLITE_OPEN_READWRITE)
            d->makeDurable();
        d->run(u"PRAGMA cache_size=-65536"_s);
        registerFunctions(d->database);
    } catch (const DatabaseError& error) {
        close();
        throw DatabaseError(path + u": "_s + error.text());
    }
    d->path = path;
    d->fileIdentity = files::identity(path);
}

void Connection::close()
{
    d->closeRecordsets();
    while (!d->copies.empty()) // the engine would keep the file open for them
        d->copies.back()->giveUp();
    d->statements.clear();
    sqlite3_close(d->database);
    d->database = nullptr;
    d->path.clear();
    d->refusal.clear();
    d->fileIdentity.clear();
}

bool Connection::isOpen() const { return d->database != nullptr; }

void Connection::endWhenAsked(const std::stop_token& stop)
{
    constexpr int often = 1000; // instructions of the engine
    d->stop = stop;
    sqlite3_progress_handler(
        d->openHandle(), often,
        [](void* token) { return int(static_cast<const std::stop_token*>(token)->stop_requested()); },
        &d->stop);
}

void Connection::holdAlone()
{
    try {
        Execute(u"BEGIN EXCLUSIVE"_s);
    } catch (const DatabaseError&) {
        if (sqlite3_errcode(d->database) == SQLITE_BUSY)
            throw;
    }
}

void Connection::letGo()
{
    if (d->database && sqlite3_get_autocommit(d->database) == 0)
        Execute(u"ROLLBACK"_s);
}

Connection::Version Connection::version() const
{
    return {.opening = d->opening,
            .ownWrites = sqlite3_total_changes(d->openHandle()),
            .othersWrites = d->firstValue(u"PRAGMA data_version"_s).toLongLong()};
}

sqlite3* Connection::handle() const { return d->database; }

int Connection::Execute(const QString& sql)
{
    const dialect::Statement translated = dialect::translate(sql);
    const std::unique_ptr<Prepared> compiled = d->prepare(translated.sql);
    Prepared& statement = *compiled;
    const bool writes = sqlite3_stmt_readonly(statement.handle()) == 0;
    if (writes)
        d->beforeWrite({});
    const int before = sqlite3_total_changes(d->database);
    while (d->step(statement)) {
    }
    return writes ? sqlite3_total_changes(d->database) - before : 0;
}

void Connection::writeBatch(const std::function<void()>& work, const QString& refused)
{
    if (d->inBatch) {
        work();
        return;
    }
    try {
        // A file that is looked at takes no lock for a write: what only fills temporary tables goes through.
        d->run(d->refusal.isEmpty() ? u"BEGIN IMMEDIATE"_s : u"BEGIN"_s);
        d->inBatch = true;
        work();
        d->refuseIfLost();
        d->refuseIfReplaced();
        d->run(u"COMMIT"_s);
        d->inBatch = false;
    } catch (OperatorError& error) {
        d->rollBack();
        if (!refused.isEmpty() && d->refusal.isEmpty())
            error.putBefore(refused);
        throw;
    } catch (...) {
        d->rollBack();
        throw;
    }
}

} // namespace ado
