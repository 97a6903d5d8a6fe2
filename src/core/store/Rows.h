#pragma once

#include "platform/ado/Reader.h"
#include "platform/ado/Recordset.h"

#include <functional>

/// Reading and writing rows of the shop's file. Each opens a recordset of its own and closes it on every way
/// out, a fault in the middle too: nothing stays open that would keep other programs from the file. All throw
/// ado::DatabaseError, and what the function handed over throws.

using UseRow = std::function<void(ado::Recordset& row)>;

/// Hands over the rows of a query, one after the other.
void each(const QString& sql, const UseRow& take);

/// Rows of a query to be read once, a few of their columns, for long lists.
ado::Reader readRows(const QString& sql);

/// The integer in the first row and column of a query; 0 for none and for a null.
qint32 one(const QString& sql);

/// Whether a query finds any row.
bool any(const QString& sql);

/// Hands over the first (last) row of a query. False, with nothing handed over, where there is none.
bool firstRow(const QString& sql, const UseRow& take);
bool lastRow(const QString& sql, const UseRow& take);

/// Hands over the rows of a query as they stand open on the first, to go through them, add or change some.
/// What is not written by Update or UpdateBatch is dropped.
void withRows(const QString& sql, const UseRow& use);

/// Sets fields of the row that a query finds, and writes it. Throws ado::NoCurrentRecordError where there is
/// none.
void changeRow(const QString& sql, const UseRow& change);

/// Sets fields of each row of a query, and writes all at the end.
void changeRows(const QString& sql, const UseRow& change);

/// Adds a row to a table, and returns its `ID`.
qint32 addRow(const QString& table, const UseRow& fill);
