#include "accounts/frmAccountBook.h"
#include "accounts/frmDayBook.h"
#include "core/shell/frmGlance.h"
#include "core/shell/frmMenu.h"
#include "masters/frmClients.h"
#include "platform/forms/BarChart.h"
#include "platform/forms/FigureButton.h"
#include "platform/report/Preview.h"
#include "registers/frmBirthDayRimenders.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmDueRegister.h"
#include "registers/frmTrailDate.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/Pdf.h"
#include "support/ShopTest.h"

#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString tile(QWidget& screen, const char* name)
{
    const auto& button = control<forms::FigureButton>(screen, name);
    return button.figure() + u"; "_s + button.more();
}

QString meaning(QWidget& screen, const char* chart, int group)
{
    return control<forms::BarChart>(screen, chart).groups().at(size_t(group)).meaning;
}

/// The lines that a register shows, without its total.
int lines(QWidget& screen) { return listView(screen, "lvSummary").rowCount() - 1; }

} // namespace

/// The figures of the working date, and the lists behind them.
class tst_frmGlance : public ShopTest
{
    Q_OBJECT

    qint32 asha = 0;
    qint32 ravi = 0;

    void lay() override
    {
        asha = shop->addClient(u"Asha"_s);
        ravi = shop->addWorker(u"Ravi"_s);
        shop->addItem(u"Shirt"_s);
    }
    /// A line booked on 1 February, due on a day of that month.
    void addLine(int due, int state, const QString& set = u"Score=0"_s)
    {
        shop->addJobLine(asha, 1, ravi,
                         u"Date='2024-02-01', JobDelDate='2024-02-%1', CuttingStatus=0, DoneByWorker=%2, %3"_s
                             .arg(due, 2, 10, QLatin1Char('0'))
                             .arg(state)
                             .arg(set));
    }
    void post(const QString& date, qint32 account, qint32 against, double amount, int type = 2)
    {
        for (const int side : {1, -1})
            Shop::add(u"Postings"_s, {{"VID", 1},
                                      {"Vtype", type},
                                      {"sr", side > 0 ? 1 : 2},
                                      {"Date", date},
                                      {"AccID", side > 0 ? account : against},
                                      {"RefID", side > 0 ? against : account},
                                      {"particulars", u"Receipt"_s},
                                      {"Remark", u""_s},
                                      {"Amount", side * amount}});
    }

private Q_SLOTS:
    void anEmptyShop()
    {
        shop = nullptr;
        shop = std::make_unique<Shop>();
        inModal<frmGlance>([](frmGlance& screen) {
            QCOMPARE(tile(screen, "cmdDue"), u"0; 0 ready, 0 not ready"_s);
            QCOMPARE(tile(screen, "cmdTaken"), u"0.00; from clients"_s);
            QCOMPARE(meaning(screen, "chDue", 13), u"23-Feb-2024: nothing"_s);
            onNextModal<frmWorkerJobRegister>([](frmWorkerJobRegister& list) { QCOMPARE(lines(list), 0); });
            click(screen, "cmdLines");
            onNextModal<frmDeliveryRegister>([](frmDeliveryRegister& list) { QCOMPARE(lines(list), 0); });
            click(screen, "cmdOverdue");
            control<QWidget>(screen, "lvDues").setFocus();
            press(Qt::Key_Return);
        });
    }

