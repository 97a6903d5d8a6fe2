#include "accounts/Payroll.h"
#include "core/store/Voucher.h"
#include "support/Refusal.h"
#include "support/Shop.h"

#include <QTest>

/// Ravi has four lines of 100.50, 0.25, 200 and 50; the first two are of the day before, the last is not
/// begun.
struct WorkShop : Shop
{
    WorkShop()
    {
        const qint32 asha = addClient("Asha");
        ravi = addWorker("Ravi");
        const qint32 shirt = addItem("Shirt");
        for (const char* line :
             {"200", "50, DoneByWorker=0", "100.5, Date='2024-02-09'", "0.25, Date='2024-02-09'"})
            addJobLine(asha, shirt, ravi, QString("DoneByWorker=2, ItemSr=ID, WorkerWagesDue=") + line);
    }
    wages::Scope period(int days = 1) const
    {
        return {ravi, QDate(2024, 2, 10).addDays(1 - days), QDate(2024, 2, 10)};
    }
    std::vector<wages::Line> unpaid() const
    {
        return wages::read(wages::linesOf(period(2), wages::Which::Unpaid));
    }
    qint16 pay() const { return payroll::Create(period(2), unpaid(), QDate(2024, 2, 12)); }

    qint32 ravi = 0;
};

static QStringList marks() { return Shop::rows("Select MarkAsPaid, PayrollID from Jobs_Detail order by id"); }
const QStringList noMarks{"0 0", "0 0", "0 0", "0 0"};

class tst_payroll : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void paysTheUnpaidLinesOnce()
    {
        const WorkShop shop;
        QStringList listed;
        for (const wages::Line& line : shop.unpaid())
            listed << line.cells().join(u'|');
        QCOMPARE(listed, QStringList({"09-Feb-2024|1 / 3||Shirt|100.50|100.50||Unpaid",
                                      "09-Feb-2024|1 / 4||Shirt|0.25|100.75||Unpaid",
                                      "10-Feb-2024|1 / 1||Shirt|200.00|300.75||Unpaid"}));
        const std::vector<ItemCount> counts = wages::itemCounts(shop.period(2));
        QCOMPARE(counts.size(), size_t(1));
        QCOMPARE(counts[0].item, "Shirt");
        QCOMPARE(counts[0].lines, 3);
        QCOMPARE(wages::itemCounts(shop.period())[0].lines, 1);

        QCOMPARE(shop.pay(), qint16(1));
        QCOMPARE(marks(), QStringList({"1 1", "0 0", "1 1", "1 1"}));
        const qint32 wagesAccount = GetAccountID("Wages");
        const QString rest = " Wages 2024-02-12 0 1 Wages [ From :09-Feb-2024 To 10-Feb-2024 ]";
        QCOMPARE(Shop::rows("Select VID, Sr, accID, refID, Amount, particulars, Date, Status, isPayroll, "
                            "Remark from Postings where vType=2"),
                 QStringList({QString("1 1 %1 %2 300.75").arg(shop.ravi).arg(wagesAccount) + rest,
                              QString("1 2 %2 %1 -300.75").arg(shop.ravi).arg(wagesAccount) + rest}));
        QVERIFY(shop.unpaid().empty());
        QCOMPARE(wages::read(wages::linesOfPayroll(1)).size(), size_t(3));
        QCOMPARE(wages::read(wages::linesOf(shop.period(2), wages::Which::Paid)).size(), size_t(3));
        QCOMPARE(wages::read(wages::linesOf(shop.period(2), wages::Which::All)).back().balance,
                 Currency::fromDouble(300.75));

        DE.connection().writeBatch([] { payroll::Release(1); });
        QCOMPARE(marks(), noMarks);
    }

    /// What another program has done since the lines were listed refuses the payroll whole.
    void refusesWhatIsNoLongerOwed()
    {
        for (const char* meanwhile :
             {"Update Jobs_Detail set MarkAsPaid=1, PayrollID=9 where ID=4",
              "Delete from Jobs_Detail where ID=4", "Update Jobs_Detail set WorkerWagesDue=1 where ID=4",
              "Update Jobs_Detail set WorkerID=1 where ID=4",
              "Update Jobs_Detail set DoneByWorker=0 where ID=4"}) {
            const WorkShop shop;
            const std::vector<wages::Line> listed = shop.unpaid();
            Shop::run(meanwhile);
            const QStringList before = marks();
            const QString told =
                refusal([&] { payroll::Create(shop.period(2), listed, QDate(2024, 2, 12)); });
            QVERIFY2(
                told.startsWith("Nothing has been saved.\r\nJob 1 / 4 has been paid, changed or deleted"),
                qPrintable(told));
            QCOMPARE(marks(), before);
            QCOMPARE(Shop::count("Select * from Postings"), 0);
        }
    }

    void numbersApartFromTheEntries()
    {
        WorkShop shop;
        shop.addVoucher(1, 1, 2, 5);
        shop.addVoucher(2, 1, 2, 5); // its last row is number 4
        QCOMPARE(shop.pay(), qint16(5));
        QCOMPARE(Voucher::NextEntryNumber(), 6);
        for (const int number : {7, 10, 11, 13}) // the last in rows 13 and 14: after it comes ...
            shop.addVoucher(number, 1, 2, 5);
        QCOMPARE(Voucher::NextPayrollNumber(), qint16(15));
        Shop::run("Update Postings set VID=15 where VID=7"); // ... the next that is free
        Shop::run("Update Postings set VID=30 where VID=13");
        QCOMPARE(Voucher::NextPayrollNumber(), qint16(16));
        DE.connection().writeBatch([] { payroll::Release(5); });
        Shop::run("Update Postings set ID=32767 where ID=14");
        const QString told = refusal([&] { shop.pay(); });
        QVERIFY2(
            told.startsWith("Nothing has been saved.\r\nOverflow: Next payroll number 32768 is too large."),
            qPrintable(told));
        QCOMPARE(marks(), noMarks);
    }

    void aRefusedStatementLeavesNothing()
    {
        const WorkShop shop;
        for (const char* refused :
             {"BEFORE INSERT ON postings WHEN NEW.Sr=2", "BEFORE INSERT ON postings",
              "BEFORE UPDATE ON JOBS_DETAIL WHEN NEW.Id=1", "BEFORE UPDATE ON JOBS_DETAIL WHEN NEW.Id=3"}) {
            Shop::run(QString("CREATE TEMP TRIGGER no %1 BEGIN SELECT RAISE(FAIL, 'refused'); END")
                          .arg(QLatin1String(refused)));
            QVERIFY(refusal([&] { shop.pay(); }).endsWith("refused"));
            Shop::run("DROP TRIGGER no");
            QCOMPARE(marks(), noMarks);
            QCOMPARE(Shop::count("Select * from Postings"), 0);
        }
        QCOMPARE(shop.pay(), qint16(1));
    }
};

QTEST_GUILESS_MAIN(tst_payroll)
#include "tst_payroll.moc"
