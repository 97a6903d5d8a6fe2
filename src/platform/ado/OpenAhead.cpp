#include "platform/ado/OpenAhead.h"

#include "platform/ado/Connection.h"

#include <future>
#define SQLITE_HAS_CODEC
#include <sqlcipher/sqlite3.h>

namespace ado {

namespace {

constexpr int aheadFlags = SQLITE_OPEN_READWRITE;

struct Close
{
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using Handle = std::unique_ptr<sqlite3, Close>;

struct Ahead
{
    QString path;
    QString password;
    std::future<Handle> handle;
};

Ahead& ahead()
{
    static Ahead one;
    return one;
}

} // namespace

int openHandle(const QString& path, const QString& password, int flags, sqlite3** database)
{
    int code = sqlite3_open_v2(path.toUtf8().constData(), database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK || password.isEmpty())
        return code;
    const QByteArray key = password.toUtf8();
    code = sqlite3_key(*database, key.constData(), static_cast<int>(key.size()));
    if (code != SQLITE_OK)
        return code;
    return sqlite3_exec(*database, "PRAGMA cipher_page_size=4096", nullptr, nullptr, nullptr);
}

void openAhead(const QString& path, const QString& password)
{
    ahead() = {path, password, std::async(std::launch::async, [path, password] {
                   sqlite3* database = nullptr;
                   const int code = openHandle(path, password, aheadFlags, &database);
                   Handle handle(database);
                   if (code != SQLITE_OK || sqlite3_exec(database, "SELECT count(*) FROM sqlite_master",
                                                         nullptr, nullptr, nullptr) != SQLITE_OK)
                       handle.reset();
                   return handle;
               })};
}

sqlite3* takeOpenedAhead(const QString& path, const QString& password, int flags)
{
    Ahead& begun = ahead();
    if (!begun.handle.valid())
        return nullptr;
    Handle handle = begun.handle.get();
    const bool same = flags == aheadFlags && begun.path == path && begun.password == password;
    return same ? handle.release() : nullptr;
}

} // namespace ado
