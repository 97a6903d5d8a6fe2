#include "accounts/BookLines.h"
#include "accounts/Payroll.h"
#include "core/store/Voucher.h"
#include "jobcards/JobProgress.h"
#include "support/Shop.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QTest>

#include <map>

const QStringList kinds{"Payment", "Purchase", "Receipt", "Sales", "Wages"};

/// A shop on random days, and beside it what its books must say, kept in the simplest way: the cards and
/// entries that there are.
class Days
{
public:
    Days()
    {
        clients = {shop.addClient("Asha"), shop.addClient("Bela"), shop.addClient("Chand")};
        workers = {shop.addWorker("Ravi"), shop.addWorker("Suresh")};
        shop.addItem("Shirt", 300, 120.25);
        shop.addItem("Suit", 2400, 0.1);
        for (const char* title : {"Wages", "Sales", "Purchase", "Cash"})
            accounts << GetAccountID(title);
        accounts << clients << workers;
    }

    void pass()
    {
        day = day.addDays(1);
        session.WorkingDate = day;
        for (int what = 3 + random.bounded(4); what > 0; --what)
            work();
    }
    void check()
    {
        QCOMPARE(Shop::value("Select sum(Amount) from Postings").toDouble(), 0.0);
        const QDate end = day.addDays(9);
        const QDate from = day.addDays(-random.bounded(20));
        const QHash<qint32, double> balances = GetBalances("Select ID from Accounts", end);
        for (const qint32 id : accounts) {
            const AccountBook book(id, from, end);
            QCOMPARE(book.ClosingBalance, owed(id));
            QCOMPARE(balances.value(id), owed(id)); // as the clients' dues read it
            QCOMPARE(Currency::fromDouble(book.OpeningBalance + book.PeriodPositive + book.PeriodNegative),
                     Currency::fromDouble(book.ClosingBalance));
        }
        QStringList paid;
        for (const auto& [number, entry] : entries)
            if (const Currency marked = entry.move.amount - entry.gone; entry.payroll && marked != Currency())
                paid << QString("%1 %2").arg(number).arg(marked.toString());
        QCOMPARE(
            Shop::rows("Select PayrollID, sum(WorkerWagesDue) from Jobs_Detail where MarkAsPaid=1 group by "
                       "PayrollID order by PayrollID"),
            paid);
        QCOMPARE(Shop::count("Select * from Jobs_Detail where (MarkAsPaid<>0) <> (PayrollID<>0)"), 0);
    }

private:
    struct Move
    {
        qint32 credited;
        qint32 debited;
        Currency amount;
    };
    struct Entry
    {
        Move move;
        bool payroll;
        Currency gone; ///< wages that it paid for lines which are no longer there
    };

    template <typename T>
    T any(const QList<T>& of)
    {
        return of[random.bounded(int(of.size()))];
    }
    template <typename Map>
    qint32 anyKey(const Map& map)
    {
        return std::next(map.begin(), random.bounded(int(map.size())))->first;
    }
    Currency money(int most) { return Currency::fromUnits(100 * (1 + random.bounded(most * 100))); }

    void work()
    {
        const int what = random.bounded(10);
        what < 2    ? saveCard(JobCard())
        : what == 2 ? changeCard()
        : what == 3 ? makeGarments()
        : what == 4 ? enter(Voucher::NextEntryNumber(), false)
        : what == 5 ? changeEntry()
        : what < 8  ? makePayroll()
        : what == 8 ? deleteEntry()
                    : deleteCard();
    }

    void addLine(JobCard& card) { Shop::order(card.JobRows, random.bounded(2) ? "Shirt" : "Suit", 1); }

    void saveCard(JobCard card)
    {
        const bool isNew = card.EditMode == RecordMode::New;
        if (isNew || random.bounded(2))
            addLine(card);
        const qint32 client = any(clients);
        JobCardHead head = Shop::head(JobCard::GetNewNum(), GetAccountTitle(client), 0);
        head.Date = day.addDays(-random.bounded(5));
        head.Total = money(3000);
        head.Paid = random.bounded(3) ? money(1000) : Currency();
        head.Cancelled = random.bounded(8) == 0;
        isNew ? card.SaveNew(head) : card.SaveEdit(head);
        std::vector<Move>& moves = cards[card.CurrentJobID];
        moves.clear();
        if (!head.Cancelled)
            moves = {{GetAccountID("Sales"), client, head.Total}, {client, GetAccountID("Cash"), head.Paid}};
    }

