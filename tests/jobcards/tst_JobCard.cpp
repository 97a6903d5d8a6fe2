#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "jobcards/JobCard.h"
#include "platform/values/Errors.h"
#include "support/Shop.h"

#include <QRandomGenerator>
#include <QTest>
#include <memory>

/// Storing, changing and deleting a card: what stands in the tables afterwards.
class tst_JobCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newCardStoresHeadLinesAndVoucher();
    void savingAgainChangesNothing();
    void voucherFollowsTheMoney();
    void storedLineKeepsItsWorker();
    void cancelledCardCountsNowhere();
    void removedLines();
    void lineAddedToAStoredCardIsAddedByEachSave();
    void copyOfAStoredLineStaysOneLine();
    void refusedSavesWriteNothing_data();
    void refusedSavesWriteNothing();
    void brokenOffSaveKeepsWhatWasWritten();
    void failedCommitPutsTheCardBack();
    void numbersOfCards();
    void deletingTakesTheVoucherOfThisKindOnly();
    void loadedLinesCarryTheCatalogueName();
    void postingsSumToZeroAfterAnyEdits();

private:
    JobCardHead head(double total, double paid = 0) const;
    void addRow(JobCard& card, const QString& item, double amount) const;
    JobCard storedCard(int lines = 2, double paid = 0);
    static QVariant value(const QString& sql) { return Shop::value(sql); }

    std::unique_ptr<Shop> m_shop;
    qint32 m_client = 0;
    qint32 m_shirt = 0;
};

namespace {

constexpr qint32 Sales = 2;
constexpr qint32 Cash = 4;

/// The voucher of a card, a line of text for each posting.
QStringList voucher(qint32 card)
{
    QStringList lines;
    auto& rs = DE.rspostings2;
    rs.Open(QStringLiteral("Select * from Postings where VID=%1 and vType=1 order by Sr").arg(card));
    for (; !rs.AtEOF(); rs.MoveNext()) {
        lines += QStringLiteral("%1 %2 %3>%4 %5 s%6")
                     .arg(rs["Sr"].integer())
                     .arg(rs["particulars"].text())
                     .arg(rs["accID"].integer())
                     .arg(rs["refID"].integer())
                     .arg(rs["Amount"].money().toString())
                     .arg(rs["Status"].integer());
    }
    rs.Close();
    return lines;
}

} // namespace

void tst_JobCard::init()
{
    m_shop.reset(); // the fixture allows one shop at a time
    m_shop = std::make_unique<Shop>();
    m_client = m_shop->addClient(QStringLiteral("Asha Rao"));
    m_shirt = m_shop->addItem(QStringLiteral("Shirt"), 300, 120);
    m_shop->addItem(QStringLiteral("Trouser"), 450, 150);
}

JobCardHead tst_JobCard::head(double total, double paid) const
{
    JobCardHead head;
    head.Number = 1000;
    head.Date = session.WorkingDate;
    head.Client = QStringLiteral("Asha Rao");
    head.DeliveryDate = session.WorkingDate.addDays(7);
    head.TrialDate = session.WorkingDate.addDays(3);
    head.Total = Currency::fromDouble(total);
    head.Paid = Currency::fromDouble(paid);
    head.ReceiptAccount = QStringLiteral("Cash");
    return head;
}

void tst_JobCard::addRow(JobCard& card, const QString& item, double amount) const
{
    card.JobRows.AddNewRow(0, item, GetItemID(item), 2, amount / 2, amount, QStringLiteral("slim"),
                           QStringLiteral("Length\r\nChest"), QStringLiteral("30\r\n40"), 0, {}, {}, {}, {},
                           {}, 0, 0, 0, {}, {}, {}, QStringLiteral("255"), 0, {}, QStringLiteral("note"));
}

JobCard tst_JobCard::storedCard(int lines, double paid)
{
    JobCard card;
    for (int i = 0; i < lines; ++i)
        addRow(card, QStringLiteral("Shirt"), 600);
    card.SaveNew(head(600 * lines, paid));
    return card;
}

