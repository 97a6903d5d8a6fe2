#include "core/store/Rows.h"

#include "core/store/DE.h"

void each(const QString& sql, const std::function<void(ado::Recordset& row)>& take)
{
    ado::Recordset rows(DE.connection());
    for (rows.Open(sql); !rows.AtEOF(); rows.MoveNext())
        take(rows);
}

qint32 one(const QString& sql)
{
    ado::Recordset rows(DE.connection());
    rows.Open(sql);
    return rows.AtEOF() ? 0 : rows[0].integer();
}
