#include "accounts/frmAccountBook.h"
#include "core/store/Session.h"
#include "jobcards/frmEditJOB.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "planning/frmWorkerReport2.h"
#include "registers/frmSearchClient.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/ShopTest.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

forms::ListView& lines(QWidget& screen) { return listView(screen, "lvSummary"); }

QString row(QWidget& screen, int number)
{
    QStringList cells;
    for (int column = 0; column < 11; ++column)
        cells << lines(screen).cell(number, column);
    return cells.join(u'|');
}

/// The lines on the list, and what the total row counts.
QString shown(QWidget& screen)
{
    QStringList tags;
    const int last = lines(screen).rowCount() - 1;
    for (int i = 0; i < last; ++i)
        tags << lines(screen).tag(i);
    return tags.join(u' ') + u" of"_s + lines(screen).cell(last, 2).section(u':', 1);
}

} // namespace

class tst_frmWorkerJobRegister : public ShopTest
{
    Q_OBJECT
    using Register = frmWorkerJobRegister;

    /// Three lines of the working date, of all states; one of the day before.
    void lay() override
    {
        session.TodayDate = QDate(2024, 2, 12);
        m_asha = shop->addClient(u"Asha"_s, u"0981"_s);
        m_ravi = shop->addWorker(u"Ravi"_s);
        m_shirt = shop->addItem(u"Shirt"_s);
        for (const qint32 worker : {m_ravi, 0, 0, 0})
            shop->addJobLine(m_asha, m_shirt, worker);
        Shop::run(u"Update Jobs_Detail set ItemSr=ID, CuttingStatus=0, Loc='A1'"_s);
        Shop::run(u"Update Jobs_Detail set CuttingStatus=1, DoneByWorker=1, Remarks='Loose', "
                  "JobDelDate='2024-02-07', Loc=null where ID=1"_s);
        Shop::run(u"Update Jobs_Detail set JobID=2, DoneByWorker=4 where ID=3"_s);
        Shop::run(u"Update Jobs_Detail set Date='2024-02-09' where ID=4"_s);
        for (const int job : {1, 2})
            Shop::run(u"Insert into Jobs select %1, '2024-02-01', 1, 'Asha', '2024-02-20', null, "
                      "'2024-02-15', 0, null, 0, 0, 0, '', 0, 0, ''"_s.arg(job));
        shop->addVoucher(1, 1, m_asha, 12.5);
    }
    void choose(Register& screen, const QString& text)
    {
        combo(screen, "cmbCondition").setFocus();
        press(Qt::Key_Home);
        while (combo(screen, "cmbCondition").text() != text)
            press(Qt::Key_Down);
    }
    QString stored(const QString& fields, int line) const
    {
        return Shop::rows(u"Select %1 from Jobs_Detail where ID=%2"_s.arg(fields).arg(line)).value(0);
    }

    qint32 m_asha = 0, m_ravi = 0, m_shirt = 0;

private Q_SLOTS:
    void opensOnTheWorkingDate()
    {
        inModal<Register>([](Register& screen) {
            QCOMPARE(row(screen, 0),
                     u"10-Feb-2024|1/1|Asha|Shirt|Loose|07-Feb-2024 (-3 D)|Ravi|Done|Completed| "
                     "|12.50 Dr"_s);
            QCOMPARE(row(screen, 1),
                     u"10-Feb-2024|1/2|Asha|Shirt||10-Feb-2024 (0 D)|NA|Not Done|Uncompleted|A1|12.50 Dr"_s);
            QVERIFY(lines(screen).look(0, 2).toolTip.startsWith(u"0981"));
            QCOMPARE(lines(screen).look(0, 6).toolTip, u"No Information Found"_s);
            QCOMPARE(shown(screen), u"1 2 3 of 3"_s);
            QCOMPARE(lines(screen).look(3, 2).colour, QColor(Qt::red));
            QCOMPARE(lines(screen).selectedRow(), -1);
            QVERIFY(!session.RefreshLists);

            QVERIFY(!control<QWidget>(screen, "picDetails").isVisible());
            press(Qt::Key_D, Qt::ControlModifier);
            QVERIFY(control<QWidget>(screen, "picDetails").isVisible());
            QCOMPARE(listView(screen, "lvDetails").cell(0, 1), u"3"_s);
            press(Qt::Key_Return); // on Image1
            QCOMPARE(focused(screen), u"lvSummary"_s);

            click(screen, "opDt2");
            date(screen, "DateTo").setValue(QDate(2024, 2, 9));
            date(screen, "DateFrom").setValue(QDate(2024, 2, 1));
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(shown(screen), u"1 of 1"_s);
            QCOMPARE(screen.screen()->availableSize().width(), screen.width());
        });
    }

