#include "core/store/NewBooks_Parts.h"
#include "core/store/Texts.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Errors.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace newbooks {

namespace {

/// The rows of a query, a text each.
QStringList rows(ado::Connection& file, const QString& sql)
{
    QStringList all;
    ado::Recordset row(file);
    for (row.Open(sql); !row.AtEOF(); row.MoveNext()) {
        QStringList cells;
        for (int column = 0; column < row.FieldCount(); ++column)
            cells << row[column].text();
        all << cells.join(u" | "_s);
    }
    return all;
}

void compare(const QString& what, ado::Connection& old, ado::Connection& books, const QString& sql,
             const QString& sqlOfOld = {})
{
    const QStringList before = rows(old, sqlOfOld.isEmpty() ? sql : sqlOfOld);
    const QStringList now = rows(books, sql);
    if (before == now)
        return;
    qsizetype at = 0;
    while (at < std::min(before.size(), now.size()) && before[at] == now[at])
        ++at;
    throw OperatorError(u"The new books do not agree with the old ones: %1.\nOld: %2\nNew: %3"_s.arg(
        what, before.value(at, u"nothing"_s), now.value(at, u"nothing"_s)));
}

QString balances(const QString& condition)
{
    return u"Select Title, round(total(Amount), 2) as Balance from Accounts, postings where "
           u"AccID=Accounts.Id and "
           "postings.Status=0%1 group by Accounts.Id having abs(total(Amount))>=0.005 order by Title"_s.arg(
               condition);
}

/// The last order of each item: what a new one begins with. Of the old shop, that of the clients who come
/// along.
QString lastOrders(const QString& clients)
{
    return u"Select Title, NAME, l.ItemDetails, ItemDetailsValue, ClientRemarks from JOBS_DETAIL as l, "
           u"Accounts, "
           "ITEMS where Accounts.Id=ClintID and ITEMS.Id=ItemID and l.Id in (Select max(Id) from JOBS_DETAIL "
           "group "
           "by ClintID, ItemID)%1 order by Title, NAME"_s.arg(clients);
}

void refuseTooMany(ado::Connection& books)
{
    constexpr int most = std::numeric_limits<qint16>::max();
    for (const char* table : {"Accounts", "ITEMS", "JOBS_DETAIL"}) {
        ado::Recordset row(books);
        row.Open(u"Select count(*) from "_s + QLatin1String(table));
        if (row[0].integer() > most)
            throw OperatorError(u"What would come along is still too much: %1 rows in %2, %3 at most. Close "
                                u"more cards, or choose "
                                "a later last day."_s.arg(row[0].integer())
                                    .arg(QLatin1String(table))
                                    .arg(most));
    }
}

} // namespace

void prove(ado::Connection& old, ado::Connection& books, const Plan& plan)
{
    refuseTooMany(books);
    compare(u"the balances on the last day"_s, old, books,
            balances(u" and postings.Date<="_s + sqlDate(plan.lastDay)));
    compare(u"the balances of today"_s, old, books, balances({}));
    compare(
        u"the garments in the shop"_s, old, books,
        u"Select JobID, ItemSr, ItemName, ClintName, WorkerID<>0, WorkerName, DoneByWorker, CuttingStatus, "
        "JobDelDate, Loc from JOBS_DETAIL where DoneByWorker in (%1, %2, %3) order by JobID, ItemSr"_s
            .arg(qint32(LineState::Uncompleted))
            .arg(qint32(LineState::Completed))
            .arg(qint32(LineState::Alteration)));
    compare(u"the open cards"_s, old, books,
            u"Select Id, ClintName, DATE, DeliveryDate, TrialDate, AmountDue, AmountPaid from JOBS where "
            u"Status=0 and "
            "JobFinished=0 order by Id"_s);
    compare(u"the wages that are unpaid"_s, old, books,
            u"Select Title, count(*), round(total(WorkerWagesDue), 2) from JOBS_DETAIL, Accounts where "
            "Accounts.Id=WorkerID and DoneByWorker>0 and MarkAsPaid=0 and WorkerWagesDue<>0 group by Title "
            "order by "
            "Title"_s);
    compare(u"the last measurements"_s, old, books, lastOrders({}),
            lastOrders(u" and ClintID in (Select Id from keptAccounts)"_s));
    compare(u"the next job number"_s, old, books, u"Select max(Id) from JOBS"_s);
    if (const QStringList sum =
            rows(books, u"Select 1 from (Select total(Amount) as Total from postings) where "
                        "abs(Total)>=0.005"_s);
        !sum.isEmpty())
        throw OperatorError(u"The postings of the new books do not come to zero."_s);
}

} // namespace newbooks
