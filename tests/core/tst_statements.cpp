// Every statement that the program sends, on the real tables: each must be taken as it stands and find its
// rows.
#include "core/DE.h"
#include "support/Shop.h"

#include <QtTest>

class tst_statements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void selects_data();
    void selects();
    void deletes_data();
    void deletes();
    void removedLines();
    void shapedTables();
    void namesOfAnyCase();
    void appendToEachTable_data();
    void appendToEachTable();

private:
    std::unique_ptr<Shop> m_shop;
};

/// A client (5), a worker (6), an item (1), a card (7) of two lines, its voucher of four postings.
void tst_statements::init()
{
    if (m_shop)
        return;
    m_shop = std::make_unique<Shop>();
    m_shop->addClient(QStringLiteral("Asha O'Neil"), QStringLiteral("98765"));
    m_shop->addWorker(QStringLiteral("Babu"));
    m_shop->addItem(QStringLiteral("Shirt"));
    DE.connection().writeBatch([] {
        const QStringList statements = {
            QStringLiteral("Update Accounts set dob='1990-02-10', CITY='Pune' where id=5"),
            QStringLiteral("Insert into SHOP (NAME) values ('Shop')"),
            QStringLiteral(
                "Insert into JOBS (Id, DATE, ClintID, ClintName, DeliveryDate, TrialDate, AmountDue, "
                "AmountPaid, "
                "JobFinished, Remark, Status, CancelReason) values (7, '2024-02-10', 5, 'Asha O''Neil', "
                "'2024-02-20', '2024-02-15', 200, 50, 0, '', 0, '')"),
            QStringLiteral("Insert into postings (VID, Vtype, sr, Date, AccID, RefID, particulars, Remark, "
                           "Amount) values "
                           "(7, 1, 1, '2024-02-10', 5, 2, 'Job Card', '', -200), (7, 1, 2, '2024-02-10', 2, "
                           "5, 'Job Card', "
                           "'', 200), (1, 2, 1, '2024-02-11', 4, 5, 'Receipt', '', -50.25), (1, 2, 2, "
                           "'2024-02-11', 5, 4, "
                           "'Receipt', '', 50.25)"),
        };
        for (const QString& statement : statements)
            DE.connection().Execute(statement);
        for (int sr = 1; sr <= 2; ++sr) {
            DE.connection().Execute(
                QStringLiteral("Insert into JOBS_DETAIL (DATE, JobID, ItemSr, ClintID, ClintName, ItemID, "
                               "ItemName, QNT, "
                               "FEES, Amount, Remarks, ItemDetails, ItemDetailsValue, WorkerID, JobDelDate, "
                               "DoneByWorker, "
                               "CuttingDate, Score) values ('2024-02-10', 7, %1, 5, 'Asha O''Neil', 1, "
                               "'Shirt', 2, 50, 100, "
                               "'', 'Chest', '40', 6, '2024-02-20', %1 - 1, '2024-02-10', 4)")
                    .arg(sr));
        }
    });
}

/// The next function gets a fresh shop, unless this one only read.
void tst_statements::cleanup()
{
    if (qstrcmp(QTest::currentTestFunction(), "selects") != 0)
        m_shop.reset();
}

