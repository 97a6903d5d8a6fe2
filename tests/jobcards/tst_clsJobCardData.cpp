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

/// Calls `act` with the setter and the getter of every field.
template <class Act>
void eachField(const Act& act)
{
    using C = clsJobCardData;
    const auto all = [&act](auto... field) { (act(field.first, field.second), ...); };
    all(std::pair(&C::SetSr, &C::Sr), std::pair(&C::SetItemName, &C::ItemName),
        std::pair(&C::SetItemID, &C::ItemID), std::pair(&C::SetQty, &C::Qty),
        std::pair(&C::SetFees, &C::Fees), std::pair(&C::SetAmount, &C::Amount),
        std::pair(&C::SetRemarks, &C::Remarks), std::pair(&C::SetItemDetails, &C::ItemDetails),
        std::pair(&C::SetItemDetailsValue, &C::ItemDetailsValue), std::pair(&C::SetWorkerID, &C::WorkerID),
        std::pair(&C::SetWorkerName, &C::WorkerName), std::pair(&C::SetJobDelDate, &C::JobDelDate),
        std::pair(&C::SetCompletedDate, &C::CompletedDate), std::pair(&C::SetAltDate, &C::AltDate),
        std::pair(&C::SetDelToCustDate, &C::DelToCustDate), std::pair(&C::SetDoneByWorker, &C::DoneByWorker),
        std::pair(&C::SetWorkerWagesDue, &C::WorkerWagesDue), std::pair(&C::setMarkAsPaid, &C::MarkAsPaid),
        std::pair(&C::SetLoc, &C::Loc), std::pair(&C::SetImg1, &C::img1), std::pair(&C::SetImg2, &C::img2),
        std::pair(&C::SetColor, &C::Color), std::pair(&C::SetScore, &C::Score),
        std::pair(&C::SetClientFeedBack, &C::ClientFeedBack),
        std::pair(&C::SetClientRemarks, &C::ClientRemarks));
}

QVariantList fields(const clsJobCardData& rows, int row)
{
    QVariantList all;
    eachField([&](auto, auto get) { all << QVariant((rows.*get)(row)); });
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
    void removeMovesTheRowsUp();
    void whatDoesNotFitChangesNothing();

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
    eachField([&](auto set, auto get) { (rows.*set)(2, (wanted.*get)(1)); });
    QCOMPARE(fields(rows, 2), full);
    QCOMPARE(fields(rows, 1), first);

    rows.Copy(2);
    QCOMPARE(rows.RowCount(), 3);
    QCOMPARE(fields(rows, 3), full);
    rows.SetItemName(3, "changed");
    QCOMPARE(rows.ItemName(2), "name 1");
}

void tst_clsJobCardData::removeMovesTheRowsUp()
{
    clsJobCardData rows;
    for (const char* name : {"a", "b", "c", "d"})
        addNamedRow(rows, QLatin1String(name));
    rows.RemoveRow(2);
    QCOMPARE(names(rows), QStringList({"a", "c", "d"}));
    rows.RemoveRow(3);
    rows.RemoveRow(3);
    rows.RemoveRow(100'000);
    QCOMPARE(names(rows), QStringList({"a", "c"}));
    QVERIFY(m_notices.isEmpty());

    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.RemoveRow(0));
    QCOMPARE(names(rows), QStringList({"a", "c"}));
}

void tst_clsJobCardData::whatDoesNotFitChangesNothing()
{
    clsJobCardData rows;
    const QVariantList nothing = fields(rows, 0);
    QVERIFY2(m_notices.isEmpty(), "row 0 is there, and empty");
    QCOMPARE(fields(rows, 1), nothing);
    QCOMPARE(m_notices, QStringList(25, "Index Out of Bound!"));

    addNamedRow(rows, "only", 32767);
    const QVariantList before = fields(rows, 1);
    rows.SetItemName(2, "beyond");
    QCOMPARE(m_notices.size(), 26);
    for (int row : {-1, 2})
        QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.Copy(row));
    QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.SetItemName(-1, "x"));
    QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "too high", 32768));
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.SetQty(1, -32769));
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.ItemName(65'537));
    QCOMPARE(names(rows), QStringList{"only"});
    QCOMPARE(fields(rows, 1), before);

    for (int n = 2; n <= 32'767; ++n)
        addNamedRow(rows, {}, n);
    QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "one more"));
    QVERIFY_THROWS_EXCEPTION(OverflowError, rows.Copy(1));
    QCOMPARE(rows.RowCount(), 32'767);
}

QTEST_APPLESS_MAIN(tst_clsJobCardData)
#include "tst_clsJobCardData.moc"