    void conditionsKeepLines_data()
    {
        QTest::addColumn<QString>("kept");
        QTest::newRow("Completed") << u"1 of 1"_s;
        QTest::newRow("Uncompleted") << u"2 of 1"_s;
        QTest::newRow("Delivered") << u" of 0"_s;
        QTest::newRow("Canceled") << u"3 of 1"_s;
        QTest::newRow("Assigned") << u"1 of 1"_s;
        QTest::newRow("Not Assigned") << u"2 3 of 2"_s;
        QTest::newRow("Cutting Done") << u"1 of 1"_s;
        QTest::newRow("Cutting Not Done") << u"2 3 of 2"_s;
    }
    void conditionsKeepLines()
    {
        inModal<Register>([this](Register& screen) {
            choose(screen, QString::fromLatin1(QTest::currentDataTag()));
            QTEST(shown(screen), "kept");
            fillIn(screen, "txtSearchID", u"1"_s); // a search takes no notice of it
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), u"1 2 4 of 3"_s);
            QCOMPARE(listView(screen, "lvDetails").rowCount(), 0);
        });
    }

    void criteria()
    {
        shop->addClient(u"Bela"_s);
        inModal<Register>([this](Register& screen) {
            for (const QString& number : {u"letters"_s, u"12345678901234567890"_s}) {
                fillIn(screen, "txtSearchID", number);
                press(Qt::Key_Return);
                QCOMPARE(shown(screen), u" of 0"_s);
            }
            date(screen, "DateFrom").setValue(QDate(2024, 2, 11)); // later than to
            prompts->expect(u"Invalid date selection!"_s);
            click(screen, "Command4");
            fillIn(screen, "txtSearchID", u"2"_s);
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), u"3 of 1"_s);
            QCOMPARE(date(screen, "DateTo").value(), QDate(2024, 2, 11));
            date(screen, "DateFrom").setValue(QDate(2024, 2, 10));

            combo(screen, "cmbClient").setFocus();
            combo(screen, "cmbClient").setText(u"Nobody"_s);
            prompts->expect(u"Please Select Worker Name!"_s);
            press(Qt::Key_Return);
            onNextModal<frmWorkerReport2>([](frmWorkerReport2&) { press(Qt::Key_Return); });
            click(screen, "Command3");
            QCOMPARE(combo(screen, "cmbClient").text(), u"Ravi"_s);
            QCOMPARE(shown(screen), u"1 of 1"_s);

            const auto find = [&screen](bool all, const QString& client) {
                onNextModal<frmSearchClient>([&](frmSearchClient& search) {
                    control<QAbstractButton>(search, "opShowAllUndel").setChecked(all);
                    fillIn(search, "txtName", client);
                    press(Qt::Key_Return);
                });
                press(Qt::Key_F, Qt::ControlModifier);
                return shown(screen);
            };
            QCOMPARE(find(false, u"Asha"_s), u"1 2 3 of 3"_s);
            QCOMPARE(find(true, u"Asha"_s), u"1 2 3 4 of 4"_s);
            QCOMPARE(find(false, u"Bela"_s), u" of 0"_s);
        });
    }

    /// A worker only chosen in the box changes nothing before the next View; the keys stay on the lines.
    void keepsToWhatWasViewed()
    {
        for (int i = 0; i < 40; ++i)
            Shop::run(
                u"Insert into Jobs_Detail (DATE, JobID, ItemSr, ClintID, ClintName, ItemID, ItemName, QNT, "
                u"FEES, "
                "Amount, Remarks, ItemDetails, ItemDetailsValue, WorkerID, JobDelDate, CuttingDate, "
                "CuttingStatus) "
                "Select DATE, JobID, ItemSr, ClintID, ClintName, ItemID, ItemName, QNT, FEES, Amount, "
                "Remarks, "
                "ItemDetails, ItemDetailsValue, WorkerID, JobDelDate, CuttingDate, 0 from Jobs_Detail where ID=1"_s);
        inModal<Register>([this](Register& screen) {
            combo(screen, "cmbClient").setFocus();
            combo(screen, "cmbClient").setText(u"Ravi"_s);
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), u"lvSummary"_s);
            QCOMPARE(lines(screen).selectedRow(), 0);
            const QString ravis = shown(screen);
            for (const QString& box : {u"Rav"_s, u"*All"_s, u"Nobody"_s}) {
                combo(screen, "cmbClient").setText(box);
                choose(screen, u"Completed"_s);
                choose(screen, u"*All"_s);
                QCOMPARE(shown(screen), ravis);
            }
            lines(screen).selectRow(38);
            const int top = lines(screen).topRow();
            QVERIFY(top > 0);
            prompts->expect(u"Mark Item as Cutting Done?"_s, Answer::Yes);
            press(Qt::Key_F6);
            QCOMPARE(lines(screen).topRow(), top);
            QCOMPARE(lines(screen).selectedRow(), 38);
            QCOMPARE(focused(screen), u"lvSummary"_s);
            fillIn(screen, "txtSearchID", u"2"_s);
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), u"lvSummary"_s);
            QCOMPARE(lines(screen).selectedRow(), 0);
        });
    }

    void linesAreMarkedByKeys()
    {
        inModal<Register>([this](Register& screen) {
            const auto act = [&](int selected, Qt::Key key) {
                lines(screen).selectRow(selected);
                press(key);
            };
            choose(screen, u"Uncompleted"_s);
            lines(screen).setFocus();
            for (const Qt::Key key :
                 {Qt::Key_F1, Qt::Key_F2, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_Return})
                act(1, key); // on the total row nothing is asked
            prompts->expect(u"Mark Item as Cutting Done?"_s, Answer::Esc);
            act(0, Qt::Key_F6);
            QCOMPARE(stored(u"CuttingStatus"_s, 2), u"0"_s);
            prompts->expect(u"Mark Item as Cutting Done?"_s, Answer::Yes);
            act(0, Qt::Key_F6);
            QCOMPARE(stored(u"CuttingStatus, CuttingDate"_s, 2), u"1 2024-02-10"_s);
            QCOMPARE(lines(screen).selectedRow(), 0);
            prompts->expect(u"Mark Item as Completed?"_s, Answer::Yes);
            prompts->expectInput(u"Please specify location!"_s, u"B2"_s, Answer::Esc);
            act(0, Qt::Key_F7);
            QCOMPARE(stored(u"DoneByWorker, CompletedDate, Loc"_s, 2), u"1 2024-02-12 A1"_s);
            QCOMPARE(lines(screen).selectedRow(), -1); // the last one has left the list
            choose(screen, u"*All"_s);

            lines(screen).setFocus();
            onNextModal<frmAccountBook>([](frmAccountBook& book) {
                QCOMPARE(label(book, "lblShown"), u"Asha\n10-Feb-2024 To 10-Feb-2024"_s);
            });
            act(1, Qt::Key_F2);
            QCOMPARE(lines(screen).selectedRow(), 1);
            auto& menu = control<QMenu>(screen, "mnuFile");
            press(Qt::Key_Menu);
            QTRY_VERIFY(menu.isVisible());
            QVERIFY(menu.actions().last()->isEnabled());
            prompts->expect(u"Mark Item as Alteration?"_s, Answer::Yes);
            prompts->expectInput(u"Please specify location!"_s, u"B2"_s);
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
                press(key);
            QCOMPARE(stored(u"DoneByWorker, AltDate, Loc"_s, 2), u"3 2024-02-12 B2"_s);
            QCOMPARE(lines(screen).selectedRow(), 1);
            prompts->expect(u"Mark Item as Delivered to Client?"_s, Answer::Yes);
            act(1, Qt::Key_F8);
            QCOMPARE(stored(u"DoneByWorker, DelToCustDate"_s, 2), u"2 2024-02-12"_s);
            Q_EMIT lines(screen).menuAsked(lines(screen).rowCount() - 1, {});
            QVERIFY(!menu.isVisible());
        });
    }

    void cardIsDeliveredWhole()
    {
        inModal<Register>([this](Register& screen) {
            choose(screen, u"Completed"_s);
            lines(screen).selectRow(0);
            prompts->expect(u"Job Card as Delivered to Client?"_s, Answer::Yes);
            control<QAction>(screen, "mnuJobFulPay").trigger();
            for (const int line : {1, 2, 4})
                QCOMPARE(stored(u"DoneByWorker, DelToCustDate"_s, line), u"2 2024-02-12"_s);
            QCOMPARE(Shop::rows(u"Select JOBFINISHED, ClientDeliveryDate from Jobs order by ID"_s),
                     QStringList({u"1 2024-02-12"_s, u"0 "_s}));
            control<QAction>(screen, "mnuJobFulPay").trigger(); // the total row
            choose(screen, u"Canceled"_s);
            lines(screen).selectRow(0);
            screen.DeliverJobCard();
            QCOMPARE(stored(u"DoneByWorker"_s, 3), u"2"_s);
            QCOMPARE(shown(screen), u"1 2 3 of 3"_s); // no condition
        });
    }

    void otherScreensOpenOnTheRow()
    {
        inModal<Register>([](Register& screen) {
            lines(screen).setFocus();
            press(Qt::Key_Down);
            press(Qt::Key_Down);
            QSignalSpy refreshed(lines(screen).model(), &QAbstractItemModel::modelReset);
            onNextModal<frmEditWorkerAssign>([](frmEditWorkerAssign&) {
                Shop::run(u"Update Jobs_Detail set Loc='C3' where ID=2"_s);
                session.RefreshLists = true;
            });
            press(Qt::Key_Return);
            QCOMPARE(refreshed.count(), 1);
            QCOMPARE(lines(screen).cell(1, 9), u"C3"_s);
            QCOMPARE(lines(screen).selectedRow(), 1);
            press(Qt::Key_Down);
            onNextModal<frmEditJOB>([](frmEditJOB& card) {
                QCOMPARE(field(card, "txtJOBID").text(), u"2"_s);
                session.RefreshLists = true;
            });
            press(Qt::Key_F1);
            QCOMPARE(refreshed.count(), 2);
            QCOMPARE(lines(screen).selectedRow(), 2);
        });
    }

    void faultsLeaveTheRegisterUsable()
    {
        const QString noRow = u"No current record: the query found no row, or all have been passed."_s;
        Shop::run(u"Update Jobs_Detail set CuttingStatus=null, DoneByWorker=9 where ID=1"_s);
        Shop::run(u"Update Jobs_Detail set WorkerID=999 where ID=3"_s);
        prompts->expect(noRow);
        inModal<Register>([&](Register& screen) {
            QVERIFY(row(screen, 0).endsWith(u"|Ravi| |12.50 Dr||"));
            QCOMPARE(lines(screen).rowCount(), 2); // those before the line at fault
            Shop::run(u"Update Jobs_Detail set WorkerID=0 where ID=3"_s);
            click(screen, "Command4");
            QCOMPARE(shown(screen), u"1 2 3 of 3"_s);
            Shop::run(u"Delete from Jobs_Detail where ID=2"_s);
            lines(screen).selectRow(1);
            prompts->expect(u"Mark Item as Delivered to Client?"_s, Answer::Yes);
            prompts->expect(noRow);
            press(Qt::Key_F8);
            click(screen, "Command4");
            QCOMPARE(shown(screen), u"1 3 of 2"_s);
        });
    }
};

QTEST_MAIN(tst_frmWorkerJobRegister)
#include "tst_frmWorkerJobRegister.moc"