void tst_JobCard::newCardStoresHeadLinesAndVoucher()
{
    JobCard card;
    addRow(card, QStringLiteral("Shirt"), 600.5);
    addRow(card, QStringLiteral("Trouser"), 450);
    JobCardHead toStore = head(1050.5, 200.25);
    toStore.Remark = QStringLiteral("wedding 😀 'quick' 100%");
    card.SaveNew(toStore);

    QCOMPARE(card.EditMode, QStringLiteral("E"));
    QCOMPARE(card.CurrentJobID, 1000);
    auto& job = DE.rsJOBS;
    job.Open(QStringLiteral("Select * from JOBS"));
    QCOMPARE(job.RecordCount(), 1);
    QCOMPARE(job["ID"].integer(), 1000);
    QCOMPARE(job["Date"].date(), toStore.Date);
    QCOMPARE(job["DeliveryDate"].date(), toStore.DeliveryDate);
    QCOMPARE(job["TrialDate"].date(), toStore.TrialDate);
    QCOMPARE(job["ClintID"].integer(), m_client);
    QCOMPARE(job["ClintName"].text(), toStore.Client);
    QCOMPARE(job["AmountDue"].money(), toStore.Total);
    QCOMPARE(job["AmountPaid"].money(), toStore.Paid);
    QCOMPARE(job["CashAccID"].integer(), Cash);
    QCOMPARE(job["Remark"].text(), toStore.Remark);
    QCOMPARE(job["JobFinished"].integer(), 0);
    job.Close();

    auto& line = DE.rsJOBS_DETAIL;
    line.Open(QStringLiteral("Select * from Jobs_Detail where JobID=1000 order by ItemSr"));
    QCOMPARE(line.RecordCount(), 2);
    QCOMPARE(line["ID"].integer(), qint32(card.JobRows.Sr(1)));
    QCOMPARE(line["ItemSr"].integer(), 1);
    QCOMPARE(line["ItemID"].integer(), m_shirt);
    QCOMPARE(line["QNT"].integer(), 2);
    QCOMPARE(line["Amount"].number(), 600.5);
    QCOMPARE(line["ItemDetailsValue"].text(), QStringLiteral("30\r\n40"));
    QCOMPARE(line["Color"].number(), 255.0);
    QCOMPARE(line["JobDelDate"].date(), toStore.DeliveryDate);
    QVERIFY(line["CompletedDate"].isNull());
    QCOMPARE(line["WorkerWagesDue"].number(), 120.0); // one piece's wage, though two are ordered
    QCOMPARE(line["CuttingDate"].date(), toStore.Date);
    QCOMPARE(line["ClientRemarks"].text(), QStringLiteral("note"));
    line.MoveNext();
    QCOMPARE(line["ID"].integer(), qint32(card.JobRows.Sr(2)));
    QCOMPARE(line["WorkerWagesDue"].number(), 150.0);
    line.Close();

    const auto c = QString::number(m_client);
    QCOMPARE(voucher(1000), QStringList({QStringLiteral("1 Sales %1>2 -1050.5 s0").arg(c),
                                         QStringLiteral("2 Sales 2>%1 1050.5 s0").arg(c),
                                         QStringLiteral("3 Receipt 4>%1 -200.25 s0").arg(c),
                                         QStringLiteral("4 Receipt %1>4 200.25 s0").arg(c)}));
    QCOMPARE(value(QStringLiteral("Select Remark from Postings where Sr=4")).toString(),
             QStringLiteral("Job Card # :1000"));
    QCOMPARE(GetBalance(qint16(m_client), session.WorkingDate), -850.25);
}

void tst_JobCard::savingAgainChangesNothing()
{
    JobCard card = storedCard(2, 100);
    const QStringList before = voucher(1000);
    card.SaveEdit(head(1200, 100));
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 1);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 2);
    QCOMPARE(voucher(1000), before);
}

