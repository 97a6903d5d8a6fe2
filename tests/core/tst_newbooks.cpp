// New books: what the shop still needs comes along, numbered afresh, and both files agree; else the shop
// stands.
#include "core/store/Backup.h"
#include "core/store/Copies.h"
#include "core/store/NewBooks.h"
#include "core/store/Schema.h"
#include "core/store/ShopCheck.h"
#include "core/store/Voucher.h"
#include "jobcards/LastOrder.h"
#include "platform/values/Errors.h"
#include "sample/SampleShop.h"
#include "support/DeadlyWrites.h"
#include "support/Files.h"
#include "support/Refusal.h"
#include "support/Shop.h"

#include <QDir>
#include <QTest>

namespace {

/// A small shop; its first cards lie three years back.
void layOldShop(const QString& folder)
{
    sample::Plan plan = sample::demo(QDate(2024, 2, 10));
    plan.clients = 60;
    plan.workers = 6;
    plan.workersAtOnce = 3;
    plan.cards = 150;
    plan.lines = 300;
    plan.lastMonthLines = 120;
    plan.lastDayLines = 12;
    plan.postings = 0;
    sample::layShop(plan, folder);
    for (const char* table : {"JOBS", "JOBS_DETAIL", "postings"})
        Shop::run(QString("Update %1 set DATE=date(DATE, '-1100 days') where DATE<'2024-01-01'").arg(table));
}

void makeBooks(newbooks::Plan plan)
{
    newbooks::Making books(std::move(plan));
    books.make({});
    books.takePlace();
    DE.open(session.databasePath());
}

QStringList faults()
{
    QStringList found;
    for (const shopcheck::Finding& finding : shopcheck::run({}).findings)
        if (!finding.mayBeMeant)
            found << finding.what;
    return found;
}

void removeAll(const QStringList& paths)
{
    for (const QString& path : paths)
        QFile::remove(path);
}

QString refusalOf(const QDate& lastDay)
{
    return refusal([&] { newbooks::Making(newbooks::plan(lastDay)).make({}); });
}

/// What the operator sees of each account on a day: title and balance.
QStringList balances(const QDate& day)
{
    return Shop::rows(
        "Select Title, round(sum(Amount), 2) from Accounts, postings where AccID=Accounts.Id and "
        "postings.Status=0 and postings.Date<='" +
        day.toString(Qt::ISODate) + "' group by Title having abs(sum(Amount))>=0.005 order by Title");
}

QStringList holes()
{
    QStringList found;
    for (const char* table : {"Accounts", "ITEMS", "JOBS_DETAIL", "postings"}) {
        const QString name = table;
        if (Shop::value("Select max(Id) from " + name) != Shop::value("Select count(*) from " + name))
            found << name;
    }
    return found;
}

} // namespace

