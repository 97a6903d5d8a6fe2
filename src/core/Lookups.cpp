#include "core/Lookups.h"

#include "core/DE.h"
#include "platform/values/Dates.h"

namespace {

QString quoted(const QString& text) { return QString(text).replace(u'\'', QLatin1String("''")); }

/// Reads with `read` from the first row of the query.
template <typename Read>
auto firstRow(const QString& sql, Read read)
{
    ado::Recordset& rows = DE.rsaccounts;
    rows.Open(sql);
    const auto result = read(rows);
    rows.Close();
    return result;
}

QString textOfFirst(const QString& sql, const char* field)
{
    return firstRow(sql, [field](ado::Recordset& rows) { return rows[field].text(); });
}

qint32 integerOfFirst(const QString& sql, const char* field)
{
    return firstRow(sql, [field](ado::Recordset& rows) { return rows[field].integer(); });
}

double numberOfFirst(const QString& sql, const char* field)
{
    return firstRow(sql, [field](ado::Recordset& rows) { return rows[field].number(); });
}

void fill(const QString& sql, ListTarget& control, ado::Recordset& recordset)
{
    control.Clear();
    recordset.Open(sql);
    QStringList texts;
    for (; !recordset.AtEOF(); recordset.MoveNext())
        texts << recordset[0].text();
    control.AddItems(texts);
    recordset.Close();
}

/// A null sum, that of no rows, reads as 0.
double sum(const QString& sql)
{
    return firstRow(sql, [](ado::Recordset& rows) { return rows[0].number(); });
}

} // namespace

qint32 GetAccountID(const QString& title)
{
    return integerOfFirst(QStringLiteral("Select * from Accounts where Title='") + title + u'\'', "ID");
}

QString GetAccountTitle(qint32 id)
{
    return textOfFirst(QStringLiteral("Select * from Accounts where ID=") + QString::number(id), "Title");
}

double GetItemFees(qint32 id)
{
    return numberOfFirst(QStringLiteral("Select * from Items where id=") + QString::number(id), "Fees");
}

double GetItemWorkerFees(const QString& name)
{
    return numberOfFirst(QStringLiteral("Select * from Items where Name='") + name + u'\'', "WorkerFees");
}

qint32 GetItemID(const QString& name)
{
    return integerOfFirst(QStringLiteral("Select * from Items where Name='") + quoted(name) + u'\'', "ID");
}

QString GetItemName(qint32 id)
{
    return textOfFirst(QStringLiteral("Select * from Items where ID=") + QString::number(id), "Name");
}

QVariant FieldValueExists(const QString& value, const QString& keyField, const QString& resultField,
                          const QString& table, ado::Recordset& recordset)
{
    recordset.Open(QStringLiteral("Select ") + resultField + QStringLiteral(" from ") + table +
                   QStringLiteral(" where ") + keyField + QStringLiteral("='") + quoted(value) + u'\'');
    if (recordset.AtEOF()) {
        recordset.Close();
        return -1;
    }
    const ado::Field found = recordset[0];
    return found.isNull() ? QVariant(-1) : found.value();
}

void FillCombo(const QString& field, const QString& table, ListTarget& control, ado::Recordset& recordset)
{
    fill(QStringLiteral("Select ") + field + QStringLiteral(" from ") + table + QStringLiteral(" order by ") +
             field,
         control, recordset);
}

void FillList(const QString& field, const QString& table, const QString& condition, ListTarget& control,
              ado::Recordset& recordset)
{
    fill(QStringLiteral("Select ") + field + QStringLiteral(" from ") + table + condition +
             QStringLiteral(" order by ") + field,
         control, recordset);
}

double GetBalance(qint16 account, const QDate& date)
{
    return sum(QStringLiteral("Select sum(Amount) from Postings where status=0 and  AccID=") +
               QString::number(account) + QStringLiteral(" and date between #17-11-1985# and #") +
               values::CStr(date) + u'#');
}

double GetPositiveTotal(qint16 account, const QDate& from, const QDate& to)
{
    return sum(QStringLiteral("Select sum(Amount) from Postings where amount>0 and status=0 and  AccID=") +
               QString::number(account) + QStringLiteral(" and date between #") + values::CStr(from) +
               QStringLiteral("# and #") + values::CStr(to) + u'#');
}

double GetNegativeTotal(qint16 account, const QDate& from, const QDate& to)
{
    return sum(QStringLiteral("Select sum(Amount) from Postings where amount<0 and status=0 and  AccID=") +
               QString::number(account) + QStringLiteral(" and date between #") + values::CStr(from) +
               QStringLiteral("# and #") + values::CStr(to) + u'#');
}