    void linesLeadToTheirLists()
    {
        for (const int state : {0, 1, 1, 2, 3, 4})
            addLine(10, state);
        for (const int state : {0, 0, 1, 2, 3})
            addLine(5 + state, state);
        addLine(23, 0, u"CompletedDate='2024-02-10'"_s);
        addLine(24, 0, u"CompletedDate='2024-01-12', JobID=2"_s); // both on the edge of what is shown
        addLine(25, 1, u"CompletedDate='2024-01-11'"_s);
        inModal<frmGlance>([&](frmGlance& screen) {
            QCOMPARE(tile(screen, "cmdDue"), u"4; 2 ready, 2 not ready"_s);
            QCOMPARE(tile(screen, "cmdOverdue"), u"2; 1 in alteration, 1 not fetched"_s);
            QCOMPARE(meaning(screen, "chDue", 0), u"10-Feb-2024: 1 uncompleted, 1 in alteration, 2 ready"_s);
            QCOMPARE(meaning(screen, "chDue", 13), u"23-Feb-2024: 1 uncompleted"_s);
            QCOMPARE(rowText(screen, 0, "lvWorkers"), u"Ravi|5|2|2"_s);

            onNextModal<frmDeliveryRegister>([](frmDeliveryRegister& list) {
                QCOMPARE(lines(list), 4); // what is counted
                click(list, "Command4");
                QCOMPARE(lines(list), 6);
                Shop::run(u"Update Jobs_Detail set DoneByWorker=2 where JobDelDate='2024-02-10'"_s);
            });
            press(Qt::Key_Return); // on what is due today
            QCOMPARE(tile(screen, "cmdDue"), u"0; 0 ready, 0 not ready"_s);
            onNextModal<frmDeliveryRegister>([](frmDeliveryRegister& list) {
                QCOMPARE(lines(list), 2);
                QCOMPARE(combo(list, "cmbCondition").text(), u"Uncompleted"_s);
            });
            click(screen, "cmdOverdue");

            control<QWidget>(screen, "chDue").setFocus();
            press(Qt::Key_End);
            onNextModal<frmDeliveryRegister>([](frmDeliveryRegister& list) {
                QCOMPARE(tags(list).front(), u"12"_s);
                QCOMPARE(lines(list), 1);
            });
            press(Qt::Key_Return);
            QCOMPARE(control<forms::BarChart>(screen, "chDue").chosen(), 13);

            control<QWidget>(screen, "lvWorkers").setFocus();
            press(Qt::Key_Down);
            onNextModal<frmWorkerJobRegister>([](frmWorkerJobRegister& list) {
                QCOMPARE(lines(list), 4);
                QCOMPARE(combo(list, "cmbClient").text(), u"Ravi"_s);
            });
            press(Qt::Key_Return);
        });
    }

    void moneyByWeekAndDuesByAge()
    {
        const qint32 cash = GetAccountID(u"Cash"_s);
        const qint32 sales = GetAccountID(u"Sales"_s);
        const qint32 rent = Shop::add(u"Accounts"_s, {{"Title", u"Discount"_s}, {"Type", 2}, {"Nature", 1}});
        const qint32 old = shop->addClient(u"D'Souza"_s);
        const qint32 even = shop->addClient(u"Even"_s);
        post(u"2024-02-10"_s, asha, sales, -900, 1);
        post(u"2024-02-10"_s, asha, cash, 300);
        post(u"2024-02-10"_s, asha, rent, 50);       // no money came in
        post(u"2024-02-10"_s, asha, sales, 10);      // nor here
        post(u"2023-11-11"_s, asha, sales, -700, 1); // before the first week
        post(u"2023-11-19"_s, even, sales, -80, 1);
        post(u"2024-02-10"_s, even, cash, 80);
        post(u"2024-01-11"_s, old, sales, -40, 1); // 30 days old
        post(u"2024-01-10"_s, old, sales, -20, 1);
        post(u"2024-02-11"_s, old, sales, -5, 1); // tomorrow
        inModal<frmGlance>([&](frmGlance& screen) {
            QCOMPARE(tile(screen, "cmdTaken"), u"380.00; Cash 380.00"_s);
            QCOMPARE(meaning(screen, "chMoney", 0), u"19 Nov to 25 Nov: booked 80.00, taken 0.00"_s);
            QCOMPARE(meaning(screen, "chMoney", 11), u"4 Feb to 10 Feb: booked 900.00, taken 380.00"_s);
            QCOMPARE(label(screen, "lblDues"), u"Dues: 1,300.00 of 2 clients"_s);
            QStringList ages;
            for (int age = 0; age < 4; ++age)
                ages << meaning(screen, "chDues", age).section(u' ', 0, 0);
            QCOMPARE(ages, QStringList({u"940.00"_s, u"20.00"_s, u"0.00"_s, u"340.00"_s}));
            QCOMPARE(rowText(screen, 0, "lvDues") + rowText(screen, 1, "lvDues"),
                     u"Asha|1,240.00D'Souza|60.00"_s);

            onNextModal<frmAccountBook>([](frmAccountBook& book) {
                QCOMPARE(label(book, "lblShown"), u"Cash\n10-Feb-2024 To 10-Feb-2024"_s);
            });
            click(screen, "cmdTaken");
            onNextModal<frmDayBook>(
                [](frmDayBook& book) { QCOMPARE(rowText(book, 0).left(11), u"10-Feb-2024"_s); });
            control<QWidget>(screen, "chMoney").setFocus();
            press(Qt::Key_End);
            press(Qt::Key_Return);
            control<QWidget>(screen, "lvDues").setFocus();
            press(Qt::Key_Down);
            onNextModal<frmAccountBook>(
                [](frmAccountBook& book) { QCOMPARE(combo(book, "cmbAccount").text(), u"Asha"_s); });
            press(Qt::Key_Return);
            onNextModal<frmDueRegister>([](frmDueRegister&) {});
            control<QWidget>(screen, "chDues").setFocus();
            press(Qt::Key_Space);
            onNextModal<report::Preview>([](report::Preview& paper) {
                const QString text = readBack(paper.report()).join(u' ');
                for (const char* printed : {"Asha 1,240.00", "D'Souza 60.00", "30 days 940.00", "Taken today",
                                            "380.00", "4 Feb 900.00", "Ravi 0 0 0", "1 of 1"})
                    QVERIFY2(text.contains(QLatin1String(printed)),
                             qPrintable(QLatin1String(printed) + text));
            });
            press(Qt::Key_P, Qt::ControlModifier);
            QCOMPARE(focused(screen), u"chDues"_s);
        });
    }

