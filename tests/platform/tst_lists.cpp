#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Screen.h"
#include "support/KeysTo.h"
#include "support/Modal.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace forms;

namespace {

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
        client.AddItems({QStringLiteral("Asha"), QStringLiteral("Bela"), QStringLiteral("bharat"),
                         QStringLiteral("Chand")});
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

} // namespace

class tst_lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listBoxSelection()
    {
        ListBox list;
        list.AddItems({QStringLiteral("Ajay"), QStringLiteral("anil")});
        list.AddItem(QStringLiteral("Binod"));
        QCOMPARE(list.Text(), QString());
        QSignalSpy moved(&list, &ListBox::indexChanged);
        list.setListIndex(1);
        QCOMPARE(list.Text(), QStringLiteral("anil"));
        list.setListIndex(7);
        QCOMPARE(list.ListIndex(), -1);
        list.setListIndex(2);
        list.Clear();
        QCOMPARE(list.ListIndex(), -1);
        QCOMPARE(moved.count(), 4);
    }

    void focusAloneSelectsNoEntry()
    {
        ListBox list;
        list.AddItem(QStringLiteral("Ajay"));
        list.show();
        list.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QCOMPARE(list.ListIndex(), -1);
        QTest::keyClick(&list, Qt::Key_A);
        QCOMPARE(list.ListIndex(), 0);
    }

    void prefixSearch()
    {
        ListBox list;
        list.AddItems({QStringLiteral("Ajay"), QStringLiteral("anil"), QStringLiteral("Binod")});
        QCOMPARE(list.findString(QStringLiteral("a"), -1), 0);
        QCOMPARE(list.findString(QStringLiteral("a"), 0), 1);
        QCOMPARE(list.findString(QStringLiteral("A"), 1), 0); // wraps
        QCOMPARE(list.findString(QStringLiteral("bin"), 2), 2);
        QCOMPARE(list.findString(QStringLiteral("a"), 99), 0);
        QCOMPARE(list.findString(QStringLiteral("jay")), -1);
        QCOMPARE(list.findString(QString()), -1);
        QCOMPARE(ListBox().findString(QStringLiteral("a")), -1);
    }

    void comboKeepsItsTextWhenFilled()
    {
        ComboBox combo;
        QSignalSpy changed(&combo, &ComboBox::changed);
        QSignalSpy clicked(&combo, &ComboBox::clicked);
        combo.AddItem(QStringLiteral("Asha"));
        QCOMPARE(combo.text(), QString()); // no entry is taken by itself
        QCOMPARE(combo.ListIndex(), -1);
        combo.setText(QStringLiteral("Bela Devi"));
        combo.AddItems({QStringLiteral("Bela"), QStringLiteral("asha")});
        QCOMPARE(combo.text(), QStringLiteral("Bela Devi"));
        QCOMPARE(combo.ListIndex(), -1);
        QCOMPARE(changed.count(), 1);

        combo.setListIndex(1);
        combo.AddItem(QStringLiteral("Chand"));
        QCOMPARE(combo.ListIndex(), 1);
        combo.setText(QStringLiteral("Bel"));
        QCOMPARE(combo.ListIndex(), -1);
        combo.setListIndex(1); // the same entry again
        QCOMPARE(combo.text(), QStringLiteral("Bela"));
        combo.select(1, 2);
        QCOMPARE(combo.selStart(), 1);
        QCOMPARE(combo.selLength(), 2);
        combo.Clear();
        QCOMPARE(combo.text(), QString());
        QCOMPARE(combo.ListCount(), 0);
        QCOMPARE(clicked.count(), 0); // all of that was the program's doing
    }

    void openListLeavesTheTypingToTheBox()
    {
        OrderScreen screen;
        onNextModal<OrderScreen>([&](OrderScreen&) {
            QTRY_VERIFY(screen.client.isDroppedDown());
            typeText(QStringLiteral("n#ew"));
            QCOMPARE(screen.client.text(), QStringLiteral("new"));
            QVERIFY(screen.client.isDroppedDown());
            press(Qt::Key_Home);
            press(Qt::Key_Backspace);
            press(Qt::Key_Delete);
            QCOMPARE(screen.client.text(), QStringLiteral("ew"));
            QCOMPARE(screen.keys, QList<int>({'n', '#', 'e', 'w', 8}));

            press(Qt::Key_Escape); // the list first
            QVERIFY(!screen.client.isDroppedDown());
            QVERIFY(!screen.keys.contains(27));
            press(Qt::Key_Escape);
            QCOMPARE(screen.keys.last(), 27);
        });
        screen.showModal();
    }

    void arrowKeysWalkTheList()
    {
        OrderScreen screen;
        QSignalSpy clicked(&screen.client, &ComboBox::clicked);
        onNextModal<OrderScreen>([&](OrderScreen&) {
            QTRY_VERIFY(screen.client.isDroppedDown());
            press(Qt::Key_Down);
            press(Qt::Key_Down);
            QCOMPARE(screen.client.text(), QStringLiteral("Bela"));
            QCOMPARE(screen.client.view()->currentIndex().row(), 1);
            press(Qt::Key_PageDown);
            QCOMPARE(screen.client.text(), QStringLiteral("Chand"));
            QCOMPARE(clicked.count(), 3);
            press(Qt::Key_Down);
            QCOMPARE(clicked.count(), 3); // there is none below
            press(Qt::Key_Return);
            QVERIFY(!screen.client.isDroppedDown());
            QCOMPARE(screen.client.text(), QStringLiteral("Chand"));
            QCOMPARE(screen.keys.last(), 13);
            press(Qt::Key_Up); // also while it is closed
            QCOMPARE(screen.client.text(), QStringLiteral("bharat"));
            press(Qt::Key_F4);
            QVERIFY(screen.client.isDroppedDown());
            press(Qt::Key_Tab);
            QVERIFY(!screen.client.isDroppedDown());
            QVERIFY(screen.remark.hasFocus());
            QCOMPARE(clicked.count(), 4);
        });
        screen.showModal();
    }

    void enterTakesNoEntryThatWasOnlyShown()
    {
        OrderScreen screen;
        QSignalSpy clicked(&screen.client, &ComboBox::clicked);
        onNextModal<OrderScreen>([&](OrderScreen&) {
            QTRY_VERIFY(screen.client.isDroppedDown());
            typeText(QStringLiteral("Asha"));
            screen.client.view()->setCurrentIndex(
                screen.client.model()->index(3, 0)); // the mouse stands over it
            press(Qt::Key_Return);
            QCOMPARE(screen.client.text(), QStringLiteral("Asha"));
            screen.remark.setFocus(); // a text that equals an entry is no choice either
            QCOMPARE(clicked.count(), 0);
        });
        screen.showModal();
    }

    void mousePicksAnEntry()
    {
        OrderScreen screen;
        QSignalSpy clicked(&screen.client, &ComboBox::clicked);
        onNextModal<OrderScreen>([&](OrderScreen&) {
            QTRY_VERIFY(screen.client.isDroppedDown());
            QAbstractItemView* list = screen.client.view();
            const QRect entry = list->visualRect(screen.client.model()->index(2, 0));
            QTest::mouseMove(list->viewport(), entry.center());
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, entry.center());
            QTRY_COMPARE(clicked.count(), 1);
            QCOMPARE(screen.client.text(), QStringLiteral("bharat"));
            QCOMPARE(screen.client.selLength(), 6);
            QVERIFY(!screen.client.isDroppedDown());

            // Clicking into the box opens the list, and it stays open when the button comes up.
            screen.remark.setFocus();
            QTest::mouseClick(screen.client.lineEdit(), Qt::LeftButton);
            QTRY_VERIFY(screen.client.isDroppedDown());
            QCOMPARE(screen.client.selLength(), 6);
        });
        screen.showModal();
    }

    void wheelPassesOver()
    {
        OrderScreen screen;
        screen.client.setListIndex(1);
        screen.date.setValue({2024, 2, 10});
        onNextModal<OrderScreen>([&](OrderScreen&) {
            for (QWidget* each : std::initializer_list<QWidget*>{&screen.client, &screen.date}) {
                QWheelEvent turn({5, 5}, each->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, {}, false);
                QCoreApplication::sendEvent(each, &turn);
            }
            QCOMPARE(screen.client.ListIndex(), 1);
            QCOMPARE(screen.date.value(), QDate(2024, 2, 10));
        });
        screen.showModal();
    }

    void listViewRows()
    {
        ListView list;
        list.setColumns({{QStringLiteral("Client"), 60}, {QStringLiteral("Amount"), 40, Qt::AlignRight}});
        list.addRow({QStringLiteral("Asha"), QStringLiteral("10.00")}, QStringLiteral("7|1"));
        list.addRow({QStringLiteral("Total")});
        list.setCell(1, 1, QStringLiteral("10.00"));
        list.setRow(0, {QStringLiteral("Bela"), QStringLiteral("12.00")});
        QCOMPARE(list.cell(1, 1), QStringLiteral("10.00"));
        QCOMPARE(list.cell(0, 0), QStringLiteral("Bela"));
        QCOMPARE(list.tag(0), QStringLiteral("7|1"));
        QVERIFY(list.model()->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>() &
                Qt::AlignRight);

        QSignalSpy moved(&list, &ListView::selectionMoved);
        list.selectRow(1);
        list.removeRow(0);
        QCOMPARE(list.selectedRow(), 0);
        QCOMPARE(list.tag(0), QString());
        moved.clear();
        list.Clear();
        QCOMPARE(list.selectedRow(), -1);
        QCOMPARE(moved.count(), 1);
    }

    void listViewColumnsFollowTheWidth()
    {
        ListView list;
        list.setColumns({{QStringLiteral("A"), 25}, {QStringLiteral("B"), 75}});
        list.resize(400, 300);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        list.resize(800, 300);
        QTRY_COMPARE(list.header()->sectionSize(0), list.viewport()->width() / 4);
        QCOMPARE(list.header()->sectionSize(1), list.viewport()->width() * 3 / 4);
    }

    void listViewWithThirtyThousandRows()
    {
        ListView list;
        list.setColumns({{QStringLiteral("Client"), 50}, {QStringLiteral("Item"), 50}});
        list.show();
        QElapsedTimer time;
        time.start();
        for (int i = 0; i < 30000; ++i)
            list.addRow({QStringLiteral("Client %1").arg(i), QStringLiteral("Shirt")}, QString::number(i));
        list.selectRow(29999);
        list.grab();
        QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
    }

    void datePicker()
    {
        OrderScreen screen;
        DatePicker& picker = screen.date;
        picker.setValue({2024, 9, 30});
        QCOMPARE(picker.text(), QStringLiteral("30-Sep-2024"));
        QSignalSpy changed(&picker, &DatePicker::changed);
        QSignalSpy closed(&picker, &DatePicker::calendarClosed);
        onNextModal<OrderScreen>([&](OrderScreen&) {
            picker.setFocus();
            picker.setSelectedSection(QDateTimeEdit::MonthSection);
            press(Qt::Key_2); // February: the day goes back to its last
            QCOMPARE(picker.value(), QDate(2024, 2, 29));
            QCOMPARE(picker.currentSection(), QDateTimeEdit::YearSection);
            picker.setSelectedSection(QDateTimeEdit::MonthSection);
            typeText(QStringLiteral("11"));
            QCOMPARE(picker.value(), QDate(2024, 11, 29));
            picker.setSelectedSection(QDateTimeEdit::DaySection);
            press(Qt::Key_Up);
            QCOMPARE(picker.value(), QDate(2024, 11, 30));
            QVERIFY(changed.count() >= 3);

            screen.keys.clear();
            press(Qt::Key_Return);
            QCOMPARE(screen.keys, QList<int>({13}));

            QTest::mouseClick(&picker, Qt::LeftButton, {}, {picker.width() - 8, picker.height() / 2});
            QVERIFY(picker.calendarWidget()->isVisible());
            press(Qt::Key_Escape);
            QVERIFY(!picker.calendarWidget()->isVisible());
            QCOMPARE(closed.count(), 1);
            QVERIFY(screen.focusWidget() == &picker);
        });
        screen.showModal();
    }
};

QTEST_MAIN(tst_lists)
#include "tst_lists.moc"
