#include "core/store/Lookups.h"

#include "core/store/DE.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"
#include "platform/values/Dates.h"

using namespace Qt::StringLiterals;

namespace {

/// Reads with `read` from the first row of the query.
template <typename Read>
auto fromFirst(const QString& sql, Read read)
{
    ado::Recordset rows(DE.connection());
    rows.Open(sql);
    return read(rows);
}

QString textOfFirst(const QString& sql, const char* field)
{
    return fromFirst(sql, [field](ado::Recordset& rows) { return rows[field].text(); });
}

/// Names go into these statements as they are. The engine refuses one with an apostrophe: what to do about it
/// stands before its text.
template <typename LookUp>
auto byName(const QString& name, LookUp lookUp)
{
    try {
        return lookUp();
    } catch (OperatorError& error) {
        if (name.contains(u'\''))
            error.putBefore(
                u"The apostrophe in the name \"%1\" is in the way. Please open it in Masters, type "
                "the apostrophe anew, and save it."_s.arg(name));
        throw;
    }
}

qint32 integerOfFirst(const QString& sql, const char* field)
{
    return fromFirst(sql, [field](ado::Recordset& rows) { return rows[field].integer(); });
}

double numberOfFirst(const QString& sql, const char* field)
{
    return fromFirst(sql, [field](ado::Recordset& rows) { return rows[field].number(); });
}

/// The order of titles: without regard to case in every script, so that "éva" stands beside "Éva".
QString byTitle(const QString& field) { return u" order by titlekey("_s + field + u')'; }

QStringList textsOf(const QString& sql, const QString& field)
{
    QStringList texts;
    ado::Reader rows = readRows(sql);
    const auto text = rows[field.toLatin1()];
    while (rows.next())
        texts << text.text();
    return texts;
}

/// A shop has thousands of names: they are read past the recordset, which is left closed, and again only when
/// something has been written since.
void fill(const QString& field, const QString& source, ListTarget& control, ado::Recordset& recordset)
{
    control.Clear();
    recordset.Close();
    struct Names
    {
        QStringList texts;
        ado::Connection::Version version;
    };
    static QHash<QString, Names> known;
    const QString sql = u"Select "_s + field + u" from "_s + source + byTitle(field);
    Names& names = known[sql];
    if (const auto version = DE.connection().version(); names.version != version)
        names = {textsOf(sql, field), version};
    control.AddItems(names.texts);
}

/// A null sum, that of no rows, reads as 0.
double sum(const QString& sql)
{
    return fromFirst(sql, [](ado::Recordset& rows) { return rows[0].number(); });
}

} // namespace

qint32 GetAccountID(const QString& title)
{
    return byName(title, [&title] {
        return integerOfFirst(u"Select * from Accounts where Title='"_s + title + u'\'', "ID");
    });
}

QString GetAccountTitle(qint32 id)
{
    return textOfFirst(u"Select * from Accounts where ID="_s + QString::number(id), "Title");
}

double GetItemFees(qint32 id)
{
    return numberOfFirst(u"Select * from Items where id="_s + QString::number(id), "Fees");
}

double GetItemWorkerFees(const QString& name)
{
    return byName(name, [&name] {
        return numberOfFirst(u"Select * from Items where Name='"_s + name + u'\'', "WorkerFees");
    });
}

qint32 GetItemID(const QString& name)
{
    return integerOfFirst(u"Select * from Items where Name='"_s + sqlText(name) + u'\'', "ID");
}

QString GetItemName(qint32 id)
{
    return textOfFirst(u"Select * from Items where ID="_s + QString::number(id), "Name");
}

QHash<qint32, QString> GetAccountTitles(const QString& accounts)
{
    QHash<qint32, QString> titles;
    ado::Reader rows = readRows(u"Select ID, Title from Accounts where ID in ("_s + accounts + u')');
    const auto id = rows["ID"], title = rows["Title"];
    while (rows.next())
        titles.insert(id.integer(), title.text());
    return titles;
}

QVariant FieldValueExists(const QString& value, const QString& keyField, const QString& resultField,
                          const QString& table, ado::Recordset& recordset)
{
    const QString select = u"Select "_s + resultField + u" from "_s + table + u" where "_s;
    const QString text = u'\'' + sqlText(value) + u'\'';
    recordset.Open(select + keyField + u'=' + text);
    if (recordset.AtEOF())
        recordset.Open(select + u"titlekey("_s + keyField + u")=titlekey("_s + text + u')');
    if (recordset.AtEOF()) {
        recordset.Close();
        return -1;
    }
    const ado::Field found = recordset[0];
    return found.isNull() ? QVariant(-1) : found.value();
}

qint32 idOfAccount(const QString& title)
{
    ado::Recordset accounts(DE.connection());
    return qMax(0, FieldValueExists(title, u"Title"_s, u"ID"_s, u"Accounts"_s, accounts).toInt());
}

QString whereType(AccountType type) { return u" where Type=%1"_s.arg(qint32(type)); }

void FillCombo(const QString& field, const QString& table, ListTarget& control, ado::Recordset& recordset)
{
    fill(field, table, control, recordset);
}

void FillList(const QString& field, const QString& table, const QString& condition, ListTarget& control,
              ado::Recordset& recordset)
{
    fill(field, table + condition, control, recordset);
}

QString countsUpTo(const QDate& date)
{
    return u"status=0 and date between #17-11-1985# and #"_s + values::CStr(date) + u'#';
}

double GetBalance(qint16 account, const QDate& date)
{
    return sum(u"Select sum(Amount) from Postings where AccID="_s + QString::number(account) + u" and "_s +
               countsUpTo(date));
}

QHash<qint32, double> GetBalances(const QString& accounts, const QDate& date)
{
    QHash<qint32, double> balances;
    ado::Reader rows = readRows(
        u"Select accID, sum(Amount) as Balance from Postings where accID in (%1) and %2 group by accID"_s.arg(
            accounts, countsUpTo(date)));
    const auto id = rows["accID"], balance = rows["Balance"];
    while (rows.next())
        balances.insert(id.integer(), balance.number());
    return balances;
}

double GetPositiveTotal(qint16 account, const QDate& from, const QDate& to)
{
    return sum(u"Select sum(Amount) from Postings where amount>0 and status=0 and  AccID="_s +
               QString::number(account) + u" and date between #"_s + values::CStr(from) + u"# and #"_s +
               values::CStr(to) + u'#');
}

double GetNegativeTotal(qint16 account, const QDate& from, const QDate& to)
{
    return sum(u"Select sum(Amount) from Postings where amount<0 and status=0 and  AccID="_s +
               QString::number(account) + u" and date between #"_s + values::CStr(from) + u"# and #"_s +
               values::CStr(to) + u'#');
}