    void theDayAndTheRoomLeft()
    {
        Shop::run(u"Update Accounts set dob='1990-02-10' where Title='Asha'"_s);
        const qint32 entered = shop->addClient(u"Entered Today"_s);
        Shop::run(u"Update Accounts set dob='2024-02-10' where ID=%1"_s.arg(entered)); // no birthday
        shop->addJob(1, asha);
        Shop::run(u"Update Jobs set TrialDate='2024-02-10'"_s);
        addLine(10, 0);
        Shop::run(u"Update Jobs_Detail set ID=29491"_s);
        onNextModal<frmGlance>([](frmGlance& screen) {
            QCOMPARE(tile(screen, "cmdTrials") + tile(screen, "cmdBirthdays") + tile(screen, "cmdCards"),
                     u"1; 1 not appeared1; clients0; job cards"_s);
            onNextModal<frmTrailDate>([](frmTrailDate&) {});
            click(screen, "cmdTrials");
            onNextModal<frmBirthDayRimenders>([](frmBirthDayRimenders&) {});
            click(screen, "cmdBirthdays");
            QCOMPARE(label(screen, "lblRoom"), u"Nearly full: New Books (Settings, Backup) make room."_s);
            QCOMPARE(control<QAbstractButton>(screen, "cmdLines").text(), u"Lines 29,491 of 32,767 (90%)"_s);
            onNextModal<frmWorkerJobRegister>([](frmWorkerJobRegister& list) { QCOMPARE(lines(list), 1); });
            click(screen, "cmdLines");
            session.WorkingDate = QDate(2024, 1, 1); // before the first card
            screen.fill();
            onNextModal<frmWorkerJobRegister>([](frmWorkerJobRegister& list) { QCOMPARE(lines(list), 1); });
            click(screen, "cmdLines");
            session.WorkingDate = QDate(2024, 2, 10);
            click(screen, "cmdAccounts");
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            QCOMPARE(menu->actions().front()->text(), u"Clients  2"_s);
            onNextModal<frmClients>(
                [](frmClients& list) { QCOMPARE(listBox(list, "lstSummary").ListCount(), 2); });
            press(Qt::Key_Return);
        });
        inModal<frmMenu>([](frmMenu&) { press(Qt::Key_G, Qt::AltModifier); });
    }
};

QTEST_MAIN(tst_frmGlance)
#include "tst_frmGlance.moc"