void tst_JobCard::voucherFollowsTheMoney()
{
    JobCard card = storedCard(1, 100);
    JobCardHead unpaid = head(600);
    unpaid.ReceiptAccount = QStringLiteral("Sales");
    card.SaveEdit(unpaid);
    QCOMPARE(voucher(1000).size(), 2);
    QCOMPARE(value(QStringLiteral("Select CashAccID from Jobs")).toInt(), Cash); // the old account stays

    JobCard free;
    addRow(free, QStringLiteral("Shirt"), 600);
    JobCardHead gift = head(0);
    gift.Number = 1001;
    free.SaveNew(gift);
    QCOMPARE(voucher(1001).size(), 2); // the sale is written for a total of nothing, too
    QCOMPARE(value(QStringLiteral("Select CashAccID from Jobs where id=1001")).toInt(), 0);
}

void tst_JobCard::storedLineKeepsItsWorker()
{
    JobCard card = storedCard(1);
    DE.connection().Execute(QStringLiteral(
        "Update Jobs_Detail set WorkerID=9, WorkerName='Ravi', DoneByWorker=1, MarkAsPaid=1, Score=4"));
    card.JobRows.SetItemName(1, QStringLiteral("Trouser"));
    card.JobRows.SetItemID(1, GetItemID(QStringLiteral("Trouser")));
    JobCardHead changed = head(450);
    changed.DeliveryDate = changed.DeliveryDate.addDays(10);
    card.SaveEdit(changed);

    auto& line = DE.rsJOBS_DETAIL;
    line.Open(QStringLiteral("Select * from Jobs_Detail"));
    QCOMPARE(line["ItemName"].text(), QStringLiteral("Trouser"));
    QCOMPARE(line["WorkerID"].integer(), 9);
    QCOMPARE(line["DoneByWorker"].integer(), 1);
    QCOMPARE(line["MarkAsPaid"].integer(), 1);
    QCOMPARE(line["Score"].integer(), 4);
    QCOMPARE(line["WorkerWagesDue"].number(), 120.0);
    QCOMPARE(line["JobDelDate"].date(), session.WorkingDate.addDays(7));
    line.Close();
}

void tst_JobCard::cancelledCardCountsNowhere()
{
    JobCard card = storedCard(2, 100);
    JobCardHead cancelled = head(1200, 100);
    cancelled.Cancelled = true;
    cancelled.CancelReason = QStringLiteral("moved away");
    card.SaveEdit(cancelled);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where DoneByWorker=4")), 2);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Postings where Status=1")), 4);
    QCOMPARE(GetBalance(qint16(m_client), session.WorkingDate), 0.0);
    QCOMPARE(value(QStringLiteral("Select CancelReason from Jobs")).toString(), cancelled.CancelReason);

    card.SaveEdit(head(1200, 100)); // the card lives again, its lines stay cancelled
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where DoneByWorker=4")), 2);
    QCOMPARE(GetBalance(qint16(m_client), session.WorkingDate), -1100.0);
}

void tst_JobCard::removedLines()
{
    JobCard card = storedCard(4);
    const QString second = QString::number(card.JobRows.Sr(2));
    card.RemoveLine(2);
    QCOMPARE(card.RemovedLineIDs, second);
    card.SaveEdit(head(1800));
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 3);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where id=") + second), 0);
    QVERIFY(card.RemovedLineIDs.isEmpty());

    // Two at once make a statement that the engine refuses: head and lines stand, the voucher is still the
    // old one.
    card.RemoveLine(1);
    card.RemoveLine(1);
    const QString removed = card.RemovedLineIDs;
    card.JobRows.SetRemarks(1, QStringLiteral("written"));
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, card.SaveEdit(head(600)));
    QCOMPARE(value(QStringLiteral("Select AmountDue from Jobs")).toInt(), 600);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where Remarks='written'")), 1);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 3);
    QVERIFY(voucher(1000).first().contains(QStringLiteral("-1800")));
    QCOMPARE(card.RemovedLineIDs, removed);
}

void tst_JobCard::lineAddedToAStoredCardIsAddedByEachSave()
{
    JobCard card = storedCard(1);
    addRow(card, QStringLiteral("Trouser"), 450);
    card.SaveEdit(head(1050));
    QCOMPARE(int(card.JobRows.Sr(2)), 0);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where ItemSr=2")), 1);
    card.SaveEdit(head(1050));
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where ItemSr=2")), 2);
}

