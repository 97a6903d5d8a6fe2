#define SQLITE_HAS_CODEC
#include "platform/ado/FileCopy.h"

#include "platform/ado/ConnectionPrivate.h"

#include <QFile>
#include <array>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace ado {

namespace {

constexpr int saltLength = 16; // bytes, at the beginning of an encrypted file

/// The engine's own handle on a database's file: a second one, once closed, would drop the engine's locks.
sqlite3_file* fileOf(sqlite3* database)
{
    sqlite3_file* file = nullptr;
    sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return file && file->pMethods ? file : nullptr;
}

} // namespace

FileCopy::FileCopy(Connection& source, const QString& path, const QString& password)
    : m_source(&source)
    , m_path(path)
{
    try {
        begin(password);
    } catch (...) {
        giveUp();
        throw;
    }
    source.d->copies.push_back(this);
}

FileCopy::~FileCopy() { giveUp(); }

/// The engine takes the salt of a file when the key is set, and draws one for a file that is empty.
void FileCopy::begin(const QString& password)
{
    sqlite3* source = m_source->d->openHandle();
    std::array<char, saltLength> salt = {};
    sqlite3_file* original = fileOf(source);
    if (!original)
        throw DatabaseError(m_path + u": there is nothing to copy."_s);
    if (const int code = original->pMethods->xRead(original, salt.data(), saltLength, 0); code != SQLITE_OK)
        fail(code);
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(salt.data(), saltLength) != saltLength ||
        !file.flush())
        throw DatabaseError(m_path + u": "_s + file.errorString());
    file.close();

    if (const int code = sqlite3_open_v2(m_path.toUtf8().constData(), &m_copy,
                                         SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
        code != SQLITE_OK)
        fail(code);
    const QByteArray key = password.toUtf8();
    if (const int code = sqlite3_key(m_copy, key.constData(), static_cast<int>(key.size()));
        code != SQLITE_OK)
        fail(code);
    sqlite3_exec(m_copy, "PRAGMA cipher_page_size=4096", nullptr, nullptr, nullptr);
    sqlite3_file* copy = fileOf(m_copy);
    if (const int code = copy ? copy->pMethods->xTruncate(copy, 0) : SQLITE_IOERR; code != SQLITE_OK)
        fail(code);
    sqlite3_exec(m_copy, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
    m_pages = sqlite3_backup_init(m_copy, "main", source, "main");
    if (!m_pages)
        fail(sqlite3_errcode(m_copy));
}

bool FileCopy::step(int pages)
{
    if (!m_pages)
        throw DatabaseError(m_path + u": the copy was given up, as its original was closed."_s);
    const int code = sqlite3_backup_step(m_pages, pages);
    if (code == SQLITE_OK || code == SQLITE_BUSY || code == SQLITE_LOCKED)
        return false;
    if (code != SQLITE_DONE)
        fail(code);
    const int ended = sqlite3_backup_finish(std::exchange(m_pages, nullptr));
    if (ended != SQLITE_OK)
        fail(ended);
    giveUp();
    return true;
}

/// Leaves the file as it is.
void FileCopy::giveUp()
{
    if (m_pages)
        sqlite3_backup_finish(std::exchange(m_pages, nullptr));
    sqlite3_close(std::exchange(m_copy, nullptr));
    if (m_source)
        std::erase(m_source->d->copies, this);
    m_source = nullptr;
}

void FileCopy::fail(int code) const
{
    throw DatabaseError(m_path + u": "_s + QString::fromUtf8(sqlite3_errstr(code)));
}

} // namespace ado
