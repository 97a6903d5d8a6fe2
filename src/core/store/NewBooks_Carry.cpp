#include "core/store/NewBooks_Parts.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Currency.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace newbooks {

namespace {

QString code(auto value) { return QString::number(qint32(value)); }

qint32 one(ado::Connection& books, const QString& sql)
{
    ado::Recordset rows(books);
    rows.Open(sql);
    return rows.AtEOF() ? 0 : rows[0].integer();
}

/// The work on one copy of the shop.
class Carrying
{
public:
    Carrying(ado::Connection& books, const Plan& plan)
        : m_books(books)
        , m_lastDay(sqlDate(plan.lastDay))
        , m_remark(u"Old books to %1"_s.arg(dateText(plan.lastDay)))
    {
    }

    void run()
    {
        sumBalances();
        leaveBehind();
        emptyClosedCards();
        forgetWorkersGone();
        m_lastNumber =
            one(m_books, u"Select max(VID) from postings where Vtype=%1"_s.arg(code(VoucherType::Entry)));
        payrolls();
        openingVouchers();
        number();
        noteLastDay();
    }

private:
    void run(const QString& sql) { m_books.Execute(sql); }

    /// What each account holds at the end of the last day, without the postings that come along.
    void sumBalances()
    {
        m_openings =
            amounts(u"Select AccID, total(Amount) from postings where Status=0 and Date<=%1 and Id not "
                    "in (Select Id from keptPostings) group by AccID"_s.arg(m_lastDay));
    }

    void leaveBehind()
    {
        run(u"Delete from postings where Id not in (Select Id from keptPostings)"_s);
        run(u"Delete from JOBS_DETAIL where Id not in (Select Id from keptLines)"_s);
        run(u"Delete from JOBS where Id not in (Select Id from keptCards) and Id not in (Select JobID from "
            "JOBS_DETAIL)"_s);
        run(u"Delete from Accounts where Id not in (Select Id from keptAccounts)"_s);
        for (const char* staging : {"tmpHead", "tmpBody", "rank", "wagesregister", "accountbook"})
            run(u"Delete from "_s + QLatin1String(staging));
    }

    /// A closed card stays for the lines that come along: its money is in the opening vouchers.
    void emptyClosedCards()
    {
        run(u"Update JOBS_DETAIL set FEES=0, Amount=0 where JobID not in (Select Id from keptCards)"_s);
        run(u"Update JOBS set AmountDue=0, AmountPaid=0, CashAccID=0, Remark=trim('%1. ' || Remark) where Id "
            u"not "
            "in (Select Id from keptCards)"_s.arg(m_remark));
    }

    /// A last order keeps the name of a worker who stays behind; nothing is owed to him.
    void forgetWorkersGone()
    {
        run(u"Update JOBS_DETAIL set WorkerID=0, MarkAsPaid=0, PayrollID=0, WorkerWagesDue=0 where "
            u"WorkerID<>0 "
            "and WorkerID not in (Select Id from Accounts)"_s);
    }

    qint32 account(const QString& title)
    {
        const qint32 there = one(m_books, u"Select Id from Accounts where Title='%1' and Type=%2"_s.arg(
                                              title, code(AccountType::Ledger)));
        if (there != 0)
            return there;
        const bool taken = one(m_books, u"Select Id from Accounts where Title='%1'"_s.arg(title)) != 0;
        run(u"Insert into Accounts (Title, Type, Nature, readonly) values ('%1', %2, %3, 0)"_s.arg(
            taken ? title + u" (Books)"_s : title, code(AccountType::Ledger), code(AccountNature::Income)));
        return one(m_books, u"Select max(Id) from Accounts"_s);
    }

    /// Both postings of an entry: `amount` on the account, its opposite on the other.
    void addEntry(qint32 account, qint32 opposite, Currency amount, const QString& particulars, bool payroll)
    {
        ++m_lastNumber;
        for (const bool first : {true, false})
            run(u"Insert into postings (VID, Vtype, sr, Date, AccID, RefID, particulars, Remark, Amount, "
                u"Status, "
                "isPayroll) values (%1, %2, %3, %4, %5, %6, '%7', '%8', %9, 0, %10)"_s
                    .arg(QString::number(m_lastNumber), code(VoucherType::Entry), first ? u"1"_s : u"2"_s,
                         m_lastDay, QString::number(first ? account : opposite),
                         QString::number(first ? opposite : account), particulars, m_remark)
                    .arg((first ? amount : -amount).toString())
                    .arg(int(payroll)));
    }

