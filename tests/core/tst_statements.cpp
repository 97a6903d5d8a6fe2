// The statements that the program sends, on the real tables: each shape must be taken as it stands and find
// its rows.
#include "support/Shop.h"

#include <QTest>

class tst_statements : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void selectsAndShapes()
    {
        Shop shop; // with client 5, worker 6, card 7 of two lines, its voucher and a receipt
        const qint32 client = shop.addClient("Asha O'Neil");
        const qint32 worker = shop.addWorker("Babu");
        const qint32 item = shop.addItem("Shirt");
        shop.addVoucher(7, client, 2, -200);
        shop.addVoucher(1, client, 4, 50.25);
        shop.addJob(7, client);
        for (int line = 0; line < 2; ++line)
            shop.addJobLine(client, item, worker,
                            "JobID=7, QNT=2, FEES=50, Score=4, DoneByWorker=ID-1, JobDelDate='2024-02-20'");
        Shop::run("Update Accounts set dob='1990-02-10', CITY='Pune' where id=5");
        const std::pair<const char*, const char*> found[] = {
            {"", "Select sum(Amount) from Postings where status=0 and  AccID=6 and date between #17-11-1985# "
                 "and #2024-02-10#"},
            {"5", "Select ID from Accounts  where type=0 and Title like '%NEIL%'"},
            {"", "Select ID from Accounts  where type=0 and City like '%''%'"},
            {"1 2", "Select ID from JOBS_DETAIL where DATE<#11-Feb-2024# and ItemID=1 and ClintID=5"},
            {"1", "Select count(QNT) from JOBS_Detail where ItemID=1and WorkerID=6and date between "
                  "#10-Feb-2024# and #10-Feb-2024# and  DoneByWorker>0 "},
            {"5",
             "select ID from  Accounts where type=0 and month(dob) between 2 and 2 and day(dob) between  "
             "10 and 10"},
            {"1 2", "Select ID from Postings where Vid=7and Amount>-2E+3and Amount<1.5or Amount=0--200;"},
            {"3 4", "Select ID from Postings where VID=1 and Date<#10-Feb-2024 13:05:00#and [Sr]>0"},
            {"Asha O'Neil",
             "Select Title from `Accounts` where Title='asha o''neil' and '#1-1-2020# {5and' like '#%'"}};
        for (const auto& [values, sql] : found)
            QVERIFY2(Shop::rows(sql).join(u' ') == values, sql);

        DE.rsJOBS.Open();
        QCOMPARE(DE.rsJOBS["id"].integer(), 7);
        QCOMPARE(DE.rsJOBS.Chapter("pd").RecordCount(), 2);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, DE.rsJOBS.Chapter("Body"));
        DE.rsJOBS.Close();

        ado::Recordset& groups = DE.rsReport2_Grouping;
        groups.Open();
        QCOMPARE(groups["jtotal"].integer(), 12);
        QCOMPARE(groups.Chapter("Report2").RecordCount(), 2);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, groups["jtotal"] = 1);
        groups.Close();

        ado::Recordset& print = DE.rsPrintHead;
        print.Open(
            "SHAPE {SELECT * FROM Accounts where ID>4 }  APPEND ({SELECT * FROM Postings where Sr=1 or "
            "Sr>1 order by id desc} AS Body RELATE ID to AccID)");
        QCOMPARE(print.RecordCount(), 2);
        QCOMPARE(print.Chapter("Body")["VID"].text(), "1");
        print.MoveNext();
        QCOMPARE(print.Chapter("Body").RecordCount(), 0);
        print.Close();

        for (const char* refused :
             {"", " ; ", "Delete from jobs_detail where Id=1,2", "Delete from tmpHead; Delete from JOBS",
              "Select * from Jobs where Remark='O'Brien'", "Select * from Jobs where Date=#31-31-2024#",
              "Select * from Jobs where Date=#2024-02-10", "Select * from `Jobs", "SHAPE {Select 1",
              "SHAPE {Select 1} APPEND ({Select 2} RELATE a b)", "SHAPE {Select 1} AS a COMPUTE b"})
            QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, print.Open(refused));
        QCOMPARE(DE.connection().Execute("Delete * from Jobs_Detail"), 2);
    }
};

QTEST_GUILESS_MAIN(tst_statements)
#include "tst_statements.moc"
