#include "platform/ado/DatabaseError.h"
#include "platform/forms/BackgroundTask.h"
#include "platform/forms/BarChart.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListSheet.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Screen.h"
#include "platform/report/ListKeys.h"
#include "platform/report/ListPaper.h"
#include "platform/report/Preview.h"
#include "platform/report/Workbook.h"
#include "support/Fields.h"
#include "support/Files.h"
#include "support/Modal.h"
#include "support/Pdf.h"
#include "support/Prompts.h"
#include "support/Spreadsheet.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

using namespace forms;

/// A combo and a field below it; keeps the character keys that reach the screen.
class OrderScreen : public Screen
{
    Q_OBJECT
public:
    OrderScreen()
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(&client);
        column->addWidget(&remark);
        column->addWidget(&date);
        client.AddItems({"Asha", "Bela", "bharat", "Chand"});
        onGotFocus(&client, [this] { client.dropDown(); });
        onKeyPress(&client, [this](int& key) {
            if (key == '#')
                key = 0;
        });
    }

    ComboBox client;
    QLineEdit remark;
    DatePicker date;
    QList<int> keys;

protected:
    void Form_KeyPress(int& key) override { keys += key; }
};

class tst_lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsFindAndSelect()
    {
        ListBox list;
        list.AddItems({"Ajay", "anil", "Binod", "D\u2019Silva", "D'Souza"});
        list.show();
        list.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QCOMPARE(list.ListIndex(), -1); // focus alone selects no entry
        for (const auto& [prefix, behind, found] :
             {std::tuple("a", 0, 1), std::tuple("A", 1, 0), std::tuple("d's", -1, 3),
              std::tuple("D\u2019so", -1, 4), std::tuple("jay", -1, -1),
              std::tuple("", -1, -1)}) // wraps round
            QCOMPARE(list.findString(prefix, behind), found);
    }

    /// What a row has to ask the file for may fail: the row is empty, the message comes once, the list goes
    /// on.
    void aRowThatCannotBeMadeSaysSoOnce()
    {
        Prompts prompts;
        ListView view;
        view.setColumns({{"Client", ListView::rest}});
        const auto make = [](int row) {
            if (row == 1 || row == 2)
                throw ado::DatabaseError("disk I/O error");
            return ListView::Row{{QString::number(row)}};
        };
        for (int filled = 0; filled < 2; ++filled) {
            prompts.expect("disk I/O error");
            view.setRows(4, make);
            view.show();
            QTRY_COMPARE(prompts.pending(), 0);
            QCOMPARE(view.cell(0, 0) + view.cell(1, 0) + view.cell(3, 0), "03");
        }
    }

    void rowsAreLaidFilteredAndAskedForAMenu()
    {
        ListView view;
        view.setColumns({{"Client", 50, Qt::AlignLeft, 300}, {"City", 10}, {"Balance", ListView::rest}});
        int made = 0;
        const auto make = [&made](int row) {
            ++made;
            return ListView::Row{{QString::number(row), "Agra"}, QString::number(row / 2)};
        };
        view.setRows(30000, make);
        view.selectRow(7);
        view.refreshRows(301, make);
        QCOMPARE(view.selectedRow(), 7);
        view.setRows(301, make);
        QCOMPARE(view.selectedRow(), -1);
        view.resize(300, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        QVERIFY2(made < 60, qPrintable(QString::number(made))); // those that were shown or asked for
        QCOMPARE(view.cell(300, 0) + view.tag(300), "300150");
        QCOMPARE(view.columnWidth(0), 300); // more than its share
        QTRY_VERIFY(view.horizontalScrollBar()->maximum() > 0);

        QSignalSpy asked(&view, &ListView::menuAsked);
        view.selectRow(300);
        press(Qt::Key_Menu);
        press(Qt::Key_F10, Qt::ShiftModifier);
        const QPoint third = view.visualRect(view.model()->index(298, 0)).center();
        QContextMenuEvent click(QContextMenuEvent::Mouse, third, view.viewport()->mapToGlobal(third));
        QTest::mouseClick(view.viewport(), Qt::RightButton, {}, third);
        QApplication::sendEvent(view.viewport(), &click);
        QCOMPARE(asked.count(), 3);
        QCOMPARE(asked[0][0], 300);
        QCOMPARE(asked[2][0], 298);
        QCOMPARE(view.selectedRow(), 298);

        view.selectRow(-1);
        press(Qt::Key_End);
        QCOMPARE(view.selectedRow(), 300);
        view.selectRow(298);
        view.removeRow(0);
        QCOMPARE(view.selectedRow(), 297);
        QSignalSpy moved(&view, &ListView::selectionMoved);
        view.Clear();
        QCOMPARE(view.selectedRow(), -1);
        QCOMPARE(moved.count(), 1);

        const auto row = [](const char* text, const char* tag) { return ListView::Row{{text}, tag, {}}; };
        view.setRows({row("Sales", "7|1"), row("Receipt", "7|1")}); // of one card
        view.selectRow(1);
        view.refreshRows({row("Payment", "3|2"), row("Sales", "7|1"), row("Receipt", "7|1")});
        QCOMPARE(view.cell(view.selectedRow(), 0), "Receipt");
        view.addRow({"loose\r\nlong"});
        QCOMPARE(sheetOf(view).rows[3].cells[0], "loose long");
    }

    void listsLeaveTheProgram()
    {
        report::ListKeys::install();
        Screen screen;
        screen.setWindowTitle("Dues");
        auto* column = new QVBoxLayout(&screen);
        auto* city = new QLineEdit("Agra");
        auto* view = new ListView;
        column->addWidget(city);
        column->addWidget(view);
        view->setColumns({{"Client", 50}, {"Due", 20, Qt::AlignRight}, {"Since", 30}});
        QClipboard* clipboard = QGuiApplication::clipboard();
        onNextModal<Screen>([&](Screen&) {
            view->setFocus();
            clipboard->setText("before");
            press(Qt::Key_C, Qt::ControlModifier); // no row is there
            press(Qt::Key_Insert, Qt::ControlModifier);
            QCOMPARE(clipboard->text(), "before");
            for (int role = 0; role < Qt::UserRole; ++role)
                view->model()->data(QModelIndex(), role);
            view->addRow({"Asha \"A\", Agra", "-12.50", "09-Feb-2024"});
            view->addRow({"=1+1", "आशा"});
            view->addRow({{"Total", "1.00"}, {}, {{0, {{}, {}, true, {}}}}});
            press(Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(clipboard->text(), QString("Client\tDue\tSince\nAsha \"A\", Agra\t-12.50\t09-Feb-2024\n"
                                                "'=1+1\tआशा\t\nTotal\t1.00\t"));
            view->selectRow(2);
            press(Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(clipboard->text(), "Client\tDue\tSince\nTotal\t1.00\t");
            press(Qt::Key_Up, Qt::ShiftModifier);
            press(Qt::Key_C, Qt::ControlModifier); // one row at a time, where rows are worked on
            QCOMPARE(clipboard->text(), "Client\tDue\tSince\n'=1+1\tआशा\t");
            view->setSeveral(true);
            press(Qt::Key_Up, Qt::ShiftModifier);
            QCOMPARE(view->selectedRow(), 0);
            press(Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(clipboard->text(), "Client\tDue\tSince\nAsha \"A\", Agra\t-12.50\t09-Feb-2024\n"
                                        "'=1+1\tआशा\t");

            const ListSheet sheet = sheetOf(*view);
            QCOMPARE(sheet.criteria, QStringList("Agra"));
            QCOMPARE(QString::fromUtf8(commaSeparated(sheet)),
                     QString("\uFEFFClient,Due,Since\r\n\"Asha \"\"A\"\", Agra\",-12.50,2024-02-09\r\n"
                             "'=1+1,आशा,\r\nTotal,1.00,\r\n"));
            for (int row = 0; row < 60; ++row)
                view->addRow({"Ravi", "5.00"});
            const QStringList pages = readBack(*report::listPaper(sheetOf(*view)));
            QCOMPARE(pages.size(), 2);
            QVERIFY(pages[0].startsWith("Dues Agra Client Due Since Asha \"A\", Agra -12.50 09-Feb-2024"));
            QVERIFY(pages[1].startsWith("Dues Agra Client Due Since Ravi") && pages[1].endsWith("2 of 2"));

            report::setListHeading([] { return report::ListHeading{"Needle & Co", "10-Feb-2024"}; });
            for (const QString& page : readBack(*report::listPaper(sheetOf(*view))))
                QVERIFY2(page.startsWith("Dues Needle & Co \u00B7 10-Feb-2024 Agra Client"),
                         qPrintable(page));
            report::setListHeading({});

            ListSheet wide;
            wide.columns = {{"JOB ID"}, {"Remark"}};
            wide.rows.push_back({{"1/1", QString("Velvet collar ").repeated(40)}, {}});
            QVERIFY(readBack(*report::listPaper(wide))[0].contains("JOB ID Remark 1/1 Velvet"));

            const QTemporaryDir folder;
            Prompts prompts;
            for (const char* path :
                 {"/list.csv", "/LIST.CSV", "/none/list.csv", "/list.xlsx", "/none/list.xlsx"}) {
                const QString file = folder.path() + path;
                const bool works = QFileInfo(QFileInfo(file).path()).isDir();
                prompts.expect(QString(works ? "The list was saved for a spreadsheet:\n\n%1"
                                             : "%1\n\nNo such file or directory")
                                   .arg(file));
                onNextModal<QFileDialog>([&file](QFileDialog& dialog) {
                    auto& name = control<QLineEdit>(dialog, "fileNameEdit");
                    QCOMPARE(name.text(), "Dues.xlsx");
                    dialog.filterSelected(dialog.nameFilters()[1]);
                    QCOMPARE(name.text(), "Dues.csv");
                    QCOMPARE(dialog.defaultSuffix(), "csv");
                    name.setText(file);
                    QMetaObject::invokeMethod(&dialog, "accept");
                });
                city->setFocus(); // wherever the focus is
                press(Qt::Key_F12);
                QCOMPARE(QFileInfo::exists(file), works);
                if (works)
                    QCOMPARE(contents(file).startsWith("PK"), file.endsWith("xlsx"));
            }
            QVERIFY(prompts.allMet());
        });
        screen.showModal();
    }

    void aLongListIsLaidOutBesideTheScreens()
    {
        report::ListKeys::install();
        Prompts prompts;
        Screen screen;
        screen.setWindowTitle("Register");
        auto* column = new QVBoxLayout(&screen);
        auto* view = new ListView;
        column->addWidget(view);
        view->setColumns({{"Line", 30}, {"Client", 70}});
        view->setRows(20'000, [](int row) { return ListView::Row{{QString::number(row), "Asha"}}; });
        onNextModal<Screen>([&](Screen&) {
            view->setFocus();
            prompts.expect("It was given up.");
            onNextModal<ProgressBox>([](ProgressBox& box) { box.reject(); });
            press(Qt::Key_F9);
            onNextModal<report::Preview>([](report::Preview& preview) {
                press(Qt::Key_End);
                const QString page = label(preview, "lblPage");
                QVERIFY2(page.startsWith("Page 4") && page.size() > 13, qPrintable(page));
                QCOMPARE(page.section(' ', 1, 1), page.section(' ', 3, 3));
            });
            press(Qt::Key_F9);
            QVERIFY(view->hasFocus());
            QVERIFY(prompts.allMet());
        });
        screen.showModal();
    }

    /// Figures, balances and days are what they are; codes and telephone numbers keep their letters.
    void aSpreadsheetComputes()
    {
        ListSheet sheet{"JOB Register: 1/2", {"From: 10-Feb-2024", "Client: Asha & Bela"}, {}, {}};
        sheet.columns = {{"Date"}, {"JOB ID"}, {"Mobile"}, {"QTY", true}, {"Balance", true, 14}, {"Remark"}};
        sheet.rows = {{{"10-Feb-2024", "1/2", "09829012345", "3", "650.00 Dr", "=1+1"}, {}},
                      {{"late", "12", "12.50", "007", "None", "<\u0939>"}, {}},
                      {{"", "", "", "-4", "12.50 Cr", ""}, {}},
                      {{"Total", "", "", "1.5", "-637.50", ""}, {true, false, false, true, true}}};
        const QTemporaryDir folder;
        const QString path = folder.filePath("list.xlsx");
        writeFile(path, report::workbook(sheet, "Needle & Co"));
        QCOMPARE(readSheet(path, QFINDTESTDATA("../support/read_sheet.py")),
                 QStringList({"A1|text|Date|bold",
                              "B1|text|JOB ID|bold",
                              "C1|text|Mobile|bold",
                              "D1|text|QTY|bold",
                              "E1|text|Balance (Dr is minus)|bold",
                              "F1|text|Remark|bold",
                              "A2|number dd-mmm-yyyy|45332",
                              "B2|text|1/2",
                              "C2|text|09829012345",
                              "D2|number General|3",
                              "E2|number 0.00|-650",
                              "F2|text|=1+1", //
                              "A3|text|late",
                              "B3|text|12",
                              "C3|text|12.50",
                              "D3|text|007",
                              "E3|number 0.00|0",
                              "F3|text|<\u0939>", //
                              "D4|number General|-4",
                              "E4|number 0.00|12.5", //
                              "A5|text|Total|bold",
                              "D5|number 0.00|1.5|bold",
                              "E5|number 0.00|-637.5|bold",
                              "frozen|1",
                              "width|1|12",
                              "width|2|12",
                              "width|3|12",
                              "width|4|12",
                              "width|5|23",
                              "width|6|12",
                              "title|JOB Register: 1/2",
                              "subject|From: 10-Feb-2024, Client: Asha & Bela",
                              "Company|Needle & Co"}));

        sheet.columns = {{}, {}}; // without titles only an amount is a figure
        sheet.rows = {{{"9829012345", "250.00"}, {}}};
        writeFile(path, report::workbook(sheet));
        QCOMPARE(readSheet(path, QFINDTESTDATA("../support/read_sheet.py")).mid(0, 2),
                 QStringList({"A1|text|9829012345", "B1|number 0.00|250"}));
    }

    void comboKeepsItsTextWhenFilled()
    {
        ComboBox combo;
        QSignalSpy clicked(&combo, &ComboBox::clicked);
        combo.AddItem("Asha");
        QCOMPARE(combo.text(), QString()); // no entry is taken by itself
        combo.setText("Bela Devi");
        combo.AddItems({"Bela", "asha"});
        QCOMPARE(combo.text(), "Bela Devi");
        combo.setListIndex(1);
        combo.setText("Bel");
        QCOMPARE(combo.ListIndex(), -1);
        combo.setListIndex(1); // the same entry again
        QCOMPARE(combo.text(), "Bela");
        QCOMPARE(clicked.count(), 0); // all of that was the program's doing
    }

    void keysTypeIntoTheBoxAndPickEntries()
    {
        inModal<OrderScreen>([](OrderScreen& screen) {
            ComboBox& client = screen.client;
            QSignalSpy clicked(&client, &ComboBox::clicked);
            QTRY_VERIFY(client.isDroppedDown());
            typeText("n#ew"); // the open list leaves the typing to the box
            for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Backspace, Qt::Key_Delete})
                press(key);
            QCOMPARE(client.text(), "ew");
            QCOMPARE(screen.keys, QList<int>({'n', '#', 'e', 'w', 8}));
            client.setText("Asha");
            client.view()->setCurrentIndex(client.model()->index(3, 0)); // the mouse is over it
            press(Qt::Key_Return);
            QCOMPARE(client.text(), "Asha");
            QCOMPARE(clicked.count(), 0); // a text that equals an entry is no choice either

            client.setText(QString());
            press(Qt::Key_F4);
            press(Qt::Key_Down);
            press(Qt::Key_Down);
            QCOMPARE(client.text(), "Bela");
            press(Qt::Key_PageDown);
            press(Qt::Key_Down); // there is none below
            QCOMPARE(clicked.count(), 3);
            press(Qt::Key_Return);
            QVERIFY(!client.isDroppedDown());
            press(Qt::Key_Up); // also while it is closed
            QCOMPARE(client.text(), "bharat");
            press(Qt::Key_F4);
            press(Qt::Key_Escape); // the list first
            QVERIFY(!client.isDroppedDown() && !screen.keys.contains(27));
            press(Qt::Key_F4);
            press(Qt::Key_Tab);
            QVERIFY(!client.isDroppedDown() && screen.remark.hasFocus());
            QCOMPARE(clicked.count(), 4);
            press(Qt::Key_Escape);
            QCOMPARE(screen.keys.last(), 27);
        });
    }

    void mousePicksAnEntryAndItsWheelNone()
    {
        inModal<OrderScreen>([](OrderScreen& screen) {
            QSignalSpy clicked(&screen.client, &ComboBox::clicked);
            QTRY_VERIFY(screen.client.isDroppedDown());
            QAbstractItemView* list = screen.client.view();
            const QPoint entry = list->visualRect(screen.client.model()->index(2, 0)).center();
            QTest::mouseMove(list->viewport(), entry);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, entry);
            QTRY_COMPARE(clicked.count(), 1);
            QCOMPARE(screen.client.text(), "bharat");
            QVERIFY(!screen.client.isDroppedDown());
            const QDate before = screen.date.value();
            for (QWidget* each : std::initializer_list<QWidget*>{&screen.client, &screen.date}) {
                QWheelEvent turn({5, 5}, each->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, {}, false);
                QCoreApplication::sendEvent(each, &turn);
            }
            QVERIFY(screen.client.ListIndex() == 2 && screen.date.value() == before);
            // Clicking into the box opens the list, and it stays open when the button comes up.
            screen.remark.setFocus();
            QTest::mouseClick(screen.client.lineEdit(), Qt::LeftButton);
            QTRY_VERIFY(screen.client.isDroppedDown());
            QCOMPARE(screen.client.selLength(), 6);
            // The click that closes it reaches what it hits.
            QWidget* popup = list->window();
            popup->move(popup->x(), popup->y() + 300); // off the field
            QTest::mouseClick(popup, Qt::LeftButton, {},
                              popup->mapFromGlobal(screen.remark.mapToGlobal(QPoint(9, 9))));
            QTRY_VERIFY(screen.remark.hasFocus());
            QVERIFY(!screen.client.isDroppedDown());
        });
    }

    /// Keys and the mouse where there is nothing to choose.
    void emptyListsTakeEveryKey()
    {
        ComboBox combo;
        ComboBox fixed;
        fixed.setEditable(false);
        ListBox box;
        ListView view;
        view.setColumns({{"Client", 50}, {"City", 50}});
        BarChart chart;
        chart.setSeries({{"Due", &palette::accent}}, BarChart::Bars::Stacked);
        QSignalSpy clicked(&combo, &ComboBox::clicked);
        QSignalSpy opened(&chart, &BarChart::opened);
        for (QWidget* each : std::initializer_list<QWidget*>{&combo, &fixed, &box, &view, &chart}) {
            each->resize(300, 200);
            each->show();
            QVERIFY(QTest::qWaitForWindowActive(each));
            each->setFocus();
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home,
                                      Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_F4, Qt::Key_Down,
                                      Qt::Key_Up, Qt::Key_Return, Qt::Key_Space, Qt::Key_A})
                press(key);
            QTest::mouseClick(each, Qt::LeftButton);
            combo.closeUp();
            fixed.closeUp();
        }
        QCOMPARE(clicked.count() + opened.count(), 0);
    }
};

QTEST_MAIN(tst_lists)
#include "tst_lists.moc"
