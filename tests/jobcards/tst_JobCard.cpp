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

using namespace Qt::StringLiterals;

/// Storing, changing and deleting a card: what stands in the tables afterwards.
class tst_JobCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newCardStoresHeadLinesAndVoucher();
    void savesOfAStoredCard();
    void workerAndCancelMark();
    void addedCopiedAndRemovedLines();
    void brokenOffSaveKeepsWhatWasWritten();
    void failedCommitPutsTheCardBack();
    void postingsSumToZeroAfterAnyEdits();

private:
    std::unique_ptr<Shop> m_shop;
    qint32 m_client = 0;
};

namespace {

/// The rows of a table, the named fields of each joined by blanks.
QStringList rows(const char* table, const char* fields)
{
    QStringList lines;
    auto& rs = DE.rspostings2;
    for (rs.Open(u"Select * from "_s + QLatin1String(table)); !rs.AtEOF(); rs.MoveNext()) {
        QStringList texts;
        for (const QString& field : QString::fromLatin1(fields).split(u' '))
            texts += rs[field].text();
        lines += texts.join(u' ');
    }
    rs.Close();
    return lines;
}

int count(const char* rowsOf) { return Shop::count(u"Select * from "_s + QLatin1String(rowsOf)); }

double sumOfPostings() { return Shop::value(u"Select sum(Amount) from Postings"_s).toDouble(); }

JobCardHead head(double total, double paid = 0, qint32 number = 1000)
{
    const QDate day = session.WorkingDate;
    return {number,
            day,
            u"Asha Rao"_s,
            day.addDays(7),
            day.addDays(3),
            Currency::fromDouble(total),
            Currency::fromDouble(paid),
            false,
            u"😀 'quick' 100%"_s,
            u"Cash"_s,
            false,
            {}};
}

void addRow(JobCard& card, const QString& item, double amount)
{
    card.JobRows.AddNewRow(0, item, GetItemID(item), 2, amount / 2, amount, u"slim"_s, u"Length\r\nChest"_s,
                           u"30\r\n40"_s, 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}, {}, u"255"_s, 0, {},
                           u"note"_s);
}

/// A card with lines of 600 each, and the same stored under number 1000.
JobCard newCard(int lines = 1)
{
    JobCard card;
    for (int i = 0; i < lines; ++i)
        addRow(card, u"Shirt"_s, 600);
    return card;
}

JobCard storedCard(int lines, double paid)
{
    JobCard card = newCard(lines);
    card.SaveNew(head(600 * lines, paid));
    return card;
}

} // namespace

void tst_JobCard::init()
{
    m_shop.reset(); // the fixture allows one shop at a time
    m_shop = std::make_unique<Shop>();
    m_client = m_shop->addClient(u"Asha Rao"_s);
    m_shop->addItem(u"Shirt"_s, 300, 120);
    m_shop->addItem(u"Trouser"_s, 450, 150);
}

void tst_JobCard::newCardStoresHeadLinesAndVoucher()
{
    SetSetting(23, u"5000"_s);
    QCOMPARE(JobCard::GetNewNum(), 5000);
    JobCard card;
    addRow(card, u"Shirt"_s, 600.5);
    addRow(card, u"Trouser"_s, 450);
    card.SaveNew(head(1050.5, 200.25));
    QCOMPARE(card.EditMode, u"E"_s);
    QCOMPARE(card.CurrentJobID, 1000);

    const auto c = QString::number(m_client);
    QCOMPARE(
        rows("Jobs", "ID Date DeliveryDate trialdate ClintID AmountDue AmountPaid CashAccID Status Remark"),
        QStringList(u"1000 2024-02-10 2024-02-17 2024-02-13 %1 1050.5 200.25 4 0 😀 'quick' 100%"_s.arg(c)));
    // The wage is one piece's, though two are ordered.
    const auto line = u"%1 %2 2 255 2024-02-17  0 %3 2024-02-10 note 30\r\n40"_s;
    QCOMPARE(rows("Jobs_Detail order by ItemSr",
                  "ID ItemSr ItemName QNT Color JobDelDate CompletedDate DoneByWorker "
                  "WorkerWagesDue CuttingDate ClientRemarks ItemDetailsValue"),
             QStringList({line.arg(card.JobRows.Sr(1)).arg(u"1 Shirt"_s, u"120"_s),
                          line.arg(card.JobRows.Sr(2)).arg(u"2 Trouser"_s, u"150"_s)}));
    QCOMPARE(rows("Postings order by Sr", "VID vType Sr particulars accID refID Amount Status Remark"),
             QStringList({u"1000 1 1 Sales %1 2 -1050.5 0 Job Card # :1000"_s.arg(c),
                          u"1000 1 2 Sales 2 %1 1050.5 0 Job Card # :1000"_s.arg(c),
                          u"1000 1 3 Receipt 4 %1 -200.25 0 Job Card # :1000"_s.arg(c),
                          u"1000 1 4 Receipt %1 4 200.25 0 Job Card # :1000"_s.arg(c)}));
}

