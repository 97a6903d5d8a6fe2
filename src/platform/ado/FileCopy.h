#pragma once

#include "platform/values/Literals.h"

#include <QString>
#include <memory>

struct sqlite3;
struct sqlite3_backup;

namespace ado {

class Connection;

/// A copy of a connection's database in a file of its own, made page by page by the engine: between two steps
/// the connection is free for reads and writes, and what it writes reaches the copy too. What another program
/// writes meanwhile lets the copy begin anew by itself.
///
/// The copy opens with the same password and begins with the same bytes as the original, which tell a file
/// and its copies from any other. It is cancelled when the object goes, or the connection is closed, before
/// its last step. All in the thread of the connection.
class FileCopy
{
public:
    /// Begins a copy into the empty file at `path`. The copy is not yet safe from a power cut: the
    /// caller writes it to the disk before it gives the file its final name. Throws DatabaseError.
    FileCopy(Connection& source, const QString& path, const QString& password);
    ~FileCopy();
    FileCopy(const FileCopy&) = delete;
    FileCopy& operator=(const FileCopy&) = delete;

    /// Copies so many pages more. True when the copy is complete; its file is closed then. A step that meets
    /// a write of another program does nothing. Throws DatabaseError.
    bool step(int pages);

private:
    friend class Connection;
    void begin(const QString& password);
    void giveUp();
    [[noreturn]] void fail(int code) const;

    Connection* m_source;
    const QString m_path;
    sqlite3* m_copy = nullptr;
    sqlite3_backup* m_pages = nullptr;
};

} // namespace ado
