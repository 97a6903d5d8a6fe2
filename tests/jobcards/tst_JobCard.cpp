#include "platform/values/Notice.h"
#include "support/Refusal.h"
#include "support/Shop.h"

#include <QTest>

/// A shop with client 5 and two items.
struct TailorShop : Shop
{
    TailorShop()
    {
        addClient("Asha Rao");
        addItem("Shirt", 300, 120);
        addItem("Trouser", 450, 150);
    }
};

static int count(const char* rowsOf) { return Shop::count(QString("Select * from ") + rowsOf); }

static JobCardHead head(double total, double paid = 0, qint32 number = 1000)
{
    JobCardHead head = Shop::head(number, "Asha Rao", total, paid);
    head.Remark = "😀 'quick' 100%";
    return head;
}

/// A card with lines of 600 each, stored under the number.
static JobCard storedCard(int lines, double paid, qint32 number = 1000)
{
    JobCard card;
    for (int i = 0; i < lines; ++i)
        Shop::order(card.JobRows, "Shirt", 600);
    card.SaveNew(head(600 * lines, paid, number));
    return card;
}

static QString names(const clsJobCardData& rows)
{
    QStringList all;
    for (qint16 i = 1; i <= rows.RowCount(); ++i)
        all << rows.ItemName(i);
    return all.join(u' ');
}

