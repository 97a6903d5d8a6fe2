#pragma once

#include "core/store/NewBooks.h"
#include "platform/ado/Connection.h"

/// The steps of new books, for core/store/NewBooks.cpp and its tests.
namespace newbooks {

/// Makes, on a connection to the shop, the temporary tables of what comes along, by `Id`: `keptCards`,
/// `keptPostings`, `keptAccounts`, `keptLines`.
void choose(ado::Connection& shop, const Plan& plan);

/// Turns a copy of the shop, in which choose() was made, into the new books, as one commit.
void carryOver(ado::Connection& books, const Plan& plan);

/// Compares both files. Throws OperatorError that names what differs.
void prove(ado::Connection& old, ado::Connection& books, const Plan& plan);

} // namespace newbooks
