#include "accounts/frmPayrollDetails.h"
#include "accounts/frmTransiction.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "accounts/rptWagesRegister.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "platform/report/Preview.h"
#include "support/Pdf.h"
#include "support/ShopTest.h"

/// The lines on the list, and the last balance.
static QString shown(QWidget& screen)
{
    const forms::ListView& list = listView(screen, "lvSummary");
    return tags(screen).join(u' ') + ": " + list.cell(list.rowCount() - 1, 5);
}

class tst_frmWorkerWagesRegister : public ShopTest
{
    Q_OBJECT
    using Register = frmWorkerWagesRegister;

    /// Ravi's lines: 1 of 200, paid by hand; 2 of 100.50; 3 not begun; 4 of 0.25, of the day before.
    void lay() override
    {
        session.TodayDate = QDate(2024, 2, 12);
        asha = shop->addClient("Asha");
        ravi = shop->addWorker("Ravi Das");
        shop->addWorker("Suresh");
        const qint32 shirt = shop->addItem("Shirt");
        for (const char* line : {"200, MarkAsPaid=1, QNT=5", "100.5", "77, DoneByWorker=0",
                                 "0.25, Date='2024-02-09', CompletedDate=null"})
            shop->addJobLine(asha, shirt, ravi,
                             QString("DoneByWorker=1, ItemSr=ID, ClintName='Asha', "
                                     "CompletedDate='2024-02-10', WorkerWagesDue=") +
                                 line);
    }
    /// The unpaid lines of Ravi's two days.
    static void viewUnpaid(Register& screen)
    {
        combo(screen, "cmbClient").setText("Ravi Das");
        date(screen, "DateFrom").setValue(QDate(2024, 2, 9));
        date(screen, "DateTo").setValue(QDate(2024, 2, 10));
        click(screen, "op3");
        click(screen, "Command4");
    }
    qint32 asha = 0, ravi = 0;

private Q_SLOTS:
    void fortnightByKeys()
    {
        inModal<Register>([&](Register& screen) {
            QCOMPARE(focused(screen), "cmbClient");
            QCOMPARE(combo(screen, "cmbClient").count(), 2);
            typeText("ra");
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), "DateFrom"); // the days first
            typeFields({{}, {}});
            QCOMPARE(focused(screen), "op1");
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), "1 2: 300.50");
            QCOMPARE(rowText(screen, 1), "10-Feb-2024|1 / 2|Asha|Shirt|100.50|300.50|10-Feb-2024|Unpaid");
            QCOMPARE(focused(screen), "lvSummary");
            QCOMPARE(listView(screen, "lvSummary").selectedRow(), 0);

            date(screen, "DateFrom").setValue(QDate(2024, 2, 9));
            control<QWidget>(screen, "op1").setFocus();
            press(Qt::Key_Right);
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), "4 2: 100.75");
            QCOMPARE(rowText(screen, 0), "09-Feb-2024|1 / 4|Asha|Shirt|0.25|0.25||Unpaid");
            QCOMPARE(label(screen, "lblTotal"), "2 lines  ·  100.75");

            press(Qt::Key_D, Qt::ControlModifier);
            QCOMPARE(listView(screen, "lvDetails").cell(0, 0) + listView(screen, "lvDetails").cell(0, 1),
                     "Shirt3"); // paid ones too
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), "lvSummary");

            press(Qt::Key_Down);
            onNextModal<frmEditWorkerAssign>([this](frmEditWorkerAssign& line) {
                QCOMPARE(field(line, "txtJOBID").text(), "1");
                prompts->expect("Job Assign.");
                field(line, "txtWagesDue").setText("120");
                save();
            });
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), "4 2: 120.25");
            QCOMPARE(listView(screen, "lvSummary").selectedRow(), 1);

            prompts->expect("Payroll Created.");
            press(Qt::Key_C, Qt::AltModifier);
            QCOMPARE(shown(screen), ": ");
            QCOMPARE(focused(screen), "cmbClient");
            prompts->expect("No job found to make payroll for this worker!");
            press(Qt::Key_C, Qt::AltModifier);
            click(screen, "op2");
            click(screen, "Command4");
            QCOMPARE(shown(screen), "4 1 2: 320.25");
        });
        QCOMPARE(Shop::rows("Select accID, Amount, Date from Postings where VID=1 and isPayroll=1 and sr=1"),
                 QStringList(QString("%1 120.25 2024-02-12").arg(ravi)));
        QCOMPARE(Shop::rows("Select ID from Jobs_Detail where PayrollID=1 and MarkAsPaid=1"),
                 QStringList({"2", "4"}));

        // The voucher tells what it paid.
        onNextModal<frmTransiction>([](frmTransiction&) {
            onNextModal<frmPayrollDetails>([](frmPayrollDetails& details) {
                QCOMPARE(shown(details), "2 4: 120.25"); // by number, not by day
                QCOMPARE(rowText(details, 1), "09-Feb-2024|1 / 4|Asha|Shirt|0.25|120.25||Paid");
            });
            press(Qt::Key_P, Qt::AltModifier);
        });
        qint16 saved = 0;
        frmTransiction().ShowEdit(1, saved);
        inModal<frmPayrollDetails>([](frmPayrollDetails& details) { QCOMPARE(shown(details), ": "); });
    }

    void refusesInOrder()
    {
        inModal<Register>([this](Register& screen) {
            const auto refuses = [&](const QString& text, const char* button = "Command3") {
                prompts->expect(text);
                click(screen, button);
            };
            viewUnpaid(screen);
            click(screen, "op1");
            date(screen, "DateFrom").setValue(QDate(2024, 2, 11));
            refuses("Invalid date selection!", "Command4");
            refuses("Invalid date selection!"); // the list is still that of the unpaid lines
            date(screen, "DateFrom").setValue(QDate(2024, 2, 9));
            combo(screen, "cmbClient").setText("Nobody");
            refuses("Please select Worker!");
            combo(screen, "cmbClient").setText("Suresh");
            refuses("The list was made for another worker or other days than the boxes show now.\nNo payroll "
                    "has been made: press View, look at the lines, then create it.");
            click(screen, "Command4");
            refuses("Select Unpaid jobs only!");
            QCOMPARE(shown(screen), ": ");

            Shop::run("Update Jobs_Detail set WorkerWagesDue=0.004 where ID=2");
            viewUnpaid(screen);
            QCOMPARE(shown(screen), "4 2: 0.25");
            refuses("Balance is 0"); // the last line, not the total
            Shop::run("Update Jobs_Detail set WorkerWagesDue=0 where ID=4");
            Shop::run("Update Jobs_Detail set WorkerWagesDue=5 where ID=2");
            viewUnpaid(screen);
            QCOMPARE(Shop::count("Select * from Postings"), 0);
            refuses("Payroll Created.");
        });
        QCOMPARE(Shop::rows("Select Amount from Postings"), QStringList({"5", "-5"}));
    }

    /// Another worker in the box changes nothing on the list, nor the name on its paper, until it is viewed
    /// or a line has been saved.
    void keepsWhatWasViewed()
    {
        inModal<Register>([this](Register& screen) {
            viewUnpaid(screen);
            combo(screen, "cmbClient").setText("Sur");
            listView(screen, "lvSummary").selectRow(1);
            listView(screen, "lvSummary").setFocus();
            onNextModal<frmEditWorkerAssign>([this](frmEditWorkerAssign&) {
                prompts->expect("Job Assign.");
                save();
            });
            const auto papersName = [&] {
                QString name;
                onNextModal<report::Preview>(
                    [&](report::Preview& paper) { name = paper.report().Subject.section(' ', 2); });
                click(screen, "Command5");
                return name;
            };
            QCOMPARE(papersName(), "Ravi Das");
            combo(screen, "cmbClient").setText("zz");
            prompts->expect("Please select Worker!");
            click(screen, "Command5");
            QCOMPARE(focused(screen), "cmbClient");
            combo(screen, "cmbClient").setText("Sur");
            listView(screen, "lvSummary").setFocus();
            press(Qt::Key_Return); // back from a saved line the boxes count
            QCOMPARE(combo(screen, "cmbClient").text(), "Suresh");
            QCOMPARE(shown(screen), ": ");
            QCOMPARE(papersName(), "Suresh");
        });
    }

    void onPaper()
    {
        session.ShopName = "Rangoli Tailors";
        std::vector<wages::Line> lines =
            wages::read(wages::linesOf({ravi, QDate(2024, 2, 9), QDate(2024, 2, 10)}, wages::Which::All));
        for (int i = int(lines.size()); i < 200; ++i) {
            lines.push_back(lines.front());
            lines.back().job = QString("1 / %1").arg(i + 1);
            lines.back().balance = Currency::fromDouble(i * 1000.25);
        }
        wagesPaper({}, "Nobody");
        const QStringList pages = readBack(*wagesPaper(lines, "Ravi Das"));
        QCOMPARE(Shop::count("Select * from wagesregister"), 200);
        QVERIFY(pages.size() > 3);
        const QString text = pages.join(u' ');
        for (const QString& head : {u"Rangoli Tailors"_s, u"Worker Name : Ravi Das"_s,
                                    u"Completed Date Paid Unpaid"_s, u"Wages Register · Ravi Das"_s})
            QVERIFY2(text.count(head) == pages.size(), qPrintable(head));
        for (const wages::Line& line : lines) {
            const QString printed = line.cells().join(QString()).remove(' '); // as wide as they come out
            QVERIFY2(QString(text).remove(' ').contains(printed), qPrintable(printed));
        }
    }
};

QTEST_MAIN(tst_frmWorkerWagesRegister)
#include "tst_frmWorkerWagesRegister.moc"
