#include "jobcards/frmEditJOB.h"
#include "planning/frmDDP.h"
#include "support/ShopTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// How long a new order would wait, as the operator sees it from the card.
class tst_frmDDP : public ShopTest
{
    Q_OBJECT

    /// An item of which `lines` lines wait, none of them booked today.
    qint32 addItem(const QString& name, int capacity, int opening, int lines = 0)
    {
        const qint32 item = shop->addItem(name);
        Shop::run(u"Update Items set ProdcutionCap='%1', OpPendingOrders='%2' where ID=%3"_s.arg(capacity)
                      .arg(opening)
                      .arg(item));
        for (int line = 0; line < lines; ++line)
            shop->addJobLine(1, item, 0, u"QNT=3, Date='2024-02-09'"_s);
        return item;
    }
    /// The rows of the screen, opened from a new card.
    void expectRows(const QStringList& rows)
    {
        onNextModal<frmEditJOB>([&](frmEditJOB& card) {
            onNextModal<frmDDP>([&](frmDDP& screen) {
                QStringList shown;
                for (int row = 0; row < listView(screen, "lvSummary").rowCount(); ++row)
                    shown << rowText(screen, row);
                QCOMPARE(shown, rows);
                press(Qt::Key_Escape);
                QVERIFY(!screen.isVisible());
            });
            click(card, "Command11");
        });
        frmEditJOB().ShowAddNew();
    }

private Q_SLOTS:
    void waitsHalvesToEven()
    {
        expectRows({});
        addItem(u"Shirt"_s, 2, 0, 5);
        addItem(u"Kurta"_s, 2, 5, 2);
        addItem(u"Achkan"_s, 4, 0);
        addItem(u"Hidden"_s, 0, 900, 1);
        addItem(u"Odd"_s, -2, 6);
        addItem(u"Trousers"_s, 1, 32767);
        expectRows({u"Achkan|4|0|0|1 Days|11-Feb-2024"_s, u"Kurta|2|7|0|5 Days|15-Feb-2024"_s,
                    u"Odd|-2|6|0|-2 Days|08-Feb-2024"_s, u"Shirt|2|5|0|3 Days|13-Feb-2024"_s,
                    u"Trousers|1|32767|0|32768 Days|29-Oct-2113"_s});
    }

    void countsWhatNobodyHasCompleted()
    {
        const qint32 shirt = addItem(u"Shirt"_s, 1, 0);
        for (int state = 0; state < 5; ++state)
            for (const char* day : {"2024-02-09", "2024-02-10"})
                shop->addJobLine(1, shirt, 0,
                                 u"QNT=3, DoneByWorker=%1, Date='%2'"_s.arg(state).arg(QLatin1String(day)));
        expectRows({u"Shirt|1|2|1|3 Days|13-Feb-2024"_s});
    }

    /// The items before the one at fault are listed.
    void tooLongToWait()
    {
        addItem(u"Achkan"_s, 1, 0);
        addItem(u"Shirt"_s, 1, 32768);
        prompts->expect(
            u"Overflow: Days of work on Shirt 32768 is too large. The highest possible is 32767."_s);
        expectRows({u"Achkan|1|0|0|1 Days|11-Feb-2024"_s});
    }
};

QTEST_MAIN(tst_frmDDP)
#include "tst_frmDDP.moc"
