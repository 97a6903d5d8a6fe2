#include "platform/forms/Screen.h"
#include "platform/forms/Theme.h"
#include "support/KeysTo.h"
#include "support/Modal.h"
#include "ui/NumKey.h"
#include "ui/ctlInfo.h"
#include "ui/swComboBox.h"
#include "ui/swTextBox.h"
#include "ui/swTextBoxMultiLine.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

class ClientScreen : public forms::Screen
{
    Q_OBJECT
public:
    ClientScreen()
    {
        auto* column = new QVBoxLayout(this);
        for (QWidget* each : std::initializer_list<QWidget*>{&name, &fee, &note, &state})
            column->addWidget(each);
        fee.setBoxType(1);
        on(&name, &swTextBox::KeyPress, [this](int& key) {
            keys += key;
            if (key == '*')
                key = 0;
        });
        on(&name, &swTextBox::KeyDown, [this](int& key, int shift) {
            downs += qMakePair(key, shift);
            if (key == forms::key::Delete)
                key = 0;
        });
    }

    swTextBox name;
    swTextBox fee;
    swTextBoxMultiLine note;
    swComboBox state;
    QList<int> keys;
    QList<QPair<int, int>> downs;
};

} // namespace

class tst_boxes : public QObject
{
    Q_OBJECT

    static void inScreen(const std::function<void(ClientScreen&)>& act)
    {
        ClientScreen screen;
        onNextModal<ClientScreen>([&](ClientScreen& shown) { act(shown); });
        screen.showModal();
    }

private Q_SLOTS:
    void cleanup() { QCOMPARE(modal::pending(), 0); }

    void keysOfMoney()
    {
        const QString text = QStringLiteral("1.2");
        for (const int passes : {int('0'), int('9'), 8, 12})
            QCOMPARE(NumKey(text, passes), passes);
        for (const int dropped : {int('.'), int('-'), int('e'), int(','), 13, 0x966})
            QCOMPARE(NumKey(text, dropped), 0);
        QCOMPARE(NumKey(QStringLiteral("12"), '.'), int('.'));
    }

    void capitalsAtTheStartOfWords()
    {
        inScreen([](ClientScreen& screen) {
            typeText(QStringLiteral("mohan mcDonald"));
            QCOMPARE(screen.name.Text(), QStringLiteral("Mohan McDonald"));
            screen.name.setText(QStringLiteral("old name"));
            QCOMPARE(screen.name.Text(), QStringLiteral("old name"));
            screen.name.selectAll(); // what replaces the whole name begins it
            typeText(QString(QChar(0xe9)));
            QCOMPARE(screen.name.Text(), QString(QChar(0xc9)));
        });
    }

    void theScreenCanChangeKeys()
    {
        inScreen([](ClientScreen& screen) {
            typeText(QStringLiteral("a*b"));
            QCOMPARE(screen.name.Text(), QStringLiteral("Ab"));
            QCOMPARE(screen.keys, QList<int>({'a', '*', 'b'}));
            screen.downs.clear();
            press(Qt::Key_Home);
            press(Qt::Key_Delete, Qt::ShiftModifier);
            QCOMPARE(screen.downs, (QList<QPair<int, int>>{{36, 0}, {46, 1}}));
            QCOMPARE(screen.name.Text(), QStringLiteral("Ab"));
        });
    }

    void enterMovesOn()
    {
        inScreen([](ClientScreen& screen) {
            press(Qt::Key_Return);
            QVERIFY(screen.fee.hasFocus());
            QVERIFY(screen.keys.isEmpty());
            screen.name.setAutoTab(false);
            screen.name.setFocus();
            press(Qt::Key_Return);
            QVERIFY(screen.name.hasFocus());
            QCOMPARE(screen.keys, QList<int>({13}));
        });
    }

