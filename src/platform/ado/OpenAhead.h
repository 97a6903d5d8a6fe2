#pragma once

#include <QString>

struct sqlite3;

namespace ado {

/// Opens the engine's handle on a file, with its key. The handle is to be closed, also when this gives a code
/// other than SQLITE_OK.
int openHandle(const QString& path, const QString& password, int flags, sqlite3** database);

/// The handle that openAhead() has opened on the file, its key made. Null where there is none; one that is
/// opened otherwise is closed.
sqlite3* takeOpenedAhead(const QString& path, const QString& password, int flags);

} // namespace ado
