#pragma once

#include <QString>
#include <stop_token>

namespace ado {

class Connection;

/// Reads the whole file. What the engine finds wrong, a line each and three at most; empty when it is sound.
QString damage(Connection& connection);

/// Ends a long statement when it is cancelled. The token must outlive the connection.
void endWhenAsked(Connection& connection, const std::stop_token& stop);

} // namespace ado
