#include "jobcards/clsJobCardData.h"

#include "platform/values/Errors.h"
#include "platform/values/Notice.h"

#include <QTest>

namespace {

/// Adds a row whose fields all differ, told apart from other rows by `n`.
void addFullRow(clsJobCardData& rows, int n)
{
    const auto text = [n](const char* field) {
        return QStringLiteral("%1 %2").arg(QLatin1String(field)).arg(n);
    };
    rows.AddNewRow(n, text("name"), n + 100, n + 200, n + 0.25, n + 0.5, text("remarks"), text("details"),
                   text("values"), n + 300, text("worker"), QDate(2024, 1, n), QDate(2024, 2, n),
                   QDate(2024, 3, n), QDate(2024, 4, n), n + 400, n + 0.75, n + 500, text("loc"),
                   text("img1"), text("img2"), text("color"), n + 600, text("feedback"), text("note"));
}

void addNamedRow(clsJobCardData& rows, const QString& name, qint64 sr = 0)
{
    rows.AddNewRow(sr, name, 1, 1, 10, 10, {}, {}, {}, 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}, {}, {}, 0, {},
                   {});
}

QStringList names(const clsJobCardData& rows)
{
    QStringList all;
    for (qint16 i = 1; i <= rows.RowCount(); ++i)
        all << rows.ItemName(i);
    return all;
}

/// Every field of a row, as the getters give them.
QVariantList fields(const clsJobCardData& rows, int i)
{
    QVariantList all{rows.Sr(i), rows.ItemName(i), rows.ItemID(i), rows.Qty(i), rows.Fees(i), rows.Amount(i)};
    all << rows.Remarks(i) << rows.ItemDetails(i) << rows.ItemDetailsValue(i) << rows.WorkerID(i)
        << rows.WorkerName(i) << rows.JobDelDate(i) << rows.CompletedDate(i) << rows.AltDate(i)
        << rows.DelToCustDate(i) << rows.DoneByWorker(i) << rows.WorkerWagesDue(i) << rows.MarkAsPaid(i)
        << rows.Loc(i) << rows.img1(i) << rows.img2(i) << rows.Color(i) << rows.Score(i)
        << rows.ClientFeedBack(i) << rows.ClientRemarks(i);
    return all;
}

} // namespace

class tst_clsJobCardData : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void everyFieldHasItsOwnPlace();
    void rowNumbersOutsideTheCard();
    void removeMovesTheRowsUp();
    void numbersPast16BitsChangeNothing();

private:
    QStringList m_notices;
};

void tst_clsJobCardData::init()
{
    m_notices.clear();
    values::setCriticalNotice([this](const QString& text) { m_notices << text; });
}

void tst_clsJobCardData::cleanup() { values::setCriticalNotice({}); }

void tst_clsJobCardData::everyFieldHasItsOwnPlace()
{
    clsJobCardData wanted;
    addFullRow(wanted, 1);
    const QVariantList full{
        qint16(1),         "name 1",          qint16(101),       qint16(201), 1.25,        1.5,
        "remarks 1",       "details 1",       "values 1",        qint16(301), "worker 1",  QDate(2024, 1, 1),
        QDate(2024, 2, 1), QDate(2024, 3, 1), QDate(2024, 4, 1), qint16(401), 1.75,        qint16(501),
        "loc 1",           "img1 1",          "img2 1",          "color 1",   qint16(601), "feedback 1",
        "note 1"};
    QCOMPARE(fields(wanted, 1), full);

    clsJobCardData rows;
    addNamedRow(rows, "first");
    addNamedRow(rows, "second");
    const QVariantList first = fields(rows, 1);
    rows.SetSr(2, wanted.Sr(1));
    rows.SetItemName(2, wanted.ItemName(1));
    rows.SetItemID(2, wanted.ItemID(1));
    rows.SetQty(2, wanted.Qty(1));
    rows.SetFees(2, wanted.Fees(1));
    rows.SetAmount(2, wanted.Amount(1));
    rows.SetRemarks(2, wanted.Remarks(1));
    rows.SetItemDetails(2, wanted.ItemDetails(1));
    rows.SetItemDetailsValue(2, wanted.ItemDetailsValue(1));
    rows.SetWorkerID(2, wanted.WorkerID(1));
    rows.SetWorkerName(2, wanted.WorkerName(1));
    rows.SetJobDelDate(2, wanted.JobDelDate(1));
    rows.SetCompletedDate(2, wanted.CompletedDate(1));
    rows.SetAltDate(2, wanted.AltDate(1));
    rows.SetDelToCustDate(2, wanted.DelToCustDate(1));
    rows.SetDoneByWorker(2, wanted.DoneByWorker(1));
    rows.SetWorkerWagesDue(2, wanted.WorkerWagesDue(1));
    rows.setMarkAsPaid(2, wanted.MarkAsPaid(1));
    rows.SetLoc(2, wanted.Loc(1));
    rows.SetImg1(2, wanted.img1(1));
    rows.SetImg2(2, wanted.img2(1));
    rows.SetColor(2, wanted.Color(1));
    rows.SetScore(2, wanted.Score(1));
    rows.SetClientFeedBack(2, wanted.ClientFeedBack(1));
    rows.SetClientRemarks(2, wanted.ClientRemarks(1));

    QCOMPARE(fields(rows, 2), full);
    QCOMPARE(fields(rows, 1), first);

    rows.Copy(2);
    QCOMPARE(rows.RowCount(), 3);
    QCOMPARE(fields(rows, 3), full);
    rows.SetItemName(3, "changed");
    QCOMPARE(rows.ItemName(2), "name 1");
}