    void focusSelectsTheText()
    {
        inScreen([](ClientScreen& screen) {
            QSignalSpy got(&screen.name, &swTextBox::GotFocus);
            QSignalSpy lost(&screen.name, &swTextBox::LostFocus);
            screen.name.setText(QStringLiteral("Mohan"));
            screen.fee.setFocus();
            screen.name.setFocus();
            QCOMPARE(screen.name.selectedText(), QStringLiteral("Mohan"));
            screen.fee.setFocus();
            QTest::mouseClick(&screen.name, Qt::LeftButton, {}, QPoint(20, screen.name.height() / 2));
            QCOMPARE(screen.name.selectedText(), QStringLiteral("Mohan"));
            QCOMPARE(got.count(), 2);
            QCOMPARE(lost.count(), 2);

            QSignalSpy noteGot(&screen.note, &swTextBoxMultiLine::GotFocus);
            screen.note.setText(QStringLiteral("long\nnote"));
            screen.note.setFocus();
            typeText(QStringLiteral("s"));
            QCOMPARE(screen.note.Text(), QStringLiteral("long\r\nnotes"));
            QCOMPARE(noteGot.count(), 1);
        });
    }

    void focusedFieldStandsOnBlack()
    {
        forms::applyTheme(*qApp, {});
        inScreen([](ClientScreen& screen) {
            const auto ground = [](QWidget& field) {
                return field.grab().toImage().pixelColor(field.width() - 20, field.height() / 2);
            };
            for (QWidget* field : std::initializer_list<QWidget*>{&screen.name, &screen.note}) {
                field->setFocus();
                QCOMPARE(ground(*field), QColor(Qt::black));
                screen.fee.setFocus();
                QCOMPARE(ground(*field), QColor(Qt::white));
            }
        });
        qApp->setStyleSheet({});
    }

    void moneyFormatsItself()
    {
        swTextBox stored;
        stored.setText(QStringLiteral("7.5"));
        stored.setBoxType(1);
        QCOMPARE(stored.Text(), QStringLiteral("7.50"));

        inScreen([](ClientScreen& screen) {
            screen.fee.setText(QStringLiteral("5"));
            QCOMPARE(screen.fee.Text(), QStringLiteral("5.00"));
            screen.fee.setText(QString());
            QCOMPARE(screen.fee.Text(), QString());

            screen.fee.setFocus();
            typeText(QStringLiteral("1x2.5.5"));
            QCOMPARE(screen.fee.Text(), QStringLiteral("12.55"));
            press(Qt::Key_Backspace);
            press(Qt::Key_Return);
            QVERIFY(screen.note.hasFocus());
            QCOMPARE(screen.fee.Text(), QStringLiteral("12.50"));
            screen.fee.setFocus();
            typeText(QStringLiteral(".5")); // the point that it replaces doesn't count
            press(Qt::Key_Return);
            QCOMPARE(screen.fee.Text(), QStringLiteral("0.50"));

            QGuiApplication::clipboard()->setText(QStringLiteral("twelve"));
            screen.fee.setFocus();
            screen.fee.paste();
            screen.note.setFocus();
            QCOMPARE(screen.fee.Text(), QStringLiteral("0.00"));
        });
    }

    void notesAndCombos()
    {
        inScreen([](ClientScreen& screen) {
            screen.note.setFocus();
            typeText(QStringLiteral("two "));
            press(Qt::Key_Return);
            typeText(QStringLiteral("lines"));
            QCOMPARE(screen.note.Text(), QStringLiteral("two \r\nlines"));
            press(Qt::Key_Tab);
            QVERIFY(screen.state.hasFocus());

            screen.note.setText(QString());
            screen.note.setBoxType(1);
            screen.state.setBoxType(1);
            screen.note.setFocus();
            typeText(QStringLiteral("a3"));
            screen.state.setFocus();
            QCOMPARE(screen.note.Text(), QStringLiteral("3.00"));
            typeText(QStringLiteral("b4."));
            screen.name.setFocus();
            QCOMPARE(screen.state.Text(), QStringLiteral("4.00"));
        });
    }

    void info()
    {
        ctlInfo info;
        info.show();
        auto& pic = control<QWidget>(info, "pic");
        info.ShowInfo(QStringLiteral("Mohan, 98290"));
        QVERIFY(pic.isVisible());
        QCOMPARE(control<QLabel>(info, "lblInfo").text(), QStringLiteral("Mohan, 98290"));
        QTest::mouseClick(&control<QWidget>(info, "Image1"), Qt::LeftButton);
        QVERIFY(!pic.isVisible());
    }
};

QTEST_MAIN(tst_boxes)
#include "tst_boxes.moc"
