#pragma once

#include <QString>
#include <QtGlobal>

/// An account of the ledger that is neither a client nor a worker: cash, sales, wages, expenses.
struct LedgerAccount
{
    qint16 id = 0; ///< 0: not stored yet
    QString title;
    qint32 nature = 0;    ///< entry of the list of account types
    bool isFixed = false; ///< one that the program itself posts to: never renamed, never deleted

    /// Throws ado::DatabaseError, and ado::NoCurrentRecordError for an account that is gone.
    static LedgerAccount read(qint16 id);
    /// Stores it as one commit, and gives a new one its id. Throws ado::DatabaseError, and OverflowError
    /// where the numbers are used up; then nothing is written.
    void save();
    void remove() const;
    /// Whether a posting names it.
    bool isInUse() const;
};