void tst_JobCard::copyOfAStoredLineStaysOneLine()
{
    JobCard card = storedCard(1);
    card.JobRows.Copy(1);
    card.JobRows.SetRemarks(2, QStringLiteral("copy"));
    card.SaveEdit(head(1200));
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 1);
    QCOMPARE(value(QStringLiteral("Select Remarks from Jobs_Detail")).toString(), QStringLiteral("copy"));
}

void tst_JobCard::refusedSavesWriteNothing_data()
{
    QTest::addColumn<QString>("client");
    QTest::addColumn<qint32>("number");
    QTest::addColumn<QString>("account");
    QTest::newRow("number taken") << "Asha Rao" << 1000 << "Cash";
    QTest::newRow("removed client") << "Nobody" << 1001 << "Cash";
    QTest::newRow("apostrophe") << "Sean O'Neil" << 1001 << "Cash";
    QTest::newRow("unknown receipt account") << "Asha Rao" << 1001 << "Bank";
}

void tst_JobCard::refusedSavesWriteNothing()
{
    QFETCH(QString, client);
    QFETCH(qint32, number);
    QFETCH(QString, account);
    storedCard(1);
    m_shop->addClient(QStringLiteral("Sean O'Neil"));
    JobCard card;
    addRow(card, QStringLiteral("Shirt"), 600);
    JobCardHead toStore = head(600, 10);
    toStore.Client = client;
    toStore.Number = number;
    toStore.ReceiptAccount = account;
    QVERIFY_THROWS_EXCEPTION(OperatorError, card.SaveNew(toStore));
    QCOMPARE(card.EditMode, QStringLiteral("N"));
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 1);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 1);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 2);
}

void tst_JobCard::brokenOffSaveKeepsWhatWasWritten()
{
    JobCard card;
    addRow(card, QStringLiteral("Shirt"), 600);
    addRow(card, QStringLiteral("Trouser"), 450);
    DE.connection().Execute(QStringLiteral("Delete from Items where Name='Trouser'"));
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, card.SaveNew(head(1050)));
    QCOMPARE(card.EditMode, QStringLiteral("E"));
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 1);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 1);
    QVERIFY(card.JobRows.Sr(1) > 0);
    QVERIFY(voucher(1000).isEmpty());
}

void tst_JobCard::failedCommitPutsTheCardBack()
{
    storedCard(1);
    JobCard card;
    addRow(card, QStringLiteral("Shirt"), 600);
    JobCardHead second = head(600);
    second.Number = 1001;
    DE.connection().Execute(QStringLiteral("PRAGMA busy_timeout=20"));
    {
        ado::Connection other; // a second program in the middle of reading
        other.open(session.databasePath(), QStringLiteral("measuretwicecut"),
                   ado::Connection::Mode::ReadOnly);
        ado::Recordset reading(other);
        other.Execute(QStringLiteral("BEGIN"));
        reading.Open(QStringLiteral("Select * from Jobs"));
        QVERIFY(!reading.AtEOF());
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, card.SaveNew(second));
    }
    QCOMPARE(card.EditMode, QStringLiteral("N"));
    QCOMPARE(card.CurrentJobID, 0);
    QCOMPARE(int(card.JobRows.Sr(1)), 0);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 1);

    card.SaveNew(second); // nothing was lost: the same card goes through
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 2);
    QCOMPARE(voucher(1001).size(), 2);
}

void tst_JobCard::numbersOfCards()
{
    QCOMPARE(JobCard::GetNewNum(), 1);
    SetSetting(23, QStringLiteral("1000"));
    QCOMPARE(JobCard::GetNewNum(), 1000);
    SetSetting(23, QStringLiteral("many"));
    QCOMPARE(JobCard::GetNewNum(), 0);
    storedCard(1);
    QCOMPARE(JobCard::GetNewNum(), 1001);
    JobCard late;
    addRow(late, QStringLiteral("Shirt"), 600);
    JobCardHead lower = head(600);
    lower.Number = 7;
    late.SaveNew(lower);
    QCOMPARE(JobCard::GetNewNum(), 1001); // the highest counts, not the latest
    DE.connection().Execute(QStringLiteral("Update Jobs set ID=2147483647 where ID=1000"));
    QVERIFY_THROWS_EXCEPTION(OverflowError, JobCard::GetNewNum());
}