    JobCard anyCard()
    {
        JobCard card;
        card.EditMode = RecordMode::Stored;
        card.CurrentJobID = anyKey(cards);
        return card;
    }
    void changeCard()
    {
        if (cards.empty())
            return;
        JobCard card = anyCard();
        card.LoadLines();
        if (card.JobRows.RowCount() > 1 && random.bounded(2)) {
            forget(QString("id=%1").arg(card.JobRows.Sr(1)));
            card.RemoveLine(1);
        }
        saveCard(std::move(card));
    }
    void deleteCard()
    {
        if (cards.size() < 4)
            return;
        JobCard card = anyCard();
        forget(QString("JobID=%1").arg(card.CurrentJobID));
        card.Delete();
        cards.erase(card.CurrentJobID);
    }
    /// Lines go that a payroll may have paid: its money stays paid.
    void forget(const QString& lines)
    {
        ado::Recordset line(DE.connection());
        for (line.Open("Select * from Jobs_Detail where MarkAsPaid=1 and " + lines); !line.AtEOF();
             line.MoveNext())
            if (const auto entry = entries.find(line["PayrollID"].integer()); entry != entries.end())
                entry->second.gone += line["WorkerWagesDue"].money();
    }
    void makeGarments()
    {
        if (cards.empty())
            return;
        const qint32 job = anyKey(cards);
        ado::Recordset line(DE.connection());
        for (line.Open(QString("Select * from Jobs_Detail where JobID=%1").arg(job)); !line.AtEOF();
             line.MoveNext()) {
            if (line["MarkAsPaid"].integer() == 0)
                line["WorkerID"] = any(workers);
            enterState(line, LineState(1 + random.bounded(3)), day);
        }
        line.UpdateBatch();
        if (random.bounded(4) == 0)
            deliverCard(job, day);
    }

    // Entries
    void enter(qint32 number, bool stored)
    {
        Move move{any(accounts), any(accounts), money(5000)};
        while (move.debited == move.credited)
            move.debited = any(accounts);
        if (random.bounded(2))
            move.amount = -move.amount;
        DE.connection().writeBatch([&] {
            const PostingPair pair{any(kinds),    day.addDays(-random.bounded(9)),
                                   move.credited, move.debited,
                                   move.amount,   "remark"};
            Voucher voucher(VoucherType::Entry, number);
            stored ? voucher.ChangePair(voucher.Pair(), pair) : void(voucher.AddPair(pair));
        });
        entries[number] = {move, false, {}};
    }

    void changeEntry()
    {
        if (const qint32 number = entries.empty() ? 0 : anyKey(entries);
            number > 0 && !entries[number].payroll)
            enter(number, true);
    }
    void deleteEntry()
    {
        if (entries.size() < 4)
            return;
        const qint32 number = anyKey(entries);
        DE.connection().writeBatch([&] {
            if (entries[number].payroll)
                payroll::Release(number);
            Voucher(VoucherType::Entry, number).Delete();
        });
        entries.erase(number);
    }
    void makePayroll()
    {
        const wages::Scope scope{any(workers), day.addDays(-random.bounded(15)), day};
        const std::vector<wages::Line> lines = wages::read(wages::linesOf(scope, wages::Which::Unpaid));
        if (lines.empty())
            return;
        const qint16 number = payroll::Create(scope, lines, day);
        QVERIFY(!entries.contains(number));
        entries[number] = {{scope.worker, GetAccountID("Wages"), lines.back().balance}, true, {}};
    }

    double owed(qint32 account) const
    {
        Currency sum;
        const auto add = [&](const Move& move) {
            if (account == move.credited)
                sum += move.amount;
            if (account == move.debited)
                sum += -move.amount;
        };
        for (const auto& [number, moves] : cards)
            std::for_each(moves.begin(), moves.end(), add);
        for (const auto& [number, entry] : entries)
            add(entry.move);
        return sum.toDouble();
    }

    Shop shop;
    QRandomGenerator random{20240210};
    QDate day{2024, 2, 10};
    QList<qint32> clients, workers, accounts;
    std::map<qint32, std::vector<Move>> cards;
    std::map<qint32, Entry> entries; ///< by number
};

/// Whatever the shop does, in whatever order: its books agree with each other and with what was done.
class tst_books_trusted : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void randomDays()
    {
        Days days;
        const QDeadlineTimer end(10'000);
        for (int day = 0; day < 90 && !end.hasExpired(); ++day) {
            days.pass();
            days.check();
            if (QTest::currentTestFailed())
                return;
        }
    }
};

QTEST_GUILESS_MAIN(tst_books_trusted)
#include "tst_books_trusted.moc"