void tst_clsJobCardData::rowNumbersOutsideTheCard()
{
    clsJobCardData rows;
    const QVariantList nothing = fields(rows, 0);
    QVERIFY2(m_notices.isEmpty(), "row 0 is there, and empty");
    QCOMPARE(rows.Score(0), 0);

    QCOMPARE(fields(rows, 1), nothing);
    QCOMPARE(m_notices, QStringList(25, "Index Out of Bound!"));

    addNamedRow(rows, "only");
    m_notices.clear();
    rows.SetItemName(2, "beyond");
    rows.SetFees(2, 9);
    QCOMPARE(m_notices, QStringList(2, "Index Out of Bound!"));
    QCOMPARE(names(rows), QStringList{"only"});

    QVERIFY_THROWS_EXCEPTION(SubscriptError, (void)rows.ItemName(-1));
    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.SetItemName(-1, "x"));
    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.Copy(2));
    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.Copy(-1));
    rows.SetRowCount(5);
    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.ItemName(4));
}

void tst_clsJobCardData::removeMovesTheRowsUp()
{
    clsJobCardData rows;
    for (const char* name : {"a", "b", "c", "d"})
        addNamedRow(rows, QLatin1String(name));
    rows.RemoveRow(2);
    QCOMPARE(names(rows), QStringList({"a", "c", "d"}));
    rows.RemoveRow(3);
    QCOMPARE(names(rows), QStringList({"a", "c"}));
    rows.RemoveRow(3);
    rows.RemoveRow(100'000);
    QCOMPARE(names(rows), QStringList({"a", "c"}));
    QVERIFY(m_notices.isEmpty());

    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.RemoveRow(0));
    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.RemoveRow(-1));
    QCOMPARE(names(rows), QStringList({"a", "c"}));

    rows.RemoveRow(1);
    rows.RemoveRow(1);
    QCOMPARE(rows.RowCount(), 0);
    QCOMPARE(rows.ItemName(0), QString());
}

void tst_clsJobCardData::numbersPast16BitsChangeNothing()
{
    clsJobCardData rows;
    addNamedRow(rows, "stored", 32767);
    QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "too high", 32768));
    QCOMPARE(names(rows), QStringList{"stored"});

    const QVariantList before = fields(rows, 1);
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.SetSr(1, 32768));
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.SetQty(1, -32769));
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.SetScore(1, 100'000));
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.ItemName(65'537));
    QCOMPARE(fields(rows, 1), before);

    rows.RemoveRow(1);
    for (int n = 1; n <= 32'767; ++n)
        addNamedRow(rows, {}, n);
    QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "one more"));
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.Copy(1));
    QCOMPARE(rows.RowCount(), 32'767);
}

QTEST_APPLESS_MAIN(tst_clsJobCardData)
#include "tst_clsJobCardData.moc"
