#include "platform/forms/ComboBox.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/Screen.h"
#include "support/KeysTo.h"
#include "support/Modal.h"
#include "ui/ModOtherFUN.h"
#include "ui/cSendKeys.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// Three fields, a combo of clients that completes itself, and a list with its search box.
class SearchScreen : public forms::Screen
{
    Q_OBJECT
public:
    SearchScreen()
    {
        auto* column = new QVBoxLayout(this);
        for (QWidget* each : std::initializer_list<QWidget*>{&client, &remark, &search, &list})
            column->addWidget(each);
        client.AddItems({QStringLiteral("Ajay"), QStringLiteral("Anil Kumar"), QStringLiteral("anil Verma"),
                         QStringLiteral("Bela")});
        list.AddItems({QStringLiteral("Coat"), QStringLiteral("Kurta"), QStringLiteral("Shirt")});
        onKeyPress(&client, [this](int& key) {
            key = AutoSearchCombo(client, key);
            passed += key;
        });
        onKeyDown(&search, [this](int& key) { ListSearch(list, key); });
    }

    forms::ComboBox client;
    QLineEdit remark;
    QLineEdit search;
    forms::ListBox list;
    QList<int> passed;
    bool enterMoves = false;
    QList<QPair<int, Qt::KeyboardModifiers>> keys;

protected:
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override
    {
        keys += qMakePair(key, modifiers);
        if (enterMoves)
            key = ArrowsAsTab(key);
    }
    void Form_KeyPress(int& key) override
    {
        if (enterMoves)
            key = EnterAsTab(key);
    }
};

void inScreen(const std::function<void(SearchScreen&)>& act)
{
    SearchScreen screen;
    onNextModal<SearchScreen>([&](SearchScreen& shown) { act(shown); });
    screen.showModal();
}

} // namespace

