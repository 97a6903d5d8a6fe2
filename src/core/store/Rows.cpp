#include "core/store/Rows.h"

#include "core/store/DE.h"

using namespace Qt::StringLiterals;

void withRows(const QString& sql, const UseRow& use)
{
    ado::Recordset rows(DE.connection());
    rows.Open(sql);
    use(rows);
}

void each(const QString& sql, const UseRow& take)
{
    withRows(sql, [&take](ado::Recordset& rows) {
        for (; !rows.AtEOF(); rows.MoveNext())
            take(rows);
    });
}

ado::Reader readRows(const QString& sql) { return {DE.connection(), sql}; }

qint32 one(const QString& sql)
{
    qint32 number = 0;
    firstRow(sql, [&number](ado::Recordset& row) { number = row[0].integer(); });
    return number;
}

bool any(const QString& sql)
{
    return firstRow(sql, [](ado::Recordset&) {});
}

bool firstRow(const QString& sql, const UseRow& take)
{
    bool found = false;
    withRows(sql, [&](ado::Recordset& rows) {
        found = !rows.AtEOF();
        if (found)
            take(rows);
    });
    return found;
}

bool lastRow(const QString& sql, const UseRow& take)
{
    return firstRow(sql, [&take](ado::Recordset& rows) {
        rows.MoveLast();
        take(rows);
    });
}

void changeRow(const QString& sql, const UseRow& change)
{
    withRows(sql, [&change](ado::Recordset& row) {
        change(row);
        row.Update();
    });
}

void changeRows(const QString& sql, const UseRow& change)
{
    withRows(sql, [&change](ado::Recordset& rows) {
        for (; !rows.AtEOF(); rows.MoveNext())
            change(rows);
        rows.UpdateBatch();
    });
}

qint32 addRow(const QString& table, const UseRow& fill)
{
    qint32 id = 0;
    withRows(u"Select * from "_s + table, [&](ado::Recordset& row) {
        row.AddNew();
        fill(row);
        row.Update();
        id = row["ID"].integer();
    });
    return id;
}