void tst_JobCard::savesOfAStoredCard()
{
    JobCard card = storedCard(2, 100);
    const auto state = [] {
        return rows("Postings order by Sr", "accID Amount") + rows("Jobs_Detail", "ID");
    };
    const QStringList before = state();
    card.SaveEdit(head(1200, 100)); // saved twice is stored once
    QCOMPARE(state(), before);
    card.SaveEdit(head(1200));
    QCOMPARE(count("Postings"), 2);
    QCOMPARE(count("Jobs where CashAccID=4"), 1); // the old account stays
    newCard().SaveNew(head(0, 0, 7));             // the sale is written for a total of nothing, too
    QCOMPARE(count("Postings where VID=7"), 2);
    QCOMPARE(JobCard::GetNewNum(), 1001); // above the highest, not the latest
}

void tst_JobCard::workerAndCancelMark()
{
    JobCard card = storedCard(1, 100);
    DE.connection().Execute(u"Update Jobs_Detail set WorkerID=9, DoneByWorker=1, MarkAsPaid=1, Score=4"_s);
    card.JobRows.SetItemName(1, u"Trouser"_s);
    JobCardHead changed = head(600, 100);
    changed.DeliveryDate = changed.DeliveryDate.addDays(10);
    card.SaveEdit(changed);
    QCOMPARE(rows("Jobs_Detail", "ItemName WorkerID DoneByWorker MarkAsPaid Score WorkerWagesDue JobDelDate"),
             QStringList(u"Trouser 9 1 1 4 120 2024-02-17"_s));

    changed.Cancelled = true;
    card.SaveEdit(changed);
    QCOMPARE(count("Postings where Status=1"), 4);
    QCOMPARE(GetBalance(qint16(m_client), session.WorkingDate), 0.0);
    card.SaveEdit(head(600, 100)); // the card lives again, its line stays cancelled
    QCOMPARE(count("Jobs_Detail where DoneByWorker=4"), 1);
    QCOMPARE(GetBalance(qint16(m_client), session.WorkingDate), -500.0);
}

void tst_JobCard::addedCopiedAndRemovedLines()
{
    JobCard card = storedCard(4, 0);
    card.JobRows.Copy(4); // shares the stored line of its source
    card.JobRows.SetRemarks(5, u"copy"_s);
    card.SaveEdit(head(3000));
    QCOMPARE(count("Jobs_Detail"), 4);
    QCOMPARE(count("Jobs_Detail where Remarks='copy'"), 1);

    addRow(card, u"Trouser"_s, 450); // on a stored card, added again by each save
    card.SaveEdit(head(3450));
    card.SaveEdit(head(3450));
    QCOMPARE(count("Jobs_Detail where ItemSr=6"), 2);

    card.JobRows.RemoveRow(6);
    card.RemoveLine(2);
    card.SaveEdit(head(2400));
    QCOMPARE(rows("Jobs_Detail", "ID").join(u' '), u"1 3 4 5 6"_s);
    QVERIFY(card.RemovedLineIDs.isEmpty());

    // Two at once make a statement that the engine refuses: head and lines stand, the voucher is the old one.
    card.RemoveLine(1);
    card.RemoveLine(1);
    card.JobRows.SetRemarks(1, u"written"_s);
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, card.SaveEdit(head(600)));
    QCOMPARE(count("Jobs where AmountDue=600"), 1);
    QCOMPARE(count("Jobs_Detail"), 5);
    QCOMPARE(count("Jobs_Detail where Remarks='written'"), 0); // its copy came after it
    QCOMPARE(count("Postings where Amount=-2400"), 1);
    QCOMPARE(card.RemovedLineIDs, u"1,3"_s);
}