void tst_statements::selects_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("first"); // of the first column
    const auto row = [](const char* sql, int rows, const char* first) {
        QTest::newRow(sql) << QString::fromLatin1(sql) << rows << QString::fromLatin1(first);
    };
    // Settings, shop, look-ups
    row("Select * from Settings where SETTING='16'", 1, "1");
    row("Select * from Shop", 1, "1");
    row("Select * from Shop where id=1", 1, "1");
    row("Select * from accounts order by id", 6, "1");
    row("Select * from Accounts where Title='BABU'", 1, "6");
    row("Select * from Accounts where ID=5", 1, "5");
    row("Select * from Items where id=1", 1, "1");
    row("Select * from Items where Name='shirt'", 1, "1");
    row("Select ID from Accounts where Title='asha o''neil'", 1, "5");
    row("Select Title from Accounts order by Title", 6, "Asha O'Neil");
    row("Select Title from Accounts where Type=2 order by Title", 4, "Cash");
    row("Select sum(Amount) from Postings where status=0 and  AccID=5 and date between #17-11-1985# and "
        "#2024-02-10#",
        1, "-200");
    row("Select sum(Amount) from Postings where amount>0 and status=0 and  AccID=5 and date between "
        "#2024-02-10# and "
        "#2024-02-11#",
        1, "50.25");
    row("Select sum(Amount) from Postings where amount<0 and status=0 and  AccID=4 and date between "
        "#2024-02-10# and "
        "#2024-02-11#",
        1, "-50.25");
    row("Select sum(Amount) from Postings where status=0 and  AccID=6 and date between #17-11-1985# and "
        "#2024-02-10#",
        1, "");
    // Masters
    row("Select * from JOBS_DETAIL where ClintID=5", 2, "1");
    row("Select * from JOBS_DETAIL where WorkerID=6", 2, "1");
    row("Select * from Postings where AccID=6", 0, "");
    row("Select * from JOBS_DETAIL where ItemID=1", 2, "1");
    row("Select * from Accounts  where type=0 and Title like '%NEIL%'", 1, "5");
    row("Select * from Accounts  where type=0 and City like '%''%'", 0, "");
    row("Select * from Accounts where type=1 order by Title", 1, "6");
    // Job cards
    row("Select * from JOBS order by ID", 1, "7");
    row("Select * from JOBS where id=7", 1, "7");
    row("Select * from jobs_detail where JOBID=7 Order by ItemSr", 2, "1");
    row("Select * from Jobs where ClintID=5", 1, "7");
    row("Select * from JOBS_DETAIL where ItemID=1 and ClintID=5", 2, "1");
    row("Select * from JOBS_DETAIL where DATE<#11-Feb-2024# and ItemID=1 and ClintID=5", 2, "1");
    row("Select * from JOBS_DETAIL where DATE<#2024-02-10# and ItemID=1 and ClintID=5", 0, "");
    row("Select * from Jobs_Detail where JobID=7", 2, "1");
    row("Select * from Jobs_Detail where JobID=7 and DoneByWorker=1", 1, "2");
    row("sELeCT * FROM TMPHEAD", 0, "");
    row("sELeCT * FROM TMPbody", 0, "");
    // Registers
    row("Select * from JOBS_Detail where WorkerID=6 and JobDelDate  between #20-Feb-2024# and #20-Feb-2024# "
        "order by "
        "JobID,id,JobDelDate",
        2, "1");
    row("Select * from JOBS_Detail where date between #2024-02-10# and #2024-02-10# order by JobID,id,date",
        2, "1");
    row("Select * from JOBS_Detail where CompletedDate between #2024-02-10# and #2024-02-10# order by "
        "JobID,id,CompletedDate",
        0, "");
    row("Select * from JOBS_Detail where JOBid=7", 2, "1");
    row("Select * from JOBS_Detail where ClintID=5  order by JobDelDate desc", 2, "1");
    row("Select * from JOBS_Detail where ClintID=5 and JobDelDate between #01-Feb-2024# and #28-Feb-2024# "
        "order by "
        "JobDelDate,id",
        2, "1");
    row("Select * from Items order by Name", 1, "1");
    row("Select count(QNT) from JOBS_Detail where ItemID=1and WorkerID=6and date between #10-Feb-2024# and "
        "#10-Feb-2024#",
        1, "2");
    row("Select count(QNT) from JOBS_Detail where ItemID=1and date between #10-Feb-2024# and #10-Feb-2024#",
        1, "2");
    row("select * from  Jobs where TrialDate between #2024-02-15# and #2024-02-15# order by TrialDate,id", 1,
        "7");
    row("select * from  Accounts where type=0 and month(dob) between 2 and 2 and day(dob) between  10 and 10",
        1, "5");
    row("select * from  Accounts where type=0 and month(dob) between 10 and 10 and day(dob) between  2 and 2",
        0, "");
    // Accounts and wages
    row("Select * from Postings where vtype=2 and sr=1 order by vID", 1, "3");
    row("Select * from Postings where vid=1 and vtype=2 and sr=1", 1, "3");
    row("Select * from Postings order by ID", 4, "1");
    row("Select * from Postings where vid=1 and sr=2 and vtype=2", 1, "4");
    row("Select * from jobs_detail where PayrollID=9", 0, "");
    row("Select * from Postings where RefID=5", 2, "2");
    row("Select * from Postings where status=0 and sr=1 and date between #10-Feb-2024# and #11-Feb-2024#  "
        "order by date,vid ",
        2, "1");
    row("Select * from Postings where status=0 and AccID=5 and date between #10-Feb-2024# and #11-Feb-2024#  "
        "  order by "
        "date,vid",
        2, "1");
    row("Select * from Accountbook", 0, "");
    row("Select * from JOBS_Detail where WorkerID=6and date between #10-Feb-2024# and #10-Feb-2024# and  "
        "DoneByWorker>0  "
        "order by date,id",
        1, "2");
    row("Select * from JOBS_Detail where MarkAsPaid=0 and WorkerID=6and date between #10-Feb-2024# and "
        "#10-Feb-2024# and  "
        "DoneByWorker>0  order by date,id",
        1, "2");
    row("Select count(QNT) from JOBS_Detail where ItemID=1and WorkerID=6and date between #10-Feb-2024# and "
        "#10-Feb-2024# "
        "and  DoneByWorker>0 ",
        1, "1");
    row("Select * from Postings where vtype=2 order by vID", 2, "3");
    row("Select * from wagesregister", 0, "");
    row("Select * from JOBS_Detail where PayrollID=0 order by ID", 2, "1");
    // Planning and messages
    row("Select count(QNT) from Jobs_Detail where ItemID=1 and DoneByWorker=0", 1, "1");
    row("Select count(QNT) from Jobs_Detail where ItemID=1 and date=#2024-02-10# and DoneByWorker=0", 1, "1");
    row("SELECT Sum(Score) from Jobs_Detail where WorkerID=6", 1, "8");
    row("Select Count(*) from Jobs_Detail where WorkerID=6", 1, "2");
    row("Select * from Rank order by Score desc", 0, "");
    row("Select * from Accounts where type=0 and  Title='Asha O''Neil'", 1, "5");
    row("Select * from Accounts where  type=0 and  ID=5", 1, "5");
}