class tst_newbooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeYearsAreClosed()
    {
        QTemporaryDir folder;
        layOldShop(folder.path());
        const QDate lastDay(2024, 1, 10); // there are cards and vouchers behind it
        const QStringList atTheEnd = balances(lastDay);
        const QStringList today = balances(session.WorkingDate);
        const QVariant lastCard = Shop::value("Select max(Id) from JOBS");
        const QStringList inShop = Shop::rows("Select JobID, ItemSr, DoneByWorker, WorkerName from "
                                              "JOBS_DETAIL where DoneByWorker in (0, 1, 3) order by "
                                              "JobID, ItemSr");
        const QVariant lines = Shop::value("Select count(*) from JOBS_DETAIL");

        newbooks::Plan plan = newbooks::plan(lastDay);
        QVERIFY(plan.idle.size() > 1 && plan.linesStay < plan.lines);
        const QString chosen = plan.idle[0].title;
        const QString left = plan.idle[1].title;
        plan.idle[0].comesAlong = true;
        makeBooks(plan);

        QCOMPARE(faults(), QStringList());
        QCOMPARE(balances(lastDay), atTheEnd);
        QCOMPARE(balances(session.WorkingDate), today);
        QCOMPARE(holes(), QStringList());
        QCOMPARE(Shop::value("Select max(Id) from JOBS"), lastCard);
        QCOMPARE(Shop::rows(
                     "Select JobID, ItemSr, DoneByWorker, WorkerName from JOBS_DETAIL where DoneByWorker in "
                     "(0, 1, 3) order by JobID, ItemSr"),
                 inShop);
        QVERIFY(Shop::value("Select count(*) from JOBS_DETAIL").toInt() < lines.toInt());
        QCOMPARE(idOfAccount(left), 0);
        QVERIFY(idOfAccount(chosen) != 0);
        DE.close();

        const QList<copies::Copy> old = copies::oldBooks();
        QCOMPARE(old.size(), 1);
        QCOMPARE(copies::lastDayOfBooks(old[0].path), lastDay);
        QVERIFY(copies::contentsOf(old[0].path).cards >= 150);
        QCOMPARE(newbooks::lastDayBefore(old[0].path), "");
        QCOMPARE(newbooks::lastDayBefore(session.databasePath()), "2024-01-10");
    }

    /// What was paid stays paid, what is owed stays owed, and the last order begins the next.
    void wagesDuesAndMeasurements()
    {
        Shop shop;
        const qint32 gone = shop.addClient("Nobody Since");
        const qint32 asha = shop.addClient("Asha");
        const qint32 ravi = shop.addWorker("Ravi");
        const qint32 shirt = shop.addItem("Shirt");
        const auto line = [&](int job, qint32 client, const char* day, const QString& set) {
            const qint32 id = shop.addJobLine(client, shirt, ravi, set);
            Shop::run(
                QString("Update JOBS_DETAIL set JobID=%1, DATE='%2', ItemSr=1, FEES=100, QNT=1, Amount=100, "
                        "CompletedDate='%2', DelToCustDate='%2' where Id=%3")
                    .arg(job)
                    .arg(day)
                    .arg(id));
            shop.addJob(job, client);
            Shop::run(
                QString("Update JOBS set DATE='%1', JobFinished=1, AmountDue=100, AmountPaid=0 where Id=%2")
                    .arg(day)
                    .arg(job));
            DE.connection().writeBatch([&] {
                Voucher(VoucherType::Job, job)
                    .AddPair({.particulars = "Sales",
                              .date = QDate::fromString(day, Qt::ISODate),
                              .account = client,
                              .opposite = GetAccountID("Sales"),
                              .amount = Currency::fromDouble(-100),
                              .remark = {}});
            });
        };
        line(1, gone, "2020-01-05", "DoneByWorker=2");
        shop.addVoucher(1, gone, GetAccountID("Cash"), 100);
        Shop::run("Update postings set Date='2020-01-06' where Vtype=2");
        line(2, asha, "2023-11-05",
             "DoneByWorker=2, WorkerWagesDue=40, ItemDetailsValue='30', PayrollID=2, MarkAsPaid=1");
        line(3, asha, "2023-12-05", "DoneByWorker=2, WorkerWagesDue=50, ItemDetailsValue='32'");
        DE.connection().writeBatch([&] {
            Voucher(VoucherType::Entry, 2)
                .AddPair({.particulars = "Wages",
                          .date = QDate(2023, 11, 30),
                          .account = ravi,
                          .opposite = GetAccountID("Wages"),
                          .amount = Currency::fromDouble(40),
                          .remark = {}},
                         {.payroll = true});
        });
        line(4, asha, "2024-01-05",
             "DoneByWorker=2, WorkerWagesDue=60, ItemDetailsValue='34', PayrollID=2, MarkAsPaid=1");
        Shop::run("Update postings set Amount=Amount*2.5 where isPayroll=1"); // it paid 40 and 60
        Shop::run("Update JOBS_DETAIL set WorkerWagesDue=0 where WorkerWagesDue is null");
        QCOMPARE(faults(), QStringList());

        makeBooks(newbooks::plan(QDate(2024, 1, 31)));
        QCOMPARE(faults(), QStringList());
        QCOMPARE(idOfAccount("Nobody Since"), 0);
        QCOMPARE(balances(QDate(2024, 2, 10)),
                 QStringList({"Asha -300", "Cash -100", "Ravi 100", "Sales 400", "Wages -100"}));
        // Of the closed cards the unpaid wage and the last order are there, at no amount.
        QCOMPARE(Shop::rows("Select JobID, Amount, WorkerWagesDue, MarkAsPaid, PayrollID<>0 from JOBS_DETAIL "
                            "order by Id"),
                 QStringList({"3 0 50 0 0", "4 100 60 1 1"})); // the card of the last number is whole
        QCOMPARE(LastOrder::of(GetItemID("Shirt"), GetAccountID("Asha"))->measurements.values,
                 QStringList("34"));
        QVERIFY(Shop::value("Select Remark from JOBS where Id=3")
                    .toString()
                    .startsWith("Old books to 31-Jan-2024."));
        QCOMPARE(Shop::rows("Select Amount from postings where isPayroll=1 and sr=1"), QStringList("60"));
    }

    void refusedAndLeftAlone()
    {
        {
            const Shop empty;
            QVERIFY(refusalOf(QDate(2024, 2, 10)).startsWith("There are no job cards and no vouchers yet"));
        }
        Shop shop;
        const qint32 asha = shop.addClient("Asha");
        shop.addVoucher(1, asha, GetAccountID("Cash"), 100);
        const QStringList before = Shop::rows("Select * from postings");
        const QDate day(2024, 2, 10);
        QVERIFY(refusalOf(QDate(2010, 1, 1)).startsWith("The shop's first day is"));

        Shop::run("Delete from postings where sr=2");
        const QString fault = refusalOf(day);
        QVERIFY2(fault.contains("Half of voucher 1 (Receipt) is not there."), qPrintable(fault));
        QVERIFY(fault.startsWith("No new books have been made: the shop is as it was."));
        QCOMPARE(Shop::count("Select * from postings"), 1);
        QCOMPARE(QDir(shop.folder()).entryList({"*books*"}), QStringList());

        writeFile(newbooks::oldBooksPath(day), "taken");
        QVERIFY(refusalOf(day).startsWith("There are old books to 10-Feb-2024 already."));
    }

    /// The program is killed at each write, name and length that new books give: then the shop is the old
    /// one, as it was, or the new one with the old books beside it; and the next start leaves nothing
    /// half-made.
    void killedAtAnyWrite()
    {
        Shop shop;
        const qint32 asha = shop.addClient("Asha");
        shop.addVoucher(1, asha, GetAccountID("Cash"), 100);
        const QDate day(2024, 2, 10);
        const QString live = session.databasePath();
        const QString kept = newbooks::oldBooksPath(day);
        DE.close();
        const QByteArray old = contents(live);
        const auto make = [&] {
            DE.open(live);
            newbooks::Making books(newbooks::plan(day));
            books.make({});
            books.takePlace();
        };
        const auto again = [&](int deadly) {
            removeAll({live, kept, copies::lockPath(), session.appFolder + "/data.backup.lock"});
            writeFile(live, old);
            return deadlywrites::live(make, deadly);
        };
        const QByteArray changes = again(-1);
        QVERIFY2(changes.count('r') == 1 && changes.count('p') > 20, changes);
        int newOnes = 0;
        for (const int deadly : deadlywrites::places(changes)) {
            QCOMPARE(again(deadly).size(), deadly);
            clearLeftovers({}); // the next start
            QVERIFY(!QFileInfo::exists(session.appFolder + "/data.new-books.mdb"));
            if (contents(live) == old) {
                QVERIFY(!QFileInfo::exists(kept));
                continue;
            }
            ++newOnes;
            QVERIFY(contents(kept) == old);
            DE.open(live);
            QCOMPARE(GetSetting(settings::OldBooksTo), day.toString(Qt::ISODate));
            QCOMPARE(GetBalance(qint16(GetAccountID("Asha")), day), 100.0);
            QCOMPARE(faults(), QStringList());
            DE.close();
        }
        QVERIFY(newOnes > 0);
        shop.reopen();
    }

    /// What is saved while the new file is made is not lost: the new file is given up.
    void savedMeanwhile()
    {
        Shop shop;
        shop.addVoucher(1, shop.addClient("Asha"), GetAccountID("Cash"), 100);
        newbooks::Making books(newbooks::plan(QDate(2024, 2, 10)));
        books.make({});
        shop.addClient("Bala");
        QVERIFY(refusal([&] { books.takePlace(); }).endsWith("Make them again."));
        QCOMPARE(Shop::count("Select * from Accounts where Title='Bala'"), 1);
        QVERIFY(DE.connection().isOpen());
    }
};

QTEST_MAIN(tst_newbooks)
#include "tst_newbooks.moc"