void tst_JobCard::brokenOffSaveKeepsWhatWasWritten()
{
    JobCard card = newCard();
    addRow(card, u"Trouser"_s, 450);
    DE.connection().Execute(u"Delete from Items where Name='Trouser'"_s);
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, card.SaveNew(head(1050)));
    QCOMPARE(card.EditMode, u"E"_s);
    QCOMPARE(count("Jobs"), 1);
    QCOMPARE(rows("Jobs_Detail", "ID"), QStringList(QString::number(card.JobRows.Sr(1))));
    QCOMPARE(count("Postings"), 0);
}

void tst_JobCard::failedCommitPutsTheCardBack()
{
    JobCard card = newCard();
    DE.connection().Execute(u"PRAGMA busy_timeout=20"_s);
    {
        ado::Connection other; // a second program in the middle of reading
        other.open(session.databasePath(), u"measuretwicecut"_s, ado::Connection::Mode::ReadOnly);
        ado::Recordset reading(other);
        other.Execute(u"BEGIN"_s);
        reading.Open(u"Select * from Accounts"_s);
        QVERIFY(!reading.AtEOF());
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, card.SaveNew(head(600)));
    }
    QCOMPARE(card.EditMode, u"N"_s);
    QCOMPARE(int(card.JobRows.Sr(1)), 0);
    QCOMPARE(count("Jobs"), 0);
    card.SaveNew(head(600)); // nothing was lost: the same card goes through
    QCOMPARE(count("Postings"), 2);
}

void tst_JobCard::postingsSumToZeroAfterAnyEdits()
{
    QRandomGenerator random(20240210);
    const auto upTo = [&](int bound) { return int(random.bounded(bound)); };
    JobCard card = storedCard(3, 100);
    for (int step = 0; step < 40; ++step) {
        const int lines = card.JobRows.RowCount();
        switch (lines > 1 ? upTo(3) : 0) {
        case 0:
            addRow(card, u"Trouser"_s, 0.01 * upTo(100000));
            break;
        case 1:
            card.RemoveLine(1 + upTo(lines));
            break;
        default:
            card.JobRows.Copy(1 + upTo(lines));
        }
        JobCardHead edited = head(0.0001 * upTo(50000000), 0.1 * upTo(3000));
        edited.Cancelled = upTo(5) == 0;
        // Two lines removed at once, or a line whose copy was removed, stop a save: a new start with what is
        // there.
        try {
            card.SaveEdit(edited);
        } catch (const ado::DatabaseError&) {
            QCOMPARE(sumOfPostings(), 0.0);
            card = JobCard();
            card.CurrentJobID = 1000;
            card.EditMode = u"E"_s;
            card.LoadLines();
            card.SaveEdit(edited);
        }
        QCOMPARE(sumOfPostings(), 0.0);
        QCOMPARE(rows("Postings where Sr=2", "Amount"), QStringList(edited.Total.toString()));
        QCOMPARE(rows("Jobs", "AmountDue"), QStringList(edited.Total.toString()));
        QCOMPARE(count("Postings"), edited.Paid > Currency() ? 4 : 2);
    }
}

QTEST_GUILESS_MAIN(tst_JobCard)
#include "tst_JobCard.moc"