void tst_statements::selects()
{
    QFETCH(QString, sql);
    QFETCH(int, rows);
    QFETCH(QString, first);
    ado::Recordset recordset(DE.connection());
    recordset.Open(sql);
    QCOMPARE(recordset.RecordCount(), rows);
    if (rows > 0)
        QCOMPARE(recordset[0].text(), first);
    int walked = 0;
    for (; !recordset.AtEOF(); recordset.MoveNext())
        ++walked;
    QCOMPARE(walked, rows);
}

void tst_statements::deletes_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<int>("rows");
    const auto row = [](const char* sql, int rows) {
        QTest::newRow(sql) << QString::fromLatin1(sql) << rows;
    };
    row("Delete from Accounts where id=5", 1);
    row("Delete from Items where id=1", 1);
    row("Delete from Postings where vid=7and vtype=1", 2);
    row("Delete from Postings where vid=7 and vtype=1", 2);
    row("Delete from Postings where vid=1 and vtype=2", 2);
    row("Delete from Jobs where id=7", 1);
    row("Delete from Jobs_detail where jobid=7", 2);
    row("Delete from jobs_detail where Id=2", 1);
    row("Delete * from tmpHead", 0);
    row("Delete * from tmpbody", 0);
    row("Delete * from Accountbook", 0);
    row("Delete * from wagesregister", 0);
    row("Delete from Rank", 0);
}

void tst_statements::deletes()
{
    QFETCH(QString, sql);
    QFETCH(int, rows);
    QCOMPARE(DE.connection().Execute(sql), rows);
    QCOMPARE(DE.connection().Execute(sql), 0);
}

void tst_statements::removedLines()
{
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError,
                             DE.connection().Execute(QStringLiteral("Delete from jobs_detail where Id=1,2")));
    QCOMPARE(Shop::count(QStringLiteral("Select * from jobs_detail")), 2);
}

