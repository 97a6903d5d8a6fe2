#include "accounts/frmAccountBook.h"
#include "core/shell/frmMain.h"
#include "core/store/Schema.h"
#include "jobcards/frmEditJOB.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "planning/frmWorkerReport2.h"
#include "registers/frmSearchClient.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/ShopTest.h"
#include "ui/HelpLine.h"

#include <QMenu>
#include <QSignalSpy>

static forms::ListView& lines(QWidget& screen) { return listView(screen, "lvSummary"); }

/// The lines on the list, and what the total row counts.
static QString shown(QWidget& screen)
{
    QStringList lines = tags(screen);
    lines.removeLast();
    return lines.join(u' ') + " of" +
           listView(screen, "lvSummary").cell(int(lines.size()), 2).section(u':', 1);
}

class tst_frmWorkerJobRegister : public ShopTest
{
    Q_OBJECT
    using Register = frmWorkerJobRegister;

    /// Three lines of the working date, of all states; one of the day before.
    void lay() override
    {
        session.TodayDate = QDate(2024, 2, 12);
        m_asha = shop->addClient("Asha", "0981");
        m_ravi = shop->addWorker("Ravi");
        m_shirt = shop->addItem("Shirt");
        const QString line = "ItemSr=ID, CuttingStatus=0, Loc='A1'";
        shop->addJobLine(m_asha, m_shirt, m_ravi,
                         line +
                             ", CuttingStatus=1, DoneByWorker=1, Remarks='Loose', JobDelDate='2024-02-07', "
                             "Loc=null");
        for (const char* rest : {"", ", JobID=2, DoneByWorker=4", ", Date='2024-02-09'"})
            shop->addJobLine(m_asha, m_shirt, 0, line + rest);
        for (const int job : {1, 2})
            shop->addJob(job);
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
            QCOMPARE(rowText(screen, 0),
                     u"10-Feb-2024|1/1|Asha|Shirt|Loose|07-Feb-2024 (-3 D)|Ravi|Done|Completed| "
                     "|12.50 Dr"_s);
            QCOMPARE(rowText(screen, 1),
                     "10-Feb-2024|1/2|Asha|Shirt||10-Feb-2024 (0 D)|NA|Not Done|Uncompleted|A1|12.50 Dr");
            QVERIFY(lines(screen).look(0, 2).toolTip.startsWith(u"0981"));
            QCOMPARE(lines(screen).look(0, 6).toolTip, "No Information Found");
            QCOMPARE(shown(screen), "1 2 3 of 3");
            press(Qt::Key_D, Qt::ControlModifier);
            QCOMPARE(listView(screen, "lvDetails").cell(0, 1), "3");
            press(Qt::Key_Return); // on Image1
            QCOMPARE(focused(screen), "lvSummary");

            click(screen, "opDt2");
            date(screen, "DateTo").setValue(QDate(2024, 2, 9));
            date(screen, "DateFrom").setValue(QDate(2024, 2, 1));
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(shown(screen), "1 of 1");
        });
    }

    void conditionsKeepLines()
    {
        inModal<Register>([this](Register& screen) {
            for (const auto& [condition, kept] :
                 {std::pair("Completed", "1 of 1"), std::pair("Uncompleted", "2 of 1"),
                  std::pair("Delivered", " of 0"), std::pair("Canceled", "3 of 1"),
                  std::pair("Assigned", "1 of 1"), std::pair("Not Assigned", "2 3 of 2"),
                  std::pair("Cutting Done", "1 of 1"), std::pair("Cutting Not Done", "2 3 of 2")}) {
                choose(screen, condition);
                QCOMPARE(shown(screen), kept);
            }
            fillIn(screen, "txtSearchID", "1"); // a search takes no notice of it
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), "1 2 4 of 3");
            QCOMPARE(listView(screen, "lvDetails").rowCount(), 0);
        });
    }

    void criteria()
    {
        shop->addClient("Bela");
        inModal<Register>([this](Register& screen) {
            fillIn(screen, "txtSearchID", "12345678901234567890");
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), " of 0");
            date(screen, "DateFrom").setValue(QDate(2024, 2, 11)); // later than to
            prompts->expect("Invalid date selection!");
            click(screen, "Command4");
            fillIn(screen, "txtSearchID", "2");
            press(Qt::Key_Return);
            QCOMPARE(shown(screen), "3 of 1");
            QCOMPARE(date(screen, "DateTo").value(), QDate(2024, 2, 11));
            date(screen, "DateFrom").setValue(QDate(2024, 2, 10));

            combo(screen, "cmbClient").setFocus();
            combo(screen, "cmbClient").setText("Nobody");
            prompts->expect("Please Select Worker Name!");
            press(Qt::Key_Return);
            onNextModal<frmWorkerReport2>([](frmWorkerReport2&) { press(Qt::Key_Return); });
            click(screen, "Command3");
            QCOMPARE(combo(screen, "cmbClient").text(), "Ravi");
            QCOMPARE(shown(screen), "1 of 1");

            const auto find = [&screen](bool all, const QString& client) {
                onNextModal<frmSearchClient>([&](frmSearchClient& search) {
                    control<QAbstractButton>(search, "opShowAllUndel").setChecked(all);
                    fillIn(search, "txtName", client);
                    press(Qt::Key_Return);
                });
                press(Qt::Key_F, Qt::ControlModifier);
                return shown(screen);
            };
            QCOMPARE(find(false, "Asha"), "1 2 3 of 3");
            QCOMPARE(find(true, "Asha"), "1 2 3 4 of 4");
            QCOMPARE(find(false, "Bela"), " of 0");
            QCOMPARE(lines(screen).property("emptyText").toString(),
                     "Bela has no lines with the job date 10-Feb-2024 To 11-Feb-2024. Ctrl+F with 'Show all "
                     "jobs' ticked lists those of all days.");
        });
    }

    /// A worker only chosen in the box changes nothing before the next View; the keys stay on the lines.
    void keepsToWhatWasViewed()
    {
        for (int i = 0; i < 40; ++i)
            shop->addJobLine(m_asha, m_shirt, m_ravi, "CuttingStatus=0");
        inModal<Register>([this](Register& screen) {
            combo(screen, "cmbClient").setFocus();
            combo(screen, "cmbClient").setText("Ravi");
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), "lvSummary");
            QCOMPARE(lines(screen).selectedRow(), 0);
            const QString ravis = shown(screen);
            for (const char* box : {"Rav", "*All", "Nobody"}) {
                combo(screen, "cmbClient").setText(box);
                choose(screen, "Completed");
                choose(screen, "*All");
                QCOMPARE(shown(screen), ravis);
            }
            lines(screen).selectRow(38);
            const int top = lines(screen).topRow();
            QVERIFY(top > 0);
            prompts->expect("Mark Item as Cutting Done?", Answer::Yes);
            press(Qt::Key_F6);
            QCOMPARE(lines(screen).topRow(), top);
            QCOMPARE(lines(screen).selectedRow(), 38);
            QCOMPARE(focused(screen), "lvSummary");
            press(Qt::Key_1); // as if a garment were scanned
            press(Qt::Key_Backspace);
            choose(screen, "Completed");
            choose(screen, "*All");
            QCOMPARE(shown(screen), ravis);
            fillIn(screen, "txtSearchID", "2");
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), "lvSummary");
            QCOMPARE(lines(screen).selectedRow(), 0);
            combo(screen, "cmbClient").setText("Ravi");
            field(screen, "txtSearchID").clear(); // leaves the card for all workers
            QCOMPARE(combo(screen, "cmbClient").text(), "*All");
        });
    }

    void daysAreTypedTheirWay()
    {
        inModal<Register>([](Register& screen) {
            const auto type = [&](const char* name, const char* text) {
                date(screen, name).setFocus();
                typeText(text);
                press(Qt::Key_Return);
                return date(screen, name).text();
            };
            QCOMPARE(type("DateFrom", "28"), "28-Jan-2024");
            QCOMPARE(type("DateFrom", "1/3"), "01-Mar-2023");
            QCOMPARE(type("DateTo", "15"), "15-Mar-2023");
            QCOMPARE(type("DateTo", "15/1"), "15-Jan-2023"); // the beginning may yet be typed
            QCOMPARE(type("DateFrom", "20-11-23"), "20-Nov-2023");
            QCOMPARE(type("DateTo", "15/1"), "15-Jan-2024");
            click(screen, "opDt2"); // days of delivery
            date(screen, "DateFrom").setValue({2024, 2, 10});
            QCOMPARE(type("DateFrom", "28"), "28-Feb-2024");
            QCOMPARE(type("DateFrom", "1/4"), "01-Apr-2024");
        });
    }

    void aScannedGarmentIsHandedOver()
    {
        onNextModal<Register>([this](Register& screen) {
            const auto chosen = [&] { return lines(screen).tag(lines(screen).selectedRow()); };
            QCOMPARE(shown(screen) + "; " + chosen(), "1 2 4 of 3; 2");
            prompts->expect("Mark Item as Delivered to Client?", Answer::Yes);
            press(Qt::Key_F8);
            QCOMPARE(stored("DoneByWorker", 2), "2");
            for (const auto& [code, seen] :
                 {std::pair("2/3", "3 of 1; 3"), std::pair("1/9", "1 2 4 of 3; "), // no such line
                  std::pair("1/", "1 2 4 of 3; "), std::pair("77/1", " of 0; "),
                  std::pair(" 1/4 ", "1 2 4 of 3; 4")}) {
                typeText(code);
                press(Qt::Key_Return);
                QCOMPARE(shown(screen) + "; " + chosen(), seen);
                const bool found = !chosen().isEmpty();
                QCOMPARE(focused(screen), found ? "lvSummary" : "txtSearchID");
                QCOMPARE(control<HelpLine>(screen, "lblHelp").notice(),
                         found ? QString() : u"There is no line %1: nothing is chosen"_s.arg(code));
                if (!found)
                    press(Qt::Key_F8); // asks nothing
            }
        });
        inModal<frmMain>([](frmMain& main) {
            typeText("1/2"); // on a button
            press(Qt::Key_Return);
            press(Qt::Key_F2);
            typeText("1/2"); // this is a date
            press(Qt::Key_Return);
            QCOMPARE(date(main, "TodayDate").value(), QDate(2024, 2, 1));
        });
    }

    void linesAreMarkedByKeys()
    {
        inModal<Register>([this](Register& screen) {
            const auto act = [&](int selected, Qt::Key key) {
                lines(screen).selectRow(selected);
                press(key);
            };
            choose(screen, "Uncompleted");
            lines(screen).setFocus();
            for (const Qt::Key key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F6, Qt::Key_F8, Qt::Key_Return})
                act(1, key); // on the total row nothing is asked
            prompts->expect("Mark Item as Cutting Done?", Answer::Esc);
            act(0, Qt::Key_F6);
            QCOMPARE(stored("CuttingStatus", 2), "0");
            prompts->expect("Mark Item as Cutting Done?", Answer::Yes);
            act(0, Qt::Key_F6);
            QCOMPARE(stored("CuttingStatus, CuttingDate", 2), "1 2024-02-10");
            prompts->expect("Mark Item as Completed?", Answer::Yes);
            prompts->expectInput("Please specify location!", "B2", Answer::Esc);
            act(0, Qt::Key_F7);
            QCOMPARE(stored("DoneByWorker, CompletedDate, Loc", 2), "1 2024-02-12 A1");
            QCOMPARE(lines(screen).selectedRow(), -1); // the last one has left the list
            choose(screen, "*All");

            lines(screen).setFocus();
            onNextModal<frmAccountBook>([](frmAccountBook& book) {
                QCOMPARE(label(book, "lblShown"), "Asha\n10-Feb-2024 To 10-Feb-2024");
            });
            act(1, Qt::Key_F2);
            QCOMPARE(lines(screen).selectedRow(), 1);
            auto& menu = control<QMenu>(screen, "mnuFile");
            press(Qt::Key_Menu);
            QTRY_VERIFY(menu.isVisible());
            prompts->expect("Mark Item as Alteration?", Answer::Yes);
            prompts->expectInput("Please specify location!", "B2");
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
                press(key);
            QCOMPARE(stored("DoneByWorker, AltDate, Loc", 2), "3 2024-02-12 B2");
            Shop::run("Update Jobs_Detail set Loc=' ' where ID=1");
            Shop::run("Update Jobs_Detail set Loc='b2', CompletedDate='2024-02-01' where ID=3");
            prompts->expect("Mark Item as Completed?", Answer::Yes);
            prompts->expectInput("Please specify location!", [](QWidget& question) {
                const auto& typed = *question.findChild<QLineEdit*>();
                QCOMPARE(listBox(question, "lstEarlier").ListCount(), 2); // no blanks, and a place once
                for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Down})
                    press(key);
                QCOMPARE(typed.text(), "A1");
                typeText("C3"); // in place of what was chosen
                QCOMPARE(typed.text(), "C3");
                press(Qt::Key_Up);
                QCOMPARE(typed.text().toUpper(), "B2"); // used last
            });
            act(1, Qt::Key_F7);
            QCOMPARE(stored("DoneByWorker, upper(Loc)", 2), "1 B2");
            QCOMPARE(lines(screen).selectedRow(), 1);
            prompts->expect("Mark Item as Delivered to Client?", Answer::Yes);
            act(1, Qt::Key_F8);
            QCOMPARE(stored("DoneByWorker, DelToCustDate", 2), "2 2024-02-12");
        });
    }

    void cardIsDeliveredWhole()
    {
        inModal<Register>([this](Register& screen) {
            choose(screen, "Completed");
            lines(screen).selectRow(0);
            prompts->expect("Job Card as Delivered to Client?", Answer::Yes);
            control<QAction>(screen, "mnuJobFulPay").trigger();
            for (const int line : {1, 2, 4})
                QCOMPARE(stored("DoneByWorker, DelToCustDate", line), "2 2024-02-12");
            QCOMPARE(Shop::rows("Select JOBFINISHED, ClientDeliveryDate from Jobs order by ID"),
                     QStringList({"1 2024-02-12", "0 "}));
            control<QAction>(screen, "mnuJobFulPay").trigger(); // the total row
            choose(screen, "Canceled");
            lines(screen).selectRow(0);
            screen.DeliverJobCard();
            QCOMPARE(stored("DoneByWorker", 3), "2");
            QCOMPARE(shown(screen), "1 2 3 of 3"); // no condition
        });
    }

    void otherScreensOpenOnTheRow()
    {
        inModal<Register>([](Register& screen) {
            QSignalSpy refreshed(lines(screen).model(), &QAbstractItemModel::modelReset);
            lines(screen).setFocus();
            lines(screen).selectRow(1);
            onNextModal<frmEditWorkerAssign>([](frmEditWorkerAssign&) {
                Shop::run("Update Jobs_Detail set Loc='C3' where ID=2");
                session.RefreshLists = true;
            });
            press(Qt::Key_Return);
            QCOMPARE(refreshed.count(), 1);
            QCOMPARE(lines(screen).cell(1, 9), "C3");
            QCOMPARE(lines(screen).selectedRow(), 1);
            press(Qt::Key_Down);
            onNextModal<frmEditJOB>([](frmEditJOB& card) { QCOMPARE(field(card, "txtJOBID").text(), "2"); });
            press(Qt::Key_F1);
            QCOMPARE(lines(screen).selectedRow(), 2);
        });
    }

    /// A mark reads its own line again, and a list with nothing new is left as it is; but what has been
    /// written meanwhile, by anybody, shows.
    void aListIsNeverStale()
    {
        inModal<Register>([this](Register& screen) {
            forms::ListView& list = lines(screen);
            const auto onRow = [&list](int row, Qt::Key key) {
                list.setFocus();
                list.selectRow(row);
                press(key);
            };
            prompts->expect("Mark Item as Cutting Done?", Answer::Yes);
            onRow(1, Qt::Key_F6);
            QCOMPARE(list.cell(1, 7), "Done");
            QCOMPARE(list.cell(2, 7), "Not Done");

            Shop::run("Update Jobs_Detail set Remarks='Short' where ID=3");
            prompts->expect("Mark Item as Cutting Done?", Answer::Yes);
            onRow(1, Qt::Key_F6);
            QCOMPARE(list.cell(2, 4), "Short");

            ado::Connection other;
            other.open(session.databasePath(), databasePassword());
            other.Execute(u"Update Jobs_Detail set Remarks='Long' where ID=3"_s);
            other.close();
            QSignalSpy refilled(list.model(), &QAbstractItemModel::modelReset);
            for (const int count : {1, 1}) {
                onNextModal<frmAccountBook>([](frmAccountBook&) {});
                onRow(1, Qt::Key_F2);
                QCOMPARE(list.cell(2, 4), "Long");
                QCOMPARE(list.selectedRow(), 1);
                QCOMPARE(refilled.count(), count);
            }
        });
    }

    /// The clients of a long list are read in blocks as their rows are asked for, from any end.
    void everyRowOfALongListTellsItsOwnClient()
    {
        constexpr int count = 300;
        Shop::run("Delete from Jobs_Detail");
        for (int i = 0; i < count; ++i) {
            const qint32 client = shop->addClient(u"Client %1"_s.arg(i), QString::number(i));
            shop->addJobLine(client, m_shirt, 0,
                             "Date='2024-01-05', CuttingStatus=0, JobID=" + QString::number(10 + i));
            shop->addVoucher(10 + i, 1, client, i);
        }
        onNextModal<Register>([](Register& screen) {
            const forms::ListView& list = lines(screen);
            QCOMPARE(list.rowCount(), count + 1);
            for (int i = 0; i < count; ++i) {
                const int row = i % 2 == 0 ? count - 1 - i : i;
                QCOMPARE(list.cell(row, 2), u"Client %1"_s.arg(row));
                QCOMPARE(list.cell(row, 10), row == 0 ? u"None"_s : u"%1.00 Dr"_s.arg(row));
                QVERIFY(list.look(row, 2).toolTip.startsWith(QString::number(row) + u"  "));
            }
            press(Qt::Key_Escape);
        });
        frmWorkerJobRegister().ShowLines({.from = {2024, 1, 5}, .to = session.WorkingDate});
    }

    void faultsLeaveTheRegisterUsable()
    {
        const QString noRow = "No current record: the query found no row, or all have been passed.";
        Shop::run("Update Jobs_Detail set CuttingStatus=null, DoneByWorker=9 where ID=1");
        Shop::run("Update Jobs_Detail set WorkerID=999 where ID=3");
        prompts->expect(noRow);
        inModal<Register>([&](Register& screen) {
            QVERIFY(rowText(screen, 0).endsWith(u"|Ravi| |12.50 Dr||"));
            QCOMPARE(lines(screen).rowCount(), 2); // those before the line at fault
            Shop::run("Update Jobs_Detail set WorkerID=0 where ID=3");
            click(screen, "Command4");
            QCOMPARE(shown(screen), "1 2 3 of 3");
        });
    }
};

QTEST_MAIN(tst_frmWorkerJobRegister)
#include "tst_frmWorkerJobRegister.moc"
