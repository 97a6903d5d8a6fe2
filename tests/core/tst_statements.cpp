// The statements that the program sends, on the real tables: each shape must be taken as it stands and find
// its rows.
#include "core/DE.h"
#include "support/Shop.h"

#include <QtTest>

class tst_statements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A client (5), a worker (6), an item (1), a card (7) of two lines, its voucher and a receipt.
    void init()
    {
        m_shop.reset();
        m_shop = std::make_unique<Shop>();
        m_shop->addClient(QStringLiteral("Asha O'Neil"));
        m_shop->addWorker(QStringLiteral("Babu"));
        m_shop->addItem(QStringLiteral("Shirt"));
        DE.connection().writeBatch([] {
            run("Update Accounts set dob='1990-02-10', CITY='Pune' where id=5");
            run("Insert into JOBS (Id, DATE, ClintID, ClintName, DeliveryDate, TrialDate, AmountDue, "
                "AmountPaid, JobFinished, Remark, Status, CancelReason) values (7, '2024-02-10', 5, 'Asha "
                "O''Neil', '2024-02-20', '2024-02-15', 200, 50, 0, '', 0, '')");
            run("Insert into postings (VID, Vtype, sr, Date, AccID, RefID, particulars, Remark, Amount) "
                "values (7, 1, 1, '2024-02-10', 5, 2, '', '', -200), (7, 1, 2, '2024-02-10', 2, 5, '', '', "
                "200), (1, 2, 1, '2024-02-11', 4, 5, '', '', -50.25), (1, 2, 2, '2024-02-11', 5, 4, '', '', "
                "50.25)");
            for (int sr : {1, 2})
                run("Insert into JOBS_DETAIL (DATE, JobID, ItemSr, ClintID, ClintName, ItemID, ItemName, "
                    "QNT, FEES, Amount, Remarks, ItemDetails, ItemDetailsValue, WorkerID, JobDelDate, "
                    "DoneByWorker, CuttingDate, Score) values ('2024-02-10', 7, %1, 5, '', 1, 'Shirt', 2, "
                    "50, 100, '', '', '', 6, '2024-02-20', %1 - 1, '2024-02-10', 4)",
                    sr);
        });
    }

    void selects()
    {
        const std::pair<const char*, const char*> found[] = {
            // the first column of all rows
            {"5", "Select ID from Accounts where Title='asha o''neil'"},
            {"Cash Purchase Sales Wages", "Select Title from Accounts where Type=2 order by Title"},
            {"-200", "Select sum(Amount) from Postings where status=0 and  AccID=5 and date between "
                     "#17-11-1985# and #2024-02-10#"},
            {"", "Select sum(Amount) from Postings where status=0 and  AccID=6 and date between #17-11-1985# "
                 "and #2024-02-10#"},
            {"5", "Select * from Accounts  where type=0 and Title like '%NEIL%'"},
            {"", "Select * from Accounts  where type=0 and City like '%''%'"},
            {"1 2", "Select * from JOBS_DETAIL where DATE<#11-Feb-2024# and ItemID=1 and ClintID=5"},
            {"1 2", "Select * from JOBS_Detail where WorkerID=6 and JobDelDate  between #20-Feb-2024# and "
                    "#20-Feb-2024# order by JobID,id,JobDelDate"},
            {"1", "Select count(QNT) from JOBS_Detail where ItemID=1and WorkerID=6and date between "
                  "#10-Feb-2024# and #10-Feb-2024# and  DoneByWorker>0 "},
            {"7", "select * from  Jobs where TrialDate between #2024-02-15# and #2024-02-15# order by "
                  "TrialDate,id"},
            {"5", "select * from  Accounts where type=0 and month(dob) between 2 and 2 and day(dob) between  "
                  "10 and 10"},
            {"1 4", "Select * from Postings where status=0 and AccID=5 and date between #10-Feb-2024# and "
                    "#11-Feb-2024#    order by date,vid"},
            {"8", "SELECT Sum(Score) from Jobs_Detail where WorkerID=6"},
            {"2", "Select Count(*) from Jobs_Detail where WorkerID=6"},
        };
        for (const auto& [values, sql] : found) {
            QStringList got;
            ado::Recordset rows(DE.connection());
            for (rows.Open(QString::fromLatin1(sql)); !rows.AtEOF(); rows.MoveNext())
                got << rows[0].text();
            QVERIFY2(got.join(u' ') == QLatin1String(values), sql);
        }
    }

    void deletes()
    {
        QCOMPARE(run("Delete from Postings where vid=7and vtype=1"), 2);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, run("Delete from jobs_detail where Id=1,2"));
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, run("Delete from jobs_detail; Delete from JOBS"));
        QCOMPARE(run("Delete from Jobs_detail where jobid=7"), 2);
        QCOMPARE(run("Delete * from tmpHead"), 0);
        QCOMPARE(run("Delete * from Accountbook"), 0);
    }

    void shapedTables()
    {
        DE.rsJOBS.Open();
        QCOMPARE(DE.rsJOBS["id"].integer(), 7);
        QCOMPARE(DE.rsJOBS.Chapter(QStringLiteral("pd")).RecordCount(), 2);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, DE.rsJOBS.Chapter(QStringLiteral("Body")));
        DE.rsJOBS.Close();

        ado::Recordset& groups = DE.rsReport2_Grouping;
        groups.Open();
        QCOMPARE(groups.RecordCount(), 1);
        QCOMPARE(groups["jtotal"].integer(), 12);
        QCOMPARE(groups.Chapter(QStringLiteral("Report2")).RecordCount(), 2);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, groups["jtotal"] = 1);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, groups.AddNew());
        groups.Close();

        for (int job : {7, 8}) {
            run("Insert into tmpHead (Date, JOBID, NAME, DELDATE, TrialDate, AMOUNTDUE, AMOUNTPAID, AMOUNT) "
                "values ('', %1, '', '', '', '', '', '')",
                job);
            run("Insert into tmpBody (JOBID, QNT, ItemNAME, Remarks, FESS, AMOUNT) values (7, 1, 'No. %1', "
                "'', '', '')",
                job);
        }
        ado::Recordset& print = DE.rsPrintHead;
        print.Open(
            QStringLiteral("SHAPE {SELECT * FROM tmpHead where JobID>6 }  APPEND ({SELECT * FROM tmpBody "
                           "where QNT=1 or QNT>1 order by id desc} AS Body RELATE JOBID to JOBID)"));
        QCOMPARE(print.RecordCount(), 2);
        ado::Recordset& body = print.Chapter(QStringLiteral("Body"));
        QCOMPARE(body.RecordCount(), 2);
        QCOMPARE(body["ItemName"].text(), QStringLiteral("No. 8"));
        print.MoveNext();
        QCOMPARE(print.Chapter(QStringLiteral("Body")).RecordCount(), 0);
        print.Close();
    }

    /// Each column takes its values back as they were given.
    void appendToEachTable()
    {
        const auto given = [](const ado::Recordset& rows, int column) {
            const QString name = rows.FieldName(column).toLower();
            const bool date = name.contains(QLatin1String("date")) || name == u"dob";
            return date ? QVariant(QDate(2024, 3, 1).addDays(column)) : QVariant(column);
        };
        for (const char* table : {"SHOP", "ITEMS", "Accounts", "JOBS", "JOBS_DETAIL", "Settings", "tmpHead",
                                  "tmpBody", "postings", "rank", "wagesregister", "accountbook"}) {
            ado::Recordset rows(DE.connection(), QString::fromLatin1(table));
            rows.Open();
            rows.AddNew();
            const int first = qstrcmp(table, "JOBS") == 0 ? 0 : 1; // behind the autonumber
            for (int column = first; column < rows.FieldCount(); ++column)
                rows[column] = given(rows, column);
            rows.Update();
            rows.Open();
            rows.MoveLast();
            for (int column = first; column < rows.FieldCount(); ++column)
                QVERIFY2(rows[column].text() == given(rows, column).toString(),
                         qPrintable(rows.FieldName(column)));
        }
    }

private:
    static int run(const char* sql, int number = 0)
    {
        const QString text = QString::fromLatin1(sql);
        return DE.connection().Execute(number == 0 ? text : text.arg(number));
    }

    std::unique_ptr<Shop> m_shop;
};

QTEST_GUILESS_MAIN(tst_statements)
#include "tst_statements.moc"
