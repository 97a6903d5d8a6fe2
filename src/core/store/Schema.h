#pragma once

#include <QStringList>

/// The version that a database must have for this program to run on it.
inline constexpr int DatabaseVersion = 12;

/// The password of the database file; a constant of the program, never seen by the operator.
QString databasePassword();

/// The tables that every shop's database has.
QStringList tableNames();

/// Makes the shop's database, with its default rows, beside the executable; called on a first run only. The
/// file appears whole under its name or not at all. Throws ado::DatabaseError.
void CreateDatabase();
