// The sample shop: the books agree, every state of a line is there, the same plan lays the same shop.
#include "core/store/ShopCheck.h"
#include "sample/SampleShop.h"
#include "support/Shop.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// Three months of a small shop, busy enough that everything happens.
static sample::Plan small()
{
    sample::Plan plan = sample::demo(QDate(2024, 2, 10));
    plan.clients = 60;
    plan.workers = 6;
    plan.workersAtOnce = 3;
    plan.cards = 150;
    plan.lines = 300;
    plan.lastMonthLines = 120;
    plan.lastDayLines = 12;
    plan.postings = 1100;
    plan.pictures = 3;
    return plan;
}

static int count(const char* rowsOf) { return Shop::count(QString("Select * from ") + rowsOf); }

/// Every row of every table, as text, less the folder of the shop.
static QStringList allRows()
{
    QStringList rows;
    for (const char* table : {"SHOP", "ITEMS", "Accounts", "JOBS", "JOBS_DETAIL", "Settings", "postings"})
        rows += Shop::rows(QString("Select * from ") + table);
    return rows.replaceInStrings(session.appFolder, ".");
}

class tst_sample : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase() { sample::layShop(small(), m_folder.path()); }
    void cleanupTestCase() { DE.close(); }

    void theCheckFindsNothing()
    {
        QStringList found;
        for (const shopcheck::Finding& finding : shopcheck::run({}).findings)
            found << finding.what;
        QCOMPARE(found, QStringList());
    }

    void theBooksAgree()
    {
        for (const char* none :
             {"(Select sum(Amount) as a from Postings) where a<>0",
              "(Select sum(Amount) as a from Postings group by VID, vType) where a<>0",
              "Jobs where AmountDue<>(Select sum(Amount) from Postings where VID=Jobs.id and vType=1 and "
              "Sr=2) or AmountDue<>(Select sum(Amount) from Jobs_Detail where JobID=Jobs.id)",
              "Jobs where AmountPaid>AmountDue",
              "(Select sum(Amount) as a from Postings, Accounts where Accounts.id=accID and type=0 and "
              "Postings.status=0 group by accID) where a>0",
              "Postings where isPayroll=1 and Sr=1 and Amount<>(Select sum(WorkerWagesDue) from Jobs_Detail "
              "where PayrollID=VID and WorkerID=accID and MarkAsPaid=1)",
              "(Select sum(Amount) as a from Postings where accID=4) where a>0",
              "Jobs, Jobs_Detail where JobID=Jobs.id and JobFinished=1 and DoneByWorker<>2",
              "Jobs_Detail where CompletedDate<CuttingDate or DelToCustDate<CompletedDate or "
              "DelToCustDate>#10-FEB-2024#",
              "Jobs_Detail where Score<0 or Score>5"})
            QVERIFY2(count(none) == 0, none);
    }

    void everythingHappens()
    {
        for (const auto& [rows, least, most] :
             {std::tuple("Jobs", 150, 150), std::tuple("Jobs_Detail", 300, 300),
              std::tuple("Jobs_Detail where date=#10-FEB-2024#", 12, 12),
              std::tuple("Jobs_Detail where date>#11-JAN-2024#", 120, 120),
              std::tuple("Postings", 1100, 1100), std::tuple("Postings where isPayroll=1 and Sr=1", 12, 100),
              std::tuple("(Select distinct ClintID from Jobs)", 60, 60),
              std::tuple("(Select distinct particulars from Postings where vType=2)", 5, 5),
              std::tuple("(Select distinct DoneByWorker from Jobs_Detail)", 5, 5),
              std::tuple("(Select sum(Amount) as a from Postings, Accounts where Accounts.id=accID and "
                         "type=0 and Postings.status=0 group by accID) where a<0",
                         5, 40),
              std::tuple("Jobs where Status=1 and CancelReason<>''", 1, 10),
              std::tuple("Jobs where JobFinished=1", 60, 140),
              std::tuple("Jobs where TrialDate>#10-FEB-2024# and appeared=0", 1, 60),
              std::tuple("Jobs_Detail where Score between 1 and 5 and ClientFeedback<>''", 5, 280),
              std::tuple("Jobs_Detail where Img1<>'' and Img2<>''", 3, 3)})
            QVERIFY2(count(rows) >= least && count(rows) <= most, rows);
    }

    void sameSeedSameShop()
    {
        const QStringList rows = allRows();
        const QStringList pictures = QDir(session.imagesFolder()).entryList(QDir::Files);
        QCOMPARE(pictures.size(), 6);
        DE.close();

        const QTemporaryDir second;
        sample::layShop(small(), second.path());
        QCOMPARE(allRows(), rows);
        QCOMPARE(QDir(session.imagesFolder()).entryList(QDir::Files), pictures);
    }
};

QTEST_GUILESS_MAIN(tst_sample)
#include "tst_sample.moc"