/// A card's lines; storing, changing and deleting a card: what stands in the tables afterwards.
class tst_JobCard : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void linesInMemory()
    {
        const TailorShop shop;
        clsJobCardData rows;
        for (const char* name : {"Shirt", "Trouser"})
            Shop::order(rows, name, 10);
        rows.SetWorkerID(2, 301);
        rows.Copy(2);
        QCOMPARE(rows.WorkerID(3), 301);
        rows.SetItemName(3, "changed");
        QCOMPARE(names(rows), "Shirt Trouser changed");
        for (const int gone : {1, 2, 2, 100'000}) // the rows move up; none is there any more in the end
            rows.RemoveRow(gone);
        QCOMPARE(names(rows), "Trouser");

        // What does not fit changes nothing.
        QStringList notices;
        values::setCriticalNotice([&notices](const QString& text) { notices << text; });
        QCOMPARE(rows.ItemName(0), QString()); // row 0 is there, and empty
        QVERIFY(notices.isEmpty());
        QCOMPARE(rows.Color(2), QString());
        rows.SetItemName(2, "beyond");
        QCOMPARE(notices, QStringList(2, "Index Out of Bound!"));
        values::setCriticalNotice({});
        for (const int row : {-1, 2})
            QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.Copy(row));
        for (const int never : {0, -1})
            QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.RemoveRow(never));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.SetQty(1, -32769));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.ItemName(65'537));
        while (rows.RowCount() < 32'767)
            rows.Copy(1);
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.Copy(1));
        QVERIFY_THROWS_EXCEPTION(OverflowError, Shop::order(rows, "Shirt", 10));
        QCOMPARE(rows.RowCount(), 32'767);
        QCOMPARE(rows.Qty(1), 2);
    }

    void newCardStoresHeadLinesAndVoucher()
    {
        const TailorShop shop;
        SetSetting(23, "5000");
        QCOMPARE(JobCard::GetNewNum(), 5000);
        JobCard card;
        Shop::order(card.JobRows, "Shirt", 600.5);
        Shop::order(card.JobRows, "Trouser", 450);
        card.SaveNew(head(1050.5, 200.25));
        QVERIFY(card.EditMode == RecordMode::Stored && card.CurrentJobID == 1000);
        QCOMPARE(
            Shop::rows("Select ID, Date, DeliveryDate, trialdate, ClintID, AmountDue, AmountPaid, CashAccID, "
                       "Status, Remark from Jobs"),
            QStringList("1000 2024-02-10 2024-02-17 2024-02-13 5 1050.5 200.25 4 0 😀 'quick' 100%"));
        // The wage is one piece's, though two are ordered.
        QCOMPARE(
            Shop::rows("Select ID, ItemSr, ItemName, QNT, Color, JobDelDate, DoneByWorker, WorkerWagesDue, "
                       "CuttingDate, ClientRemarks, ItemDetailsValue from Jobs_Detail order by ItemSr"),
            QStringList({"1 1 Shirt 2 255 2024-02-17 0 120 2024-02-10 note 30\r\n40",
                         "2 2 Trouser 2 255 2024-02-17 0 150 2024-02-10 note 30\r\n40"}));
        QCOMPARE(card.JobRows.Sr(2), 2);
        QCOMPARE(Shop::rows(
                     "Select VID, vType, Sr, particulars, accID, refID, Amount, Status, Remark from Postings "
                     "order by Sr"),
                 QStringList({"1000 1 1 Sales 5 2 -1050.5 0 Job Card # :1000",
                              "1000 1 2 Sales 2 5 1050.5 0 Job Card # :1000",
                              "1000 1 3 Receipt 4 5 -200.25 0 Job Card # :1000",
                              "1000 1 4 Receipt 5 4 200.25 0 Job Card # :1000"}));
    }

    void savesOfAStoredCard()
    {
        const TailorShop shop;
        JobCard card = storedCard(1, 100);
        card.SaveEdit(head(600, 100)); // saved twice is stored once
        QCOMPARE(count("Postings"), 4);
        card.SaveEdit(head(600));
        QCOMPARE(count("Postings"), 2);
        QCOMPARE(count("Jobs where CashAccID=4"), 1); // the old account stays
        storedCard(0, 0, 7);                          // the sale is written for a total of nothing, too
        QCOMPARE(count("Postings where VID=7"), 2);
        QCOMPARE(JobCard::GetNewNum(), 1001); // above the highest, not the latest

        Shop::run("Update Jobs_Detail set WorkerID=9, DoneByWorker=1, MarkAsPaid=1, Score=4 where id=1");
        card.JobRows.SetItemName(1, "Trouser");
        JobCardHead changed = head(600, 100);
        changed.DeliveryDate = changed.DeliveryDate.addDays(10);
        card.SaveEdit(changed);
        QCOMPARE(Shop::rows(
                     "Select ItemName, WorkerID, DoneByWorker, MarkAsPaid, Score, WorkerWagesDue, JobDelDate "
                     "from Jobs_Detail where id=1"),
                 QStringList("Trouser 9 1 1 4 120 2024-02-17"));
        changed.Cancelled = true;
        card.SaveEdit(changed);
        QCOMPARE(count("Postings where Status=1"), 4);
        QCOMPARE(GetBalance(5, session.WorkingDate), 0.0);
        card.SaveEdit(head(600, 100)); // the card lives again, its line stays cancelled
        QCOMPARE(count("Jobs_Detail where DoneByWorker=4"), 1);
        QCOMPARE(GetBalance(5, session.WorkingDate), -500.0);
    }

    void addedCopiedAndRemovedLines()
    {
        const TailorShop shop;
        JobCard card = storedCard(4, 0);
        card.JobRows.Copy(4); // shares the stored line of its source
        card.JobRows.SetRemarks(5, "copy");
        card.SaveEdit(head(3000));
        QCOMPARE(count("Jobs_Detail"), 4);
        QCOMPARE(count("Jobs_Detail where Remarks='copy'"), 1);

        Shop::order(card.JobRows, "Trouser", 450); // on a stored card, added again by each save
        card.SaveEdit(head(3450));
        card.SaveEdit(head(3450));
        QCOMPARE(count("Jobs_Detail where ItemSr=6"), 2);

        card.JobRows.RemoveRow(6);
        card.RemoveLine(2);
        card.SaveEdit(head(2400));
        QCOMPARE(Shop::rows("Select ID from Jobs_Detail").join(u' '), "1 3 4 5 6");
        QVERIFY(card.RemovedLineIDs.isEmpty());

        // Two at once make a statement that the engine refuses: nothing is saved, the box says the way out.
        card.RemoveLine(1);
        card.RemoveLine(1);
        card.JobRows.SetRemarks(1, "not yet");
        QVERIFY(refusal([&] {
                    card.SaveEdit(head(600));
                }).startsWith("Nothing has been saved.\r\nTwo lines were removed before one save."));
        QCOMPARE(count("Jobs where AmountDue=600") + count("Jobs_Detail where Remarks='not yet'"), 0);
        QCOMPARE(count("Jobs_Detail"), 5);
        QCOMPARE(count("Postings where Amount=-2400"), 1);
        QCOMPARE(card.RemovedLineIDs, "1,3");
    }

    void whatBreaksOffASave()
    {
        const TailorShop shop;
        JobCard card;
        for (const char* item : {"Shirt", "Trouser"})
            Shop::order(card.JobRows, item, 600);
        Shop::run("Delete from Items where Name='Trouser'"); // the second line fails behind the first
        QVERIFY(refusal([&] { card.SaveNew(head(1200)); }).startsWith("Nothing has been saved.\r\n"));
        QVERIFY(card.EditMode == RecordMode::New && card.JobRows.Sr(1) == 0);
        QCOMPARE(count("Jobs") + count("Jobs_Detail") + count("Postings"), 0);

        // A stored card's new line is not stored again by each try that its voucher fails.
        card = storedCard(1, 0);
        Shop::order(card.JobRows, "Shirt", 600);
        JobCardHead unpayable = head(1200, 100);
        unpayable.ReceiptAccount = "Nobody";
        for (int attempt = 0; attempt < 2; ++attempt)
            QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, card.SaveEdit(unpayable));
        QCOMPARE(count("Jobs_Detail"), 1);
        Shop::run("Update Accounts set Title='D''Souza' where id=5");
        unpayable.Client = "D'Souza";
        QVERIFY(refusal([&] {
                    card.SaveEdit(unpayable);
                }).startsWith("Nothing has been saved.\r\nThe apostrophe in the name \"D'Souza\""));
    }
};

QTEST_GUILESS_MAIN(tst_JobCard)
#include "tst_JobCard.moc"
