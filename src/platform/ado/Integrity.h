#pragma once

#include <QString>

namespace ado {

class Connection;

/// Reads the whole file. What the engine finds wrong, a line each and three at most; empty when it is sound.
QString damage(Connection& connection);

} // namespace ado
