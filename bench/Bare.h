#pragma once

/// The bare engine on the shop's open file: the floor that the database layer is measured against.
namespace bare {

/// Compiles the statement, runs it to its end, reads every cell as text; returns the number of rows.
int run(const char* sql);

} // namespace bare
