#include "jobcards/clsJobCardData.h"

#include "platform/values/Errors.h"
#include "platform/values/Notice.h"

#include <QTest>

namespace {

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

} // namespace

class tst_clsJobCardData : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsAreCopiedChangedAndTakenOut()
    {
        clsJobCardData rows;
        for (const char* name : {"first", "second"})
            addNamedRow(rows, name);
        rows.SetWorkerID(2, 301);
        rows.SetJobDelDate(2, QDate(2024, 1, 1));
        rows.Copy(2);
        QCOMPARE(rows.WorkerID(3), 301);
        QCOMPARE(rows.JobDelDate(3), QDate(2024, 1, 1));
        rows.SetItemName(3, "changed");
        QCOMPARE(names(rows), "first second changed");
        for (const int gone : {1, 2, 2, 100'000}) // the rows move up; none is there any more in the end
            rows.RemoveRow(gone);
        for (const int never : {0, -1})
            QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.RemoveRow(never));
        QCOMPARE(names(rows), "second");
    }

    void whatDoesNotFitChangesNothing()
    {
        QStringList notices;
        values::setCriticalNotice([&notices](const QString& text) { notices << text; });
        clsJobCardData rows;
        QCOMPARE(rows.ItemName(0), QString());
        QVERIFY2(notices.isEmpty(), "row 0 is there, and empty");
        QCOMPARE(rows.Color(1), QString());
        addNamedRow(rows, "only", 32767);
        rows.SetItemName(2, "beyond");
        QCOMPARE(notices, QStringList(2, "Index Out of Bound!"));
        values::setCriticalNotice({});
        for (const int row : {-1, 2})
            QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.Copy(row));
        QVERIFY_THROWS_EXCEPTION(SubscriptError, rows.SetItemName(-1, "x"));
        QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "too high", 32768));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.SetQty(1, -32769));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.ItemName(65'537));
        QCOMPARE(names(rows), "only");
        QCOMPARE(rows.Qty(1), 1);

        for (int n = 2; n <= 32'767; ++n)
            addNamedRow(rows, {}, n);
        QVERIFY_THROWS_EXCEPTION(OverflowError, addNamedRow(rows, "one more"));
        QVERIFY_THROWS_EXCEPTION(OverflowError, rows.Copy(1));
        QCOMPARE(rows.RowCount(), 32'767);
    }
};

QTEST_APPLESS_MAIN(tst_clsJobCardData)
#include "tst_clsJobCardData.moc"