class tst_helpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(modal::pending(), 0); }

    void comboCompletesNames()
    {
        inScreen([](SearchScreen& screen) {
            typeText(QStringLiteral("a"));
            QCOMPARE(screen.client.text(), QStringLiteral("Ajay"));
            QCOMPARE(screen.client.selStart(), 1);
            QCOMPARE(screen.client.selLength(), 3);
            QVERIFY(screen.client.isDroppedDown());
            typeText(QStringLiteral("n"));
            QCOMPARE(screen.client.text(), QStringLiteral("Anil Kumar"));
            QCOMPARE(screen.client.selStart(), 2);
            typeText(QStringLiteral("z")); // no such name: a beep, and nothing else
            QCOMPARE(screen.client.text(), QStringLiteral("Anil Kumar"));
            QCOMPARE(screen.client.selStart(), 2);
            typeText(QStringLiteral("il v"));
            QCOMPARE(screen.client.text(), QStringLiteral("anil Verma"));
            QCOMPARE(screen.client.ListIndex(), 2);

            press(Qt::Key_Backspace); // cuts at the selection
            QCOMPARE(screen.client.text(), QStringLiteral("anil V"));
            press(Qt::Key_Backspace);
            QCOMPARE(screen.client.text(), QStringLiteral("anil "));
            QCOMPARE(screen.client.selLength(), 0);
            QCOMPARE(screen.client.selStart(), 5);
            typeText(QStringLiteral("k"));
            QCOMPARE(screen.client.text(), QStringLiteral("Anil Kumar"));

            screen.client.select(0, 10); // all of it selected: Backspace takes the last letter
            press(Qt::Key_Backspace);
            QCOMPARE(screen.client.text(), QStringLiteral("Anil Kuma"));
            typeText(QStringLiteral("r"));

            QVERIFY(!screen.passed.contains('k'));
            press(Qt::Key_Return);
            QCOMPARE(screen.passed.last(), 13);
            QCOMPARE(screen.client.selLength(), 0);
            QCOMPARE(screen.client.selStart(), 10);
            QVERIFY(!screen.client.testAttribute(Qt::WA_SetCursor));
            press(Qt::Key_Tab); // no character, so it isn't swallowed
            QVERIFY(screen.remark.hasFocus());
        });
    }

    void comboFindsItsEntry()
    {
        inScreen([](SearchScreen& screen) {
            screen.client.setText(QStringLiteral("ANIL V"));
            QCOMPARE(ComboFindIndex(screen.client), 2);
            ComboSyncIndex(screen.client);
            QCOMPARE(screen.client.text(), QStringLiteral("anil Verma"));
            QCOMPARE(screen.client.selLength(), 10);
            screen.client.setText(QStringLiteral("Zoya"));
            ComboSyncIndex(screen.client);
            QCOMPARE(screen.client.ListIndex(), -1);
            QCOMPARE(screen.client.text(), QStringLiteral("Zoya"));
            screen.client.setText(QString());
            QCOMPARE(ComboFindIndex(screen.client), -1);
            ComboDropDown(screen.client);
            QVERIFY(screen.client.isDroppedDown());
        });
    }

    void listFollowsTheSearchBox()
    {
        inScreen([](SearchScreen& screen) {
            screen.search.setFocus();
            typeText(QStringLiteral("x"));
            press(Qt::Key_Up);
            QCOMPARE(screen.list.ListIndex(), -1);
            press(Qt::Key_Down);
            press(Qt::Key_Down);
            QCOMPARE(screen.list.Text(), QStringLiteral("Kurta"));
            press(Qt::Key_End);
            press(Qt::Key_Down);
            QCOMPARE(screen.list.Text(), QStringLiteral("Shirt"));
            press(Qt::Key_Home);
            press(Qt::Key_Up);
            QCOMPARE(screen.list.Text(), QStringLiteral("Coat"));
            QVERIFY(screen.search.hasFocus());
            QCOMPARE(screen.search.cursorPosition(), 0); // Home reached the box too

            screen.list.Clear();
            int key = forms::key::End;
            ListSearch(screen.list, key);
            QCOMPARE(key, forms::key::End);
            QCOMPARE(screen.list.ListIndex(), -1);
        });
    }

    void keysMoveBetweenFields()
    {
        QCOMPARE(EnterAsTab('a'), int('a'));
        QCOMPARE(ArrowsAsTab(forms::key::Down), forms::key::Down);
        inScreen([](SearchScreen& screen) {
            screen.enterMoves = true;
            screen.remark.setFocus();
            press(Qt::Key_Return);
            QVERIFY(screen.search.hasFocus());
            press(Qt::Key_PageUp);
            QVERIFY(screen.remark.hasFocus());
            press(Qt::Key_PageDown);
            QVERIFY(screen.search.hasFocus());
        });
    }

    void sendKeysNotation()
    {
        inScreen([](SearchScreen& screen) {
            cSendKeys keys;
            screen.remark.setFocus();
            keys.SendKeys(QStringLiteral("ab C{x 3}{+}{}}{~}"));
            QCOMPARE(screen.remark.text(), QStringLiteral("ab Cxxx+}~"));
            keys.SendKeys(QStringLiteral("{bs 2}{home}{Delete}"));
            QCOMPARE(screen.remark.text(), QStringLiteral("b Cxxx+"));
            keys.SendKeys(QStringLiteral("{END}+(dE)f+g"));
            QCOMPARE(screen.remark.text(), QStringLiteral("b Cxxx+DEfG"));

            screen.keys.clear();
            keys.SendKeys(QStringLiteral("^(a{F16})%{f2}~{esc}"));
            const QList<QPair<int, Qt::KeyboardModifiers>> expected{{'A', Qt::ControlModifier},
                                                                    {127, Qt::ControlModifier},
                                                                    {113, Qt::AltModifier},
                                                                    {13, Qt::NoModifier},
                                                                    {27, Qt::NoModifier}};
            screen.keys.removeIf([](const auto& key) { return key.first == 0; }); // the held keys themselves
            QCOMPARE(screen.keys, expected);

            keys.SendKeys(QStringLiteral("{TAB 2}"));
            QVERIFY(screen.list.hasFocus());
            keys.SendKeys(QStringLiteral("+{tab 3}"));
            QVERIFY(screen.client.hasFocus());

            screen.remark.setFocus();
            screen.remark.clear();
            keys.SendKeys(QStringLiteral("later"), false);
            QCOMPARE(screen.remark.text(), QString());
            QTRY_COMPARE(screen.remark.text(), QStringLiteral("later"));

            screen.remark.clear();
            keys.KeyDown(Qt::Key_Shift);
            keys.KeyPress(cSendKeys::KeyCode(QStringLiteral("q")));
            keys.KeyUp(Qt::Key_Shift);
            keys.KeyPress(cSendKeys::KeyCode(QStringLiteral("q")));
            QCOMPARE(screen.remark.text(), QStringLiteral("Qq"));
        });
    }

    void sendKeysErrors_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* keys, const char* error) {
            QTest::newRow(keys) << QString::fromLatin1(keys) << QString::fromLatin1(error);
        };
        row("{TAB x}", "Invalid sendkeys command; key repetitions 'x' is invalid near position 1");
        row("a{TAB }", "Invalid sendkeys command; key repetitions '' is invalid near position 2");
        row("ab)", "Invalid sendkeys command: unmatched ) at position 3");
        row("{}", "Invalid sendkeys command; opening { without content or closing } at position 1");
        row("ab{", "Invalid sendkeys command; opening { without content or closing } at position 3");
        row("{TAB", "Invalid sendkeys command; opening { without closing } at position 1");
        row("+((a)", "Invalid sendkeys command: more open brackets than close brackets.");
        row("{f17}", "Key f17 could not be interpreted.");
    }
    void sendKeysErrors()
    {
        QFETCH(QString, keys);
        QLineEdit field;
        field.show();
        field.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QString text;
        try {
            cSendKeys().SendKeys(keys);
        } catch (const cSendKeys::Error& error) {
            text = error.text();
        }
        QTEST(text, "error");
        QCOMPARE(cSendKeys::Error::source(), QStringLiteral(".cSendKeys"));
        QCOMPARE(field.text(), QString()); // nothing is typed of a text that cannot be read
    }
};

QTEST_MAIN(tst_helpers)
#include "tst_helpers.moc"
