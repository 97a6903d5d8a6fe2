// The sample shop: the books agree, every state of a line is there, the same plan lays the same shop.
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "sample/SampleShop.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Three months of a small shop, busy enough that everything happens.
sample::Plan small()
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

double value(const QString& sql)
{
    ado::Recordset rows(DE.connection());
    rows.Open(sql);
    return rows[0].number();
}

/// Every row of every table, as text, less the folder of the shop.
QStringList allRows()
{
    QStringList result;
    for (const char* table : {"SHOP", "ITEMS", "Accounts", "JOBS", "JOBS_DETAIL", "Settings", "postings"}) {
        ado::Recordset rows(DE.connection());
        for (rows.Open(QLatin1String(table)); !rows.AtEOF(); rows.MoveNext()) {
            QStringList fields{QLatin1String(table)};
            for (int field = 0; field < rows.FieldCount(); ++field)
                fields << rows[field].text().replace(session.appFolder, u"."_s);
            result << fields.join(u'|');
        }
    }
    return result;
}

} // namespace

class tst_sample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { sample::layShop(small(), m_folder.path()); }
    void cleanupTestCase() { DE.close(); }

    void asPlanned_data();
    void asPlanned();
    void sameSeedSameShop();

private:
    QTemporaryDir m_folder;
};

void tst_sample::asPlanned_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    const auto row = [](const char* name, const char* sql, double least, double most) {
        QTest::newRow(name) << QString::fromLatin1(sql) << least << most;
    };
    row("cards", "Select count(*) from Jobs", 150, 150);
    row("lines", "Select count(*) from Jobs_Detail", 300, 300);
    row("lines of the last day", "Select count(*) from Jobs_Detail where date=#10-FEB-2024#", 12, 12);
    row("lines of the last month", "Select count(*) from Jobs_Detail where date>#11-JAN-2024#", 120, 120);
    row("postings", "Select count(*) from Postings", 1100, 1100);
    row("clients who came", "Select count(distinct ClintID) from Jobs", 60, 60);
    row("numbers of cards", "Select max(id) from Jobs", 1150, 1150);
    row("the ledger", "Select sum(Amount) from Postings", 0, 0);
    row("vouchers that are not even",
        "Select count(*) from (Select sum(Amount) as a from Postings group by VID, vType) where a<>0", 0, 0);
    row("cards and vouchers that differ",
        "Select count(*) from Jobs where AmountDue<>(Select sum(Amount) from Postings where VID=Jobs.id and "
        "vType=1 and Sr=2) or AmountDue<>(Select sum(Amount) from Jobs_Detail where JobID=Jobs.id)",
        0, 0);
    row("cards paid above their total", "Select count(*) from Jobs where AmountPaid>AmountDue", 0, 0);
    row("clients who owe",
        "Select count(*) from (Select sum(Amount) as a from Postings, Accounts where Accounts.id=accID and "
        "type=0 and Postings.status=0 group by accID) where a<0",
        5, 40);
    row("clients in credit",
        "Select count(*) from (Select sum(Amount) as a from Postings, Accounts where Accounts.id=accID and "
        "type=0 and Postings.status=0 group by accID) where a>0",
        0, 0);
    row("wages of lines and payrolls that differ",
        "Select count(*) from Postings where isPayroll=1 and Sr=1 and Amount<>(Select sum(WorkerWagesDue) "
        "from "
        "Jobs_Detail where PayrollID=VID and WorkerID=accID and MarkAsPaid=1)",
        0, 0);
    row("payrolls", "Select count(*) from Postings where isPayroll=1 and Sr=1", 12, 100);
    row("kinds of entries", "Select count(distinct particulars) from Postings where vType=2", 5, 5);
    row("advances", "Select count(*) from Postings where Sr=1 and Remark='Advance'", 1, 20);
    row("till below nothing",
        "Select count(*) from (Select sum(Amount) as a from Postings where accID=4) where a>0", 0, 0);
    row("cancelled cards", "Select count(*) from Jobs where Status=1 and CancelReason<>''", 1, 10);
    row("closed cards", "Select count(*) from Jobs where JobFinished=1", 60, 140);
    row("closed cards with a line in the shop",
        "Select count(*) from Jobs, Jobs_Detail where JobID=Jobs.id and JobFinished=1 and DoneByWorker<>2", 0,
        0);
    for (const char* state : {"0", "1", "2", "3", "4"})
        QTest::addRow("state %s", state)
            << u"Select count(*) from Jobs_Detail where DoneByWorker="_s + QLatin1String(state) << 1.0
            << 280.0;
    row("unassigned", "Select count(*) from Jobs_Detail where WorkerID=0", 5, 100);
    row("cut, not yet made", "Select count(*) from Jobs_Detail where CuttingStatus=1 and DoneByWorker=0", 1,
        100);
    row("days out of turn",
        "Select count(*) from Jobs_Detail where CompletedDate<CuttingDate or DelToCustDate<CompletedDate or "
        "DelToCustDate>#10-FEB-2024#",
        0, 0);
    row("to be delivered today", "Select count(*) from Jobs_Detail where JobDelDate=#10-FEB-2024#", 1, 30);
    row("trials to come", "Select count(*) from Jobs where TrialDate>#10-FEB-2024# and appeared=0", 1, 60);
    row("scored and told",
        "Select count(*) from Jobs_Detail where Score between 1 and 5 and ClientFeedback<>''", 5, 280);
    row("scores out of range", "Select count(*) from Jobs_Detail where Score<0 or Score>5", 0, 0);
    row("mobiles with a 0 before them", "Select count(*) from Accounts where Mobile like '0%'", 2, 40);
    row("pictures", "Select count(*) from Jobs_Detail where Img1<>'' and Img2<>''", 3, 3);
}

void tst_sample::asPlanned()
{
    QFETCH(QString, sql);
    QFETCH(double, least);
    QFETCH(double, most);
    const double found = value(sql);
    QVERIFY2(found >= least && found <= most, qPrintable(QString::number(found)));
}

void tst_sample::sameSeedSameShop()
{
    const QStringList rows = allRows();
    const QStringList pictures = QDir(session.imagesFolder()).entryList(QDir::Files);
    QCOMPARE(pictures.size(), 6);
    DE.close();

    const QTemporaryDir second;
    sample::layShop(small(), second.path());
    QCOMPARE(allRows(), rows);
    QCOMPARE(QDir(session.imagesFolder()).entryList(QDir::Files), pictures);
    DE.close();

    const QTemporaryDir third;
    sample::Plan other = small();
    other.seed = 2;
    sample::layShop(other, third.path());
    QVERIFY(allRows() != rows);
}

QTEST_GUILESS_MAIN(tst_sample)
#include "tst_sample.moc"
