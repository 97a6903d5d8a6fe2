#include "core/store/NewBooks_Parts.h"
#include "core/store/Texts.h"

using namespace Qt::StringLiterals;

namespace newbooks {

namespace {

/// Makes a temporary table of the ids that the selects find.
void collect(ado::Connection& shop, const QString& table, const QStringList& selects)
{
    shop.Execute(u"Create temp table %1 (Id INTEGER PRIMARY KEY)"_s.arg(table));
    for (const QString& select : selects)
        shop.Execute(u"Insert or ignore into %1 %2"_s.arg(table, select));
}

QString code(auto value) { return QString::number(qint32(value)); }

/// Garments that nobody has fetched yet.
QString inShop()
{
    return u"DoneByWorker in (%1, %2, %3)"_s.arg(code(LineState::Uncompleted), code(LineState::Completed),
                                                 code(LineState::Alteration));
}

QStringList accountsThatCount(const QString& lastDay)
{
    const QString since = u"date(%1, '-2 years')"_s.arg(lastDay);
    const QString column = u"Select %1 from %2 where %1<>0 and %3"_s;
    return {u"Select Id from Accounts where Type=%1"_s.arg(code(AccountType::Ledger)),
            column.arg(u"AccID"_s, u"postings"_s, u"Date>"_s + since),
            column.arg(u"ClintID"_s, u"JOBS_DETAIL"_s, u"DATE>"_s + since),
            column.arg(u"WorkerID"_s, u"JOBS_DETAIL"_s, u"DATE>"_s + since),
            u"Select AccID from postings where Status=0 group by AccID having abs(total(Amount))>=0.00005"_s,
            u"Select AccID from postings where Status=0 and Date<=%1 group by AccID having "
            "abs(total(Amount))>=0.00005"_s.arg(lastDay),
            // What the cards, lines and postings that come along name.
            column.arg(u"ClintID"_s, u"JOBS"_s, u"Id in (Select Id from keptCards)"_s),
            column.arg(u"CashAccID"_s, u"JOBS"_s, u"Id in (Select Id from keptCards)"_s),
            column.arg(u"ClintID"_s, u"JOBS_DETAIL"_s, u"Id in (Select Id from keptLines)"_s),
            column.arg(u"WorkerID"_s, u"JOBS_DETAIL"_s, u"Id in (Select Id from keptLines)"_s),
            column.arg(u"AccID"_s, u"postings"_s, u"Id in (Select Id from keptPostings)"_s),
            column.arg(u"RefID"_s, u"postings"_s, u"Id in (Select Id from keptPostings)"_s)};
}

} // namespace

void choose(ado::Connection& shop, const Plan& plan)
{
    const QString lastDay = sqlDate(plan.lastDay);
    const QString ofKeptCards = u"in (Select Id from keptCards)"_s;
    collect(shop, u"keptCards"_s,
            {u"Select Id from JOBS where DATE>%1 or (Status=0 and JobFinished=0)"_s.arg(lastDay),
             u"Select JobID from JOBS_DETAIL where "_s + inShop(),
             u"Select max(Id) from JOBS"_s}); // the next number goes on from it
    collect(
        shop, u"keptPostings"_s,
        {u"Select Id from postings where Date>%1"_s.arg(lastDay),
         u"Select Id from postings where Vtype=%1 and VID %2"_s.arg(code(VoucherType::Job), ofKeptCards)});
    collect(shop, u"keptLines"_s,
            {u"Select Id from JOBS_DETAIL where JobID "_s + ofKeptCards,
             u"Select Id from JOBS_DETAIL where WorkerID<>0 and DoneByWorker>0 and MarkAsPaid=0 and "
             "WorkerWagesDue<>0"_s,
             u"Select Id from JOBS_DETAIL where PayrollID in (Select VID from postings where Vtype=%1 and "
             "isPayroll<>0 and Id in (Select Id from keptPostings))"_s.arg(code(VoucherType::Entry))});
    QStringList accounts = accountsThatCount(lastDay);
    for (const Idle& idle : plan.idle)
        if (idle.comesAlong)
            accounts << u"Select %1"_s.arg(idle.account);
    collect(shop, u"keptAccounts"_s, accounts);
    shop.Execute(
        u"Insert or ignore into keptLines Select max(Id) from JOBS_DETAIL where ClintID in (Select Id "
        "from keptAccounts) group by ClintID, ItemID"_s);
}

} // namespace newbooks
