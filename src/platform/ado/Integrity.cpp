#include "platform/ado/Integrity.h"

#include "platform/ado/Connection.h"

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace ado {

QString damage(Connection& connection)
{
    QString report;
    const auto keep = [](void* kept, int, char** values, char**) {
        static_cast<QString*>(kept)->append(QString::fromUtf8(values[0]) + u'\n');
        return 0;
    };
    char* error = nullptr;
    sqlite3_exec(connection.handle(), "PRAGMA integrity_check(3)", keep, &report, &error);
    report += QString::fromUtf8(error);
    sqlite3_free(error);
    return report == "ok\n"_L1 ? QString() : report.trimmed();
}

} // namespace ado
