#pragma once

#include "platform/ado/DatabaseError.h"
#include "platform/values/Literals.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <stop_token>

struct sqlite3;

/// Access to tables in the vocabulary of connections and recordsets, over an encrypted SQLite
/// file.
namespace ado {

class Recordset;

/// The file beside a database in which the engine keeps what a write replaces, until the write is whole.
inline QString journalOf(const QString& database) { return database + u"-journal"_s; }

/// Is called with true when a statement begins to wait for another program's lock, and with false when the
/// wait is over; it lasts 5 seconds at most.
void setBusyNotice(std::function<void(bool waiting)> notice);

/// Begins to open a file in the background: nearly all of that time goes into the key that is made of the
/// password. The next Connection::open() of the file goes on from there; it finds what is wrong with it, too.
void openAhead(const QString& path, const QString& password);

/// One handle on one database file. Not to be shared between threads.
class Connection
{
public:
    enum class Mode { ReadWrite, ReadOnly };

    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Makes a new encrypted file (an empty password makes a plain one). Throws DatabaseError if the path
    /// exists or cannot be written. The file stands there empty until its first table is written.
    void create(const QString& path, const QString& password);
    /// Opens an existing file and proves the password with one read. Throws DatabaseError, whose text names
    /// the file, if it is missing, empty, damaged or of another password; nothing is ever written to such a
    /// file.
    void open(const QString& path, const QString& password, Mode mode = Mode::ReadWrite);
    /// Opens a file that is only to be looked at, as open() does: each write into it is refused with this
    /// sentence, and the file stays as it is. Temporary tables can be made and written.
    void openToLook(const QString& path, const QString& password, const QString& refusal);
    /// Closes the handle; recordsets still open on it are closed. No fault if it is not open.
    void close();
    bool isOpen() const;

    /// Runs one statement in the system's dialect and returns the number of rows it changed. Throws
    /// DatabaseError.
    int Execute(const QString& sql);

    /// Makes the writes of one operation one commit, whole or not at all. When `work` ends by an exception,
    /// or the commit is refused, everything is rolled back, all recordsets are closed, and the exception goes
    /// on to the caller; before the text of an OperatorError then stands `refused`, unless that is empty. A
    /// batch inside a batch is part of the outer one. No event loop may run inside.
    void writeBatch(const std::function<void()>& work, const QString& refused = u"Nothing has been saved."_s);

    /// Ends a long statement with an error once `stop` is asked for. For a connection that is open.
    void endWhenAsked(const std::stop_token& stop);

    /// Makes sure that no program is in the middle of a write, and undoes what a killed one has left
    /// half-written; nobody else can write until letGo(). A file too damaged for locks is taken as it is.
    /// Throws DatabaseError while another program is at work.
    void holdAlone();
    /// Ends holdAlone(), or a transaction that was begun by a statement.
    void letGo();

    /// Tells states of the file apart: it differs when something has been written meanwhile, through this
    /// handle or another, or the file was opened anew. Throws DatabaseError.
    struct Version
    {
        quint64 opening = 0;
        qint64 ownWrites = 0;
        qint64 othersWrites = 0;
        bool operator==(const Version&) const = default;
    };
    Version version() const;

    /// The engine's handle, for its benches and tests. Null when not open.
    sqlite3* handle() const;

private:
    friend class FileCopy;
    friend class Reader;
    friend class Recordset;
    struct Private;
    void openFile(const QString& path, const QString& password, int flags);

    std::unique_ptr<Private> d;
};

} // namespace ado
