#pragma once

struct sqlite3;

namespace ado {

/// Adds the functions that the system's SQL knows to an open database: month(), day(), a `like` that
/// folds case in every script, and a `sum` that is exact to four decimals.
void registerFunctions(sqlite3* database);

} // namespace ado
