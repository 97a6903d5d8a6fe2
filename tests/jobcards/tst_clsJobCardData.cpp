#include "jobcards/clsJobCardData.h"

#include "platform/values/Errors.h"
#include "platform/values/Notice.h"

#include <QTest>

namespace {

/// A row whose fields all differ.
const QVariantList fullRow{qint16(1),
                           "name",
                           qint16(101),
                           qint16(201),
                           1.25,
                           1.5,
                           "remarks",
                           "details",
                           "values",
                           qint16(301),
                           "worker",
                           QDate(2024, 1, 1),
                           QDate(2024, 2, 1),
                           QDate(2024, 3, 1),
                           QDate(2024, 4, 1),
                           qint16(401),
                           1.75,
                           qint16(501),
                           "loc",
                           "img1",
                           "img2",
                           "color",
                           qint16(601),
                           "feedback",
                           "note"};

void addNamedRow(clsJobCardData& rows, const QString& name, qint64 sr = 0)
{
    rows.AddNewRow(sr, name, 1, 1, 10, 10, {}, {}, {}, 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}, {}, {}, 0, {},
                   {});
}

QString names(const clsJobCardData& rows)
{
    QStringList all;
    for (qint16 i = 1; i <= rows.RowCount(); ++i)
        all << rows.ItemName(i);
    return all.join(u' ');
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
    void everyFieldHasItsOwnPlace()
    {
        clsJobCardData wanted;
        wanted.AddNewRow(1, "name", 101, 201, 1.25, 1.5, "remarks", "details", "values", 301, "worker",
                         QDate(2024, 1, 1), QDate(2024, 2, 1), QDate(2024, 3, 1), QDate(2024, 4, 1), 401,
                         1.75, 501, "loc", "img1", "img2", "color", 601, "feedback", "note");
        QCOMPARE(fields(wanted, 1), fullRow);

        clsJobCardData rows;
        for (const char* name : {"first", "second"})
            addNamedRow(rows, name);
        const QVariantList first = fields(rows, 1);
        eachField([&](auto set, auto get) { (rows.*set)(2, (wanted.*get)(1)); });
        QCOMPARE(fields(rows, 2), fullRow);
        QCOMPARE(fields(rows, 1), first);

        rows.Copy(2);
        QCOMPARE(fields(rows, 3), fullRow);
        rows.SetItemName(3, "changed");
        QCOMPARE(names(rows), "first name changed");
        for (const int gone : {1, 2, 2, 100'000}) // the rows move up; none is there any more in the end
            rows.RemoveRow(gone);
        QCOMPARE(names(rows), "name");
        for (const int never : {0, -1})
            QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.RemoveRow(never));
        QCOMPARE(names(rows), "name");
    }

    void whatDoesNotFitChangesNothing()
    {
        QStringList notices;
        values::setCriticalNotice([&notices](const QString& text) { notices << text; });
        clsJobCardData rows;
        const QVariantList nothing = fields(rows, 0);
        QVERIFY2(notices.isEmpty(), "row 0 is there, and empty");
        QCOMPARE(fields(rows, 1), nothing);
        QCOMPARE(notices, QStringList(25, "Index Out of Bound!"));

        addNamedRow(rows, "only", 32767);
        const QVariantList before = fields(rows, 1);
        rows.SetItemName(2, "beyond");
        QCOMPARE(notices.size(), 26);
        values::setCriticalNotice({});
        for (const int row : {-1, 2})
            QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.Copy(row));
        QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.SetItemName(-1, "x"));
        QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "too high", 32768));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.SetQty(1, -32769));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.ItemName(65'537));
        QCOMPARE(names(rows), "only");
        QCOMPARE(fields(rows, 1), before);

        for (int n = 2; n <= 32'767; ++n)
            addNamedRow(rows, {}, n);
        QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "one more"));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.Copy(1));
        QCOMPARE(rows.RowCount(), 32'767);
    }
};

QTEST_APPLESS_MAIN(tst_clsJobCardData)
#include "tst_clsJobCardData.moc"
