#pragma once

#include <QStringList>

namespace ado {
class Connection;
}

/// The version that a database must have for this program to run on it.
inline constexpr int DatabaseVersion = 12;

/// The password of the database file; a constant of the program, never seen by the operator.
QString databasePassword();

/// The tables that every shop's database has.
QStringList tableNames();

/// Makes temporary tables in the place of those that lists and papers are put together in: they stand before
/// the file's own until the connection is closed.
void makeTemporaryTables(ado::Connection& connection);

/// Makes the shop's database, with its default rows, beside the executable; called on a first run only. The
/// file appears whole under its name or not at all. Throws ado::DatabaseError.
void CreateDatabase();