void tst_statements::shapedTables()
{
    DE.rsJOBS.Open();
    QCOMPARE(DE.rsJOBS["id"].integer(), 7);
    QCOMPARE(DE.rsJOBS.Chapter(QStringLiteral("PD")).RecordCount(), 2);
    DE.rsJOBS.Close();
    DE.rsReport2_Grouping.Open();
    QCOMPARE(DE.rsReport2_Grouping.RecordCount(), 1);
    QCOMPARE(DE.rsReport2_Grouping["jtotal"].integer(), 12);
    DE.rsReport2_Grouping.Close();
    DE.connection().Execute(QStringLiteral("Insert into tmpHead (Date, JOBID, NAME, DELDATE, TrialDate, "
                                           "AMOUNTDUE, AMOUNTPAID, AMOUNT) values ('', 7, '', '', "
                                           "'', '', '', '')"));
    for (const char* item : {"Shirt", "Coat"}) {
        DE.connection().Execute(
            QStringLiteral("Insert into tmpBody (JOBID, QNT, ItemNAME, Remarks, FESS, AMOUNT) values "
                           "(7, 1, '%1', '', '', '')")
                .arg(QLatin1String(item)));
    }
    DE.rsPrintHead.Open(QStringLiteral("SHAPE {SELECT * FROM tmpHead where JobID=") + QString::number(7) +
                        QStringLiteral(" }  ") +
                        QStringLiteral("APPEND ({SELECT * FROM tmpBody  order by id} AS Body ") +
                        QStringLiteral("RELATE JOBID to JOBID)"));
    QCOMPARE(DE.rsPrintHead.RecordCount(), 1);
    ado::Recordset& body = DE.rsPrintHead.Chapter(QStringLiteral("Body"));
    QCOMPARE(body.RecordCount(), 2);
    QCOMPARE(body["ItemName"].text(), QStringLiteral("Shirt"));
    DE.rsPrintHead.Close();
}

void tst_statements::namesOfAnyCase()
{
    ado::Recordset& rows = DE.rsJobs2;
    rows.Open(QStringLiteral("Select * from jObS where iD=7"));
    rows["JOBFINISHED"] = 1;
    rows["trialdate"] = QDate(2024, 2, 16);
    rows.Update();
    rows.Open();
    QCOMPARE(rows["JobFinished"].integer(), 1);
    QCOMPARE(rows["TrialDate"].date(), QDate(2024, 2, 16));
    rows.Close();
}

void tst_statements::appendToEachTable_data()
{
    QTest::addColumn<QString>("table");
    for (const char* table : {"SHOP", "ITEMS", "Accounts", "JOBS", "JOBS_DETAIL", "Settings", "tmpHead",
                              "tmpBody", "postings", "rank", "wagesregister", "accountbook"})
        QTest::newRow(table) << QString::fromLatin1(table);
}

/// Each column takes its values back as they were given, and a row without its required ones is refused.
void tst_statements::appendToEachTable()
{
    QFETCH(QString, table);
    ado::Recordset rows(DE.connection(), table);
    rows.Open();
    rows.AddNew();
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, rows.Update());
    rows.Open();
    rows.AddNew();
    for (int column = 0; column < rows.FieldCount(); ++column) {
        const bool autonumber = column == 0 && table != u"JOBS";
        const bool date = rows.FieldName(column).contains(QLatin1String("date"), Qt::CaseInsensitive) ||
                          rows.FieldName(column) == u"DOB";
        if (!autonumber)
            rows[column] = date ? QVariant(QDate(2024, 3, 1).addDays(column)) : QVariant(column);
    }
    rows.Update();
    const int count = rows.RecordCount();
    rows.Open();
    QCOMPARE(rows.RecordCount(), count);
    rows.MoveLast();
    for (int column = 1; column < rows.FieldCount(); ++column) {
        const QString text = rows[column].text();
        QVERIFY2(text == QString::number(column) ||
                     text == QDate(2024, 3, 1).addDays(column).toString(Qt::ISODate),
                 qPrintable(rows.FieldName(column) + u' ' + text));
    }
}

QTEST_GUILESS_MAIN(tst_statements)
#include "tst_statements.moc"