void tst_JobCard::deletingTakesTheVoucherOfThisKindOnly()
{
    JobCard card = storedCard(2, 100);
    auto& other = DE.rspostings;
    other.Open(QStringLiteral("Select * from Postings"));
    other.AddNew();
    other["VID"] = 1000;
    other["vType"] = 2;
    other["Date"] = session.WorkingDate;
    other["accID"] = Cash;
    other["refID"] = Sales;
    other["particulars"] = QStringLiteral("Receipt");
    other["Remark"] = QString();
    other["Amount"] = 5;
    other.Update();
    other.Close();
    card.Delete();
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 0);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 0);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 1);
}

void tst_JobCard::loadedLinesCarryTheCatalogueName()
{
    storedCard(2);
    DE.connection().Execute(QStringLiteral("Update Items set Name='Kurta' where Name='Shirt'"));
    DE.connection().Execute(QStringLiteral("Update Jobs_Detail set Color=Null where ItemSr=2"));
    JobCard card;
    card.CurrentJobID = 1000;
    card.EditMode = QStringLiteral("E");
    card.LoadLines();
    QCOMPARE(int(card.JobRows.RowCount()), 2);
    QCOMPARE(card.JobRows.ItemName(1), QStringLiteral("Kurta"));
    QCOMPARE(card.JobRows.Amount(2), 600.0);
    card.SaveEdit(head(1200)); // a line without a colour goes back without one
    QVERIFY(value(QStringLiteral("Select Color from Jobs_Detail where ItemSr=2")).isNull());
    QCOMPARE(value(QStringLiteral("Select Color from Jobs_Detail where ItemSr=1")).toInt(), 255);

    DE.connection().Execute(QStringLiteral("Update Jobs_Detail set ID=40000 where ItemSr=2"));
    JobCard tooHigh;
    tooHigh.CurrentJobID = 1000;
    QVERIFY_THROWS_EXCEPTION(OverflowError, tooHigh.LoadLines());
}

void tst_JobCard::postingsSumToZeroAfterAnyEdits()
{
    QRandomGenerator random(20240210);
    const auto upTo = [&](int bound) { return int(random.bounded(bound)); };
    JobCard card = storedCard(3, 100);
    for (int step = 0; step < 40; ++step) {
        switch (card.JobRows.RowCount() > 1 ? upTo(4) : 0) {
        case 0:
            addRow(card, QStringLiteral("Trouser"), 0.01 * upTo(100000));
            break;
        case 1:
            card.RemoveLine(1 + upTo(card.JobRows.RowCount()));
            break;
        case 2:
            card.JobRows.Copy(1 + upTo(card.JobRows.RowCount()));
            break;
        default:
            card.JobRows.SetAmount(1, 0.0001 * upTo(1000000));
        }
        JobCardHead edited = head(0.0001 * upTo(50000000), 0.1 * upTo(3000));
        edited.Cancelled = upTo(5) == 0;
        // Two lines removed at once, or a line whose copy was removed, stop a save: a new start with what is
        // there.
        try {
            card.SaveEdit(edited);
        } catch (const ado::DatabaseError&) {
            QCOMPARE(value(QStringLiteral("Select sum(Amount) from Postings")).toDouble(), 0.0);
            const qint32 number = card.CurrentJobID;
            card = JobCard();
            card.CurrentJobID = number;
            card.EditMode = QStringLiteral("E");
            card.LoadLines();
            card.SaveEdit(edited);
        }
        QCOMPARE(value(QStringLiteral("Select sum(Amount) from Postings")).toDouble(), 0.0);
        QCOMPARE(value(QStringLiteral("Select -Amount from Postings where Sr=1")).toDouble(),
                 edited.Total.toDouble());
        QCOMPARE(value(QStringLiteral("Select AmountDue from Jobs")).toDouble(), edited.Total.toDouble());
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), edited.Paid > Currency() ? 4 : 2);
    }
}

QTEST_GUILESS_MAIN(tst_JobCard)
#include "tst_JobCard.moc"
