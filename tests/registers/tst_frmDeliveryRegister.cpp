#include "core/shell/frmMenu.h"
#include "core/store/Session.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmSearchClient.h"
#include "support/ShopTest.h"
#include "ui/frmSelectDate.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

forms::ListView& lines(QWidget& screen) { return listView(screen, "lvSummary"); }

QString row(QWidget& screen, int number)
{
    QStringList cells;
    for (int column = 0; column < 9; ++column)
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

/// What the job register does too is tested there.
class tst_frmDeliveryRegister : public ShopTest
{
    Q_OBJECT

    /// Due today: a canceled line, and a delivered one of the worker; due before and after: one each.
    void lay() override
    {
        const qint32 asha = shop->addClient(u"Asha"_s);
        const qint32 ravi = shop->addWorker(u"Ravi"_s);
        const qint32 shirt = shop->addItem(u"Shirt"_s);
        for (const qint32 worker : {ravi, ravi, 0, 0})
            shop->addJobLine(asha, shirt, worker);
        Shop::run(u"Update Jobs_Detail set ItemSr=ID, Date='2024-02-01', JobDelDate='2024-02-10'"_s);
        Shop::run(u"Update Jobs_Detail set DoneByWorker=4 where ID=1"_s);
        Shop::run(u"Update Jobs_Detail set DoneByWorker=2 where ID=2"_s);
        Shop::run(
            u"Update Jobs_Detail set JobDelDate='2024-02-12', DoneByWorker=3, Remarks='Loose' where ID=3"_s);
        Shop::run(u"Update Jobs_Detail set JobDelDate='1900-01-01', Date='1899-12-30' where ID=4"_s);
    }

private Q_SLOTS:
    void whatIsDueComesInItsOrder()
    {
        onNextModal<frmDeliveryRegister>([this](frmDeliveryRegister& screen) {
            QCOMPARE(label(screen, "lblCurrentDate"), u"Current Date : 10-Feb-2024"_s);
            QCOMPARE(shown(screen), u"1 2 of 2"_s);
            QCOMPARE(row(screen, 0), u"10-Feb-2024|01-Feb-2024|0 Days|1/1|Asha|Shirt||Ravi|"_s);
            QVERIFY(lines(screen).look(2, 2).bold);

            onNextModal<frmSelectDate>([](frmSelectDate& choice) {
                date(choice, "DateFrom").setValue(QDate(1900, 1, 1));
                date(choice, "DateTo").setValue(QDate(2199, 12, 31));
                click(choice, "cmdOk");
            });
            press(Qt::Key_E, Qt::ControlModifier);
            QCOMPARE(shown(screen), u"4 1 2 3 of 4"_s);
            QCOMPARE(row(screen, 0), u"01-Jan-1900|30-Dec-1899|-45330 Days|1/4|Asha|Shirt||NA|Uncompleted"_s);
            QCOMPARE(row(screen, 3), u"12-Feb-2024|01-Feb-2024|2 Days|1/3|Asha|Shirt|Loose|NA|Alteration"_s);

            for (const auto& [condition, kept] : {std::pair(u"Delivered"_s, u"2 of 1"_s),
                                                  {u"Completed"_s, u" of 0"_s},
                                                  {u"All"_s, u"4 1 2 3 of 4"_s}}) {
                combo(screen, "cmbCondition").setFocus();
                combo(screen, "cmbCondition").setText(condition); // counts when the box is left, too
                press(Qt::Key_Tab);
                QCOMPARE(shown(screen), kept);
            }
            combo(screen, "cmbClient").setFocus();
            typeText(u"rav"_s);
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), u"1 2 of 2"_s);
            QCOMPARE(focused(screen), u"lvSummary"_s);

            onNextModal<frmEditWorkerAssign>([](frmEditWorkerAssign&) {
                Shop::run(u"Update Jobs_Detail set DoneByWorker=1 where ID=2"_s);
                session.WorkingDate = QDate(2024, 2, 11);
                session.RefreshLists = true;
            });
            press(Qt::Key_Down);
            press(Qt::Key_Return);
            QCOMPARE(row(screen, 1), u"10-Feb-2024|01-Feb-2024|-1 Days|1/2|Asha|Shirt||Ravi|Completed"_s);
            QCOMPARE(lines(screen).selectedRow(), 1);
            QCOMPARE(label(screen, "lblCurrentDate"), u"Current Date : 11-Feb-2024"_s);

            onNextModal<frmSelectDate>([](frmSelectDate& choice) {
                date(choice, "DateFrom").setValue(QDate(2024, 2, 12));
                press(Qt::Key_S, Qt::AltModifier);
            });
            press(Qt::Key_D, Qt::ControlModifier);
            QCOMPARE(shown(screen), u" of 0"_s); // still Ravi's

            onNextModal<frmSearchClient>([](frmSearchClient& search) {
                fillIn(search, "txtName", u"Asha"_s);
                press(Qt::Key_Return);
            });
            press(Qt::Key_F, Qt::ControlModifier);
            QCOMPARE(combo(screen, "cmbClient").text(), u"Asha"_s);
            QCOMPARE(shown(screen), u"3 of 1"_s);
            prompts->expect(u"Please Select Worker Name!"_s);
            press(Qt::Key_V, Qt::AltModifier);
            fillIn(screen, "txtSearchID", u"1"_s);
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), u"1 2 3 4 of 4"_s);
        });
        inModal<frmMenu>([](frmMenu&) { press(Qt::Key_L, Qt::AltModifier); });
    }
};

QTEST_MAIN(tst_frmDeliveryRegister)
#include "tst_frmDeliveryRegister.moc"
