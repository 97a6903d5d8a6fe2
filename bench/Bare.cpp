#include "Bare.h"

#include "core/store/DE.h"

#include <benchmark/benchmark.h>
#include <sqlcipher/sqlite3.h>

int bare::run(const char* sql)
{
    sqlite3* database = DE.connection().handle();
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(database));
    int rows = 0;
    for (; sqlite3_step(statement) == SQLITE_ROW; ++rows)
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
            benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
    sqlite3_finalize(statement);
    return rows;
}