    /// What a payroll of the old books has paid, and what of its lines comes along, is a payroll of the new
    /// ones: one for each worker. The opening vouchers have that much less to say.
    void payrolls()
    {
        const QString paid =
            u"PayrollID<>0 and not exists (Select 1 from postings where VID=PayrollID and Vtype=%1 and isPayroll<>0)"_s
                .arg(code(VoucherType::Entry));
        run(u"Create temp table paidBefore as Select Id, WorkerID, WorkerWagesDue from JOBS_DETAIL where "_s +
            paid);
        const qint32 wages = one(m_books, u"Select min(Id) from Accounts where Title='Wages'"_s);
        const auto byWorker =
            amounts(u"Select WorkerID, total(WorkerWagesDue) from paidBefore group by WorkerID"_s);
        for (auto each = byWorker.cbegin(); each != byWorker.cend(); ++each) {
            const qint32 worker = each.key();
            const Currency wage = each.value();
            addEntry(worker, wages, wage, u"Wages"_s, true);
            run(u"Update JOBS_DETAIL set PayrollID=%1 where Id in (Select Id from paidBefore where WorkerID=%2)"_s
                    .arg(m_lastNumber)
                    .arg(worker));
            m_openings[worker] = m_openings.value(worker) - wage;
            m_openings[wages] = m_openings.value(wages) + wage;
        }
    }

    void openingVouchers()
    {
        const qint32 opposite = account(u"Opening Balances"_s);
        for (auto opening = m_openings.cbegin(); opening != m_openings.cend(); ++opening)
            if (opening.value() != Currency() && opening.key() != opposite)
                addEntry(opening.key(), opposite, opening.value(), u"Opening Balance"_s, false);
    }

    /// Number and amount of each row.
    QMap<qint32, Currency> amounts(const QString& sql)
    {
        QMap<qint32, Currency> all;
        ado::Recordset row(m_books);
        for (row.Open(sql); !row.AtEOF(); row.MoveNext())
            all.insert(row[0].integer(), Currency::fromDouble(row[1].number()));
        return all;
    }

    /// Gives the records of a table the numbers from 1 on, in their order, and takes these over into the
    /// columns that name them.
    void renumber(const QString& table, const std::vector<std::pair<QString, QString>>& references)
    {
        const QString map = u"new"_s + table;
        run(u"Create temp table %1 (now INTEGER PRIMARY KEY, old INTEGER UNIQUE)"_s.arg(map));
        run(u"Insert into %1 (old) Select Id from %2 order by Id"_s.arg(map, table));
        for (const auto& [referring, column] : references)
            run(u"Update %1 set %2=coalesce((Select now from %3 where old=%2), 0) where %2<>0"_s.arg(
                referring, column, map));
        run(u"Update %1 set Id=-(Select now from %2 where old=Id)"_s.arg(table, map));
        run(u"Update %1 set Id=-Id"_s.arg(table));
        run(u"Update sqlite_sequence set seq=(Select coalesce(max(Id), 0) from %1) where name='%1'"_s.arg(
            table));
    }

    void number()
    {
        renumber(u"Accounts"_s, {{u"JOBS"_s, u"ClintID"_s},
                                 {u"JOBS"_s, u"CashAccID"_s},
                                 {u"JOBS_DETAIL"_s, u"ClintID"_s},
                                 {u"JOBS_DETAIL"_s, u"WorkerID"_s},
                                 {u"postings"_s, u"AccID"_s},
                                 {u"postings"_s, u"RefID"_s}});
        renumber(u"ITEMS"_s, {{u"JOBS_DETAIL"_s, u"ItemID"_s}});
        renumber(u"JOBS_DETAIL"_s, {});
        renumber(u"postings"_s, {});
    }

    void noteLastDay()
    {
        run(u"Delete from Settings where SETTING='%1'"_s.arg(settings::OldBooksTo.number));
        run(u"Insert into Settings (SETTING, VALUE) values ('%1', %2)"_s.arg(settings::OldBooksTo.number)
                .arg(m_lastDay));
    }

    ado::Connection& m_books;
    const QString m_lastDay;
    const QString m_remark;
    qint32 m_lastNumber = 0;           ///< of the entries
    QMap<qint32, Currency> m_openings; ///< by account
};

} // namespace

void carryOver(ado::Connection& books, const Plan& plan)
{
    books.writeBatch([&] { Carrying(books, plan).run(); }, {});
}

} // namespace newbooks
