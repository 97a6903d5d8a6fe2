#include "platform/forms/DatePicker.h"
#include "platform/forms/Screen.h"
#include "platform/values/Dates.h"
#include "support/Fields.h"
#include "support/Modal.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>
#include <map>

using namespace forms;

/// A field and a date box below it; keeps the character keys that reach the screen.
class OrderScreen : public Screen
{
    Q_OBJECT
public:
    OrderScreen()
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(&remark);
        column->addWidget(&date);
    }

    QLineEdit remark;
    DatePicker date;
    QList<int> keys;

protected:
    void Form_KeyPress(int& key) override { keys += key; }
};

class tst_DatePicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void datePicker()
    {
        inModal<OrderScreen>([](OrderScreen& screen) {
            DatePicker& picker = screen.date;
            QSignalSpy changed(&picker, &DatePicker::changed);
            const QDate stood(2024, 9, 30);
            const int middle = picker.height() / 2;
            const auto clickPart = [&](int part) { // of 30-Sep-2024
                const int x = picker.fontMetrics().horizontalAdvance(picker.text().left(part)) + 12;
                QTest::mouseClick(&picker, Qt::LeftButton, {}, {x, middle});
            };
            const std::tuple<int, const char*, QDate> entries[] = {
                {-1, "31032024", {2024, 3, 31}}, {0, "31032024", {2024, 3, 31}},
                {3, "10-3-2025", {2025, 3, 10}}, {7, "31032024", {2024, 3, 31}},
                {3, "mar", {2024, 3, 30}},       {7, "25", {2025, 9, 30}},
                {-1, "31-02-2024", stood},       {-1, "", stood},
            };
            for (const auto& [part, typed, date] : entries) {
                screen.remark.setFocus();
                picker.setValue(stood);
                QCOMPARE(picker.text(), "30-Sep-2024");
                picker.setFocus();
                if (part >= 0)
                    clickPart(part);
                changed.clear();
                press(Qt::Key_Delete);
                typeText(typed);
                QCOMPARE(changed.count(), 0); // nothing changes half-way
                press(Qt::Key_Tab);
                QVERIFY(!picker.hasFocus());
                QCOMPARE(picker.value(), date);
                QCOMPARE(picker.text(), values::Format(date, "dd-MMM-yyyy"));
                QCOMPARE(changed.count(), date == stood ? 0 : 1);
            }

            picker.setFocus();
            clickPart(3);
            press(Qt::Key_Down);
            press(Qt::Key_Right);
            press(Qt::Key_Up);
            QCOMPARE(picker.value(), QDate(2025, 8, 30));
            picker.selectAll();
            typeText("1.9");
            QCOMPARE(picker.text(), "1.9");
            QCOMPARE(picker.value(), QDate(2025, 9, 1)); // for a screen that asks half-way
            for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason})
                awayAndBack(picker, reason);
            typeText(".25");
            QCOMPARE(picker.text(), "1.9.25");
            press(Qt::Key_Return);
            QCOMPARE(screen.keys.last(), 13);
            QCOMPARE(picker.text(), "01-Sep-2025");
            typeText("5"); // behind the date
            press(Qt::Key_Escape);
            QCOMPARE(picker.value(), QDate(2025, 9, 1));
        });
    }

    /// Keys in a box where 25-Nov-2026 stands: L, R, U, D are arrows, E Enter, X Delete, 0 to 2 in brackets a
    /// click on that part.
    void datesByKeys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QDate>("date");
        const std::pair<const char*, QDate> rows[] = {
            {"U", {2026, 11, 26}},
            {"RD", {2026, 10, 25}},
            {"25-11U", {2026, 12, 25}}, // the part at the caret, not the year
            {"25-11LLLU", {2026, 11, 26}},
            {"251126D", {2025, 11, 25}},
            {"26-11-05U", {2026, 11, 6}}, // the day is the last there
            {"7D", {2026, 11, 6}},
            {"25-11EU", {2026, 11, 26}},
            {"99U", {2026, 11, 25}}, // no date: nothing steps
            {"[0]5R12", {2026, 12, 5}},
            {"[0]5R12U", {2027, 1, 5}},
            {"[0]31R12", {2026, 12, 31}}, // 31-Nov on the way is no fault
            {"[2]27L12", {2027, 12, 25}},
            {"[2]27L12L5", {2027, 12, 5}},
            {"[0]5[1]mar", {2026, 3, 5}},
            {"[1]12[0]7", {2026, 12, 7}},
            {"[0]45R12", {2026, 12, 25}}, // no such day: that part stays
            {"[1]xR27", {2027, 11, 25}},
            {"[2]99R", {1999, 11, 25}},
            {"[0]5L1", {2026, 11, 1}}, // none is left of the day
            {"[1]X12", {2026, 12, 25}},
            {"[0]101226", {2026, 12, 10}}, // a whole date after all
            {"[0]5R1012", {2026, 12, 10}},
            {"25-11-27LLLL", {2027, 11, 25}}, // the caret goes through what is typed freely
            {"26E", {2026, 11, 26}},
            {"26E27E", {2026, 11, 27}}, // Enter selects what it took
        };
        for (const auto& [keys, date] : rows)
            QTest::newRow(keys) << QString(keys) << date;
    }
    void datesByKeys()
    {
        QFETCH(const QString, keys);
        inModal<OrderScreen>([&](OrderScreen& screen) {
            DatePicker& picker = screen.date;
            picker.setValue({2026, 11, 25});
            picker.setFocus();
            const std::map<QChar, Qt::Key> named = {{'L', Qt::Key_Left},   {'R', Qt::Key_Right},
                                                    {'U', Qt::Key_Up},     {'D', Qt::Key_Down},
                                                    {'E', Qt::Key_Return}, {'X', Qt::Key_Delete}};
            for (qsizetype i = 0; i < keys.size(); ++i) {
                if (keys[i] == '[') {
                    const qsizetype before = keys[i + 1].digitValue() == 0 ? 0
                                             : keys[i + 1].digitValue() == 1
                                                 ? picker.text().indexOf('-') + 1
                                                 : picker.text().lastIndexOf('-') + 1;
                    const int x = picker.fontMetrics().horizontalAdvance(picker.text().left(before)) + 12;
                    QTest::mouseClick(&picker, Qt::LeftButton, {}, {x, picker.height() / 2});
                    i += 2;
                } else if (const auto key = named.find(keys[i]); key != named.end()) {
                    press(key->second);
                } else {
                    typeText(keys.mid(i, 1));
                }
            }
            screen.remark.setFocus();
            QFETCH(const QDate, date);
            QCOMPARE(picker.value(), date);
        });
    }

    /// From which day a box looks, its quiet mark, and a box that can be empty.
    void datesLookTheirWay()
    {
        inModal<OrderScreen>([](OrderScreen& screen) {
            DatePicker& picker = screen.date;
            DatePicker ordered;
            const auto type = [&](const QString& text) {
                picker.setFocus();
                typeText(text);
                screen.remark.setFocus();
                return picker.value();
            };
            ordered.setValue({2026, 11, 25});
            picker.setValue({2026, 12, 5});
            picker.look(values::Looks::Ahead, &ordered);
            QCOMPARE(type("15/2"), QDate(2027, 2, 15));
            QCOMPARE(type("28"), QDate(2026, 11, 28));
            QVERIFY(!picker.isEarly());
            QCOMPARE(type("24-11-26"), QDate(2026, 11, 24)); // a whole date stands
            QVERIFY(picker.property("early").toBool());
            ordered.setValue({2026, 11, 20});
            QVERIFY(!picker.property("early").toBool());
            picker.look(values::Looks::Back, QDate(2026, 11, 25));
            QCOMPARE(type("28"), QDate(2026, 10, 28));
            picker.setFocus();
            press(Qt::Key_Delete);
            screen.remark.setFocus();
            QCOMPARE(picker.value(), QDate(2026, 10, 28)); // it cannot be empty

            picker.setMayBeEmpty(true);
            picker.look(values::Looks::Birth, QDate(2026, 11, 25));
            QSignalSpy changed(&picker, &DatePicker::changed);
            picker.setFocus();
            press(Qt::Key_Delete);
            QVERIFY(!picker.value().isValid() && picker.text().isEmpty());
            QCOMPARE(changed.count(), 1);
            for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Delete, Qt::Key_Backspace})
                press(key);
            QTest::mouseClick(&picker, Qt::LeftButton, {}, {12, picker.height() / 2});
            typeText("no date");
            screen.remark.setFocus();
            QVERIFY(picker.text().isEmpty() && !picker.value().isValid());
            picker.setFocus();
            press(Qt::Key_Up); // begins at the day from which it looks
            QCOMPARE(picker.value(), QDate(2026, 11, 25));
            picker.selectAll();
            press(Qt::Key_Backspace);
            screen.remark.setFocus();
            QVERIFY(!picker.value().isValid());
            QCOMPARE(type("17-5-85"), QDate(1985, 5, 17));
        });
    }

    void calendar()
    {
        inModal<OrderScreen>([](OrderScreen& screen) {
            DatePicker& picker = screen.date;
            QSignalSpy closed(&picker, &DatePicker::calendarClosed);
            picker.setValue({2025, 9, 1});
            picker.setFocus();
            for (const auto& [key, end, date] :
                 {std::tuple(Qt::Key_F4, Qt::Key_Escape, QDate(2025, 9, 1)),
                  std::tuple(Qt::Key_Down, Qt::Key_Return, QDate(2025, 9, 8)),
                  std::tuple(Qt::Key_Space, Qt::Key_Return, QDate(2025, 9, 15))}) {
                if (key == Qt::Key_Space) // stands for the mouse
                    QTest::mouseClick(&picker, Qt::LeftButton, {}, {picker.width() - 8, picker.height() / 2});
                else
                    press(key, key == Qt::Key_Down ? Qt::AltModifier : Qt::NoModifier);
                auto* month = picker.findChild<QCalendarWidget*>();
                QVERIFY(month && month->isVisible());
                auto* days = month->findChild<QTableView*>(); // the last week is whole in sight
                const QModelIndex last = days->model()->index(days->model()->rowCount() - 1, 6);
                QVERIFY(days->viewport()->rect().contains(days->visualRect(last)));
                press(Qt::Key_Down);
                press(end);
                QVERIFY(!month->isVisible() && screen.isVisible() && picker.hasFocus());
                QCOMPARE(picker.value(), date);
            }
            QCOMPARE(closed.count(), 3);
        });
    }
};

QTEST_MAIN(tst_DatePicker)
#include "tst_DatePicker.moc"
