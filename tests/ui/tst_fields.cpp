#include "platform/forms/Screen.h"
#include "support/Fields.h"
#include "support/Modal.h"
#include "ui/DateDiff.h"
#include "ui/ModOtherFUN.h"
#include "ui/NumKey.h"
#include "ui/swComboBox.h"
#include "ui/swTextBoxMultiLine.h"

#include <QTest>
#include <QVBoxLayout>

/// A combo of clients that completes itself, and fields of each kind.
class EntryScreen : public forms::Screen
{
    Q_OBJECT
public:
    EntryScreen()
    {
        auto* column = new QVBoxLayout(this);
        for (QWidget* each : std::initializer_list<QWidget*>{&name, &fee, &note, &client, &search})
            column->addWidget(each);
        fee.setBoxType(1);
        client.AddItems({"Ajay", "Anil Kumar", "anil Verma", "Bela Devi", "Bela"});
        on(&name, &swTextBox::KeyPress, [](int& key) {
            if (key == '*')
                key = 0;
        });
        onKeyPress(&client, [this](int& key) {
            key = AutoSearchCombo(client, key);
            passed += key;
        });
    }

    swTextBox name;
    swTextBox fee;
    swTextBoxMultiLine note;
    swComboBox client;
    QLineEdit search;
    QList<int> passed;

protected:
    void Form_KeyDown(int& key, Qt::KeyboardModifiers) override { key = ArrowsAsTab(key); }
};

class tst_fields : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { QCOMPARE(modal::pending(), 0); }

    void namesMoneyAndNotes()
    {
        inModal<EntryScreen>([](EntryScreen& screen) {
            typeText("mohan mc*Donald");
            QCOMPARE(screen.name.Text(), "Mohan McDonald");
            press(Qt::Key_Return);
            press(Qt::Key_PageUp);
            typeText("\u00e9"); // what replaces the whole name begins it
            QCOMPARE(screen.name.Text(), "\u00c9");
            screen.name.setAutoTab(false);
            press(Qt::Key_Return);
            QVERIFY(screen.name.hasFocus());
            press(Qt::Key_PageDown);
            for (const auto& [typed, shown] : {std::pair("1x2.5.5", "12.55"), std::pair(".5", "0.50")}) {
                screen.fee.setFocus();
                typeText(typed);
                press(Qt::Key_Return);
                QCOMPARE(screen.fee.Text(), shown);
            }
            screen.fee.QLineEdit::setText("twelve"); // as pasted
            screen.fee.setFocus();
            press(Qt::Key_Return);
            QCOMPARE(screen.fee.Text(), "0.00");
            typeFields({"two "});
            typeText("lines");
            QCOMPARE(screen.note.Text(), "two \r\nlines");
            press(Qt::Key_Tab);
            QVERIFY(screen.client.hasFocus());
        });
        for (const int passes : {int('0'), int('9'), 8, 12})
            QCOMPARE(NumKey("1.2", passes), passes);
        for (const int dropped : {int('.'), int('-'), int('e'), int(','), 13, 0x966})
            QCOMPARE(NumKey("1.2", dropped), 0);
    }

    void comboCompletesNames()
    {
        inModal<EntryScreen>([](EntryScreen& screen) {
            swComboBox& client = screen.client;
            const auto typed = [&client](const char* text) {
                typeText(text);
                return client.text().insert(client.selStart(), '|');
            };
            client.setFocus();
            QCOMPARE(typed("a"), "A|jay");
            QVERIFY(client.isDroppedDown());
            QCOMPARE(typed("n"), "An|il Kumar");
            QCOMPARE(typed("z"), "An|il Kumar"); // no such name: a beep, and nothing else
            QCOMPARE(typed("il v"), "anil V|erma");
            QCOMPARE(client.ListIndex(), 2);
            press(Qt::Key_Backspace); // cuts at the selection
            QCOMPARE(client.text(), "anil V");
            press(Qt::Key_Backspace);
            QCOMPARE(typed("k"), "Anil K|umar");
            client.select(0, 10); // all of it selected: Backspace takes the last letter
            press(Qt::Key_Backspace);
            QCOMPARE(client.text(), "Anil Kuma");
            QCOMPARE(screen.passed.count(0), screen.passed.size()); // the box itself gets no key
            press(Qt::Key_Return);
            QCOMPARE(screen.passed.last(), 13);
            press(Qt::Key_Tab); // no character, so it isn't swallowed
            QVERIFY(screen.search.hasFocus());

            for (const auto& [text, taken, index] : {std::tuple("ANIL V", "anil Verma", 2),
                                                     std::tuple("bela", "Bela", 4), // the whole name first
                                                     std::tuple("Zoya", "Zoya", -1)}) {
                client.setText(text);
                QCOMPARE(ComboFindIndex(client), index);
                QCOMPARE(client.text(), taken);
                client.setText(text);
                ComboSyncIndex(client);
                QCOMPARE(client.text(), taken);
                QCOMPARE(client.ListIndex(), index);
            }
        });
    }

    /// Another window in front for a while is no new focus.
    void focusThatComesBack()
    {
        inModal<EntryScreen>([](EntryScreen& screen) {
            screen.name.setFocus();
            typeText("moh");
            awayAndBack(screen.name);
            typeText("an");
            QCOMPARE(screen.name.Text(), "Mohan");
            screen.note.setText("two words");
            screen.note.setFocus();
            press(Qt::Key_Home);
            awayAndBack(screen.note);
            typeText("a");
            QCOMPARE(screen.note.Text(), "atwo words");
            screen.client.setFocus();
            typeText("ani");
            awayAndBack(screen.client);
            typeText("l");
            QCOMPARE(screen.client.selStart(), 4);
            screen.fee.setFocus();
            typeText("12");
            awayAndBack(screen.fee);
            typeText("5");
            QCOMPARE(screen.fee.Text(), "125");
        });
    }

    void spanInWords()
    {
        const std::tuple<QDate, QDate, const char*> rows[] = {
            {{2024, 2, 10}, {2024, 2, 10}, "0 days"},
            {{2024, 2, 11}, {2024, 2, 10}, ""},
            {{2024, 2, 10}, {2024, 2, 11}, "1 day"},
            {{2000, 3, 10}, {2001, 3, 9}, "11 months, 27 days"},
            {{2000, 3, 10}, {2001, 3, 10}, "1 year, 0 months, 0 days"},
            {{2009, 12, 31}, {2024, 2, 10}, "14 years, 1 month, 10 days"},
            {{2024, 2, 29}, {2025, 2, 28}, "1 year, 0 months, 0 days"},
            {{2023, 1, 31}, {2023, 3, 30}, "1 month, 30 days"}, // from a day that the month before lacks
        };
        for (const auto& [from, to, words] : rows)
            QCOMPARE(DateDiffText(from, to, false, true), words);
    }
};

QTEST_MAIN(tst_fields)
#include "tst_fields.moc"
