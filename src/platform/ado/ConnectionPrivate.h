#pragma once

#include "platform/ado/Connection.h"
#include "platform/ado/Statements.h"

#include <vector>

namespace ado {

class FileCopy;

/// What recordsets and their connection share.
struct Connection::Private
{
    sqlite3* database = nullptr;
    QString path;
    QByteArray fileIdentity;
    quint64 opening = 0; // which one of the program's
    bool waiting = false; // for another program's lock
    StatementCache statements;
    std::vector<Recordset*> recordsets; // those open
    std::vector<FileCopy*> copies;      // those being made

    std::stop_token stop; // ends a long statement
    QString refusal;      // of each write, when the file is only looked at

    bool inBatch = false;
    QString rollbackText; // the engine's text, when it took back the open batch on its own

    /// The handle; throws DatabaseError when the connection is closed.
    sqlite3* openHandle() const;
    /// A compiled statement, to be given back to `statements`.
    std::unique_ptr<Prepared> prepare(const QString& sql);
    /// Goes to the next row. False behind the last one. Throws DatabaseError; the statement is then reset,
    /// and outside a batch no transaction is left open.
    bool step(Prepared& statement);
    /// To be called before a write: throws DatabaseError if the writes of the open batch are gone already,
    /// and lets the recordsets that are being read from the table (all, for an empty name) take in the rows
    /// still to come.
    void beforeWrite(const QString& table);
    void refuseIfLost() const;
    void refuseIfReplaced() const;
    void rollBack();
    void closeRecordsets();
    /// Asked by the engine each time that another program's lock is in the way: 1 to try again.
    static int waitForLock(void* connection, int tries);
    /// Runs a statement that yields no rows.
    void run(const QString& sql);
    /// The first value of the first row; nothing where there is no row.
    QVariant firstValue(const QString& sql);
    /// Makes commits survive a power cut. Read back, as the engine goes on in silence when it cannot have its
    /// way.
    void makeDurable();

private:
    /// The engine's text; a fault of the file, not of the statement, names the file.
    QString named(const QString& text, int code) const;
    void endWaiting();
    [[noreturn]] void fail(const QString& text);
};

} // namespace ado
