#include "accounts/Payroll.h"
#include "support/Shop.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>
#include <sqlcipher/sqlite3.h>

constexpr int lines = 5;

/// The engine's own word on the file: it reports damage in its rows.
static QByteArray integrity()
{
    QByteArray report;
    const auto keep = [](void* kept, int, char** values, char**) {
        *static_cast<QByteArray*>(kept) += values[0];
        return 0;
    };
    sqlite3_exec(DE.connection().handle(), "PRAGMA integrity_check", keep, &report, nullptr);
    return report;
}

static void tell(const char* what, int number)
{
    std::printf("%s %d\n", what, number);
    std::fflush(stdout);
}

/// The last number that a life has told of.
static int lastTold(const QByteArray& output, const QByteArray& what)
{
    const qsizetype end = output.lastIndexOf('\n');
    const qsizetype place = output.left(end).lastIndexOf(what);
    return place < 0 ? 0 : output.mid(place + what.size(), end).split('\n').first().toInt();
}

/// The other life of this program: saves cards on the shop of `folder` without end, each on a day of its own,
/// edits each once and pays the worker of its lines. It tells the number of each card that it was told is
/// saved, and of each card that is paid.
[[noreturn]] static void saveCardsUntilKilled(const QString& folder)
{
    session.appFolder = folder;
    session.WorkingDate = QDate(2024, 2, 10);
    DE.open(session.databasePath());
    const qint32 ravi = GetAccountID("Ravi");
    for (;;) {
        JobCard card;
        for (int i = 1; i <= lines; ++i) {
            Shop::order(card.JobRows, "Shirt", 100);
            card.JobRows.SetRemarks(i, QString(2000, u'x'));
        }
        JobCardHead head = Shop::head(JobCard::GetNewNum(), "Asha", 500, 200);
        head.Date = session.WorkingDate.addDays(head.Number);
        card.SaveNew(head);
        tell("card", head.Number);
        head.Paid = Currency::fromDouble(500);
        card.SaveEdit(head);
        Shop::run(QString("Update Jobs_Detail set DoneByWorker=1, WorkerID=%1 where JobID=%2")
                      .arg(ravi)
                      .arg(head.Number));
        const wages::Scope day{ravi, head.Date, head.Date};
        payroll::Create(day, wages::read(wages::linesOf(day, wages::Which::Unpaid)), head.Date);
        tell("paid", head.Number);
    }
}

/// The program dies in the middle of its saves, again and again.
class tst_powercut : public QObject
{
    Q_OBJECT
    Shop shop;
    int acknowledged = 0;
    int paidCards = 0;

private Q_SLOTS:
    void initTestCase()
    {
        shop.addClient("Asha");
        shop.addWorker("Ravi");
        shop.addItem("Shirt");
    }
    void cardsAndPayrollsAreWholeOrNotThere_data()
    {
        QTest::addColumn<int>("life");
        for (int life = 1; life <= 12; ++life)
            QTest::addRow("life %d", life) << life;
    }
    void cardsAndPayrollsAreWholeOrNotThere()
    {
        DE.close();
        QProcess saver;
        saver.start(QCoreApplication::applicationFilePath(), {"--save-in", shop.folder()});
        QVERIFY(saver.waitForReadyRead(15000)); // the first card of this life is saved
        const QDeadlineTimer end(QRandomGenerator::global()->bounded(1, 60));
        while (!end.hasExpired())
            saver.waitForReadyRead(1);
        saver.kill();
        saver.waitForFinished();
        const QByteArray told = saver.readAllStandardOutput();
        acknowledged = qMax(acknowledged, lastTold(told, "card "));
        paidCards = qMax(paidCards, lastTold(told, "paid "));

        shop.reopen();
        QCOMPARE(integrity(), QByteArray("ok"));
        QCOMPARE(Shop::value("Select sum(Amount) from Postings").toDouble(), 0.0);
        const QStringList paid = Shop::rows("Select AmountPaid from Jobs order by id");
        QVERIFY2(paid.size() >= acknowledged, qPrintable(QString("of %1 cards").arg(acknowledged)));
        QCOMPARE(Shop::rows("Select Amount from Postings where vtype=1 and sr=4 order by vid"), paid);
        QCOMPARE(Shop::count("Select * from Postings where vtype=1"), 4 * paid.size());
        QCOMPARE(Shop::count("Select * from Jobs_Detail"), lines * paid.size());
        const QStringList whole(paid.size(), QString::number(lines));
        QCOMPARE(Shop::rows("Select count(*) from Jobs_Detail group by JobID"), whole);

        // Each payroll has its two postings and all lines of its card; no other line is marked.
        const QStringList payrolls = Shop::rows("Select VID, Amount from Postings where isPayroll=1 and "
                                                "sr=1 order by vid");
        QCOMPARE(Shop::count("Select * from Postings where vtype=2"), 2 * payrolls.size());
        QCOMPARE(Shop::rows("Select PayrollID, sum(WorkerWagesDue) from Jobs_Detail where MarkAsPaid=1 "
                            "group by PayrollID having count(*)=5 order by PayrollID"),
                 payrolls);
        QCOMPARE(Shop::count("Select * from Jobs_Detail where MarkAsPaid<>0 or PayrollID<>0"),
                 lines * payrolls.size());
        const auto marked = u"Select * from Jobs_Detail where MarkAsPaid=1 and JobID=%1"_s.arg(paidCards);
        QCOMPARE(Shop::count(marked), paidCards == 0 ? 0 : lines);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--save-in")
        saveCardsUntilKilled(arguments.value(2));
    tst_powercut test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_powercut.moc"
