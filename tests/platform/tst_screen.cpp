#include "platform/forms/MessageBox.h"
#include "platform/forms/Screen.h"
#include "platform/values/Errors.h"
#include "support/KeysTo.h"
#include "support/Modal.h"
#include "support/Prompts.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

using namespace forms;

namespace {

/// Two fields, a note and two buttons; writes down what reaches it.
class Counter : public Screen
{
    Q_OBJECT
public:
    Counter()
    {
        auto* column = new QVBoxLayout(this);
        for (QWidget* each : std::initializer_list<QWidget*>{&first, &second, &note, &save, &leave})
            column->addWidget(each);
        onKeyPress(&first, [this](int& key) {
            log += QStringLiteral("first %1").arg(key);
            if (key == 'a')
                key = 'A';
        });
        onKeyDown(&first, [this](int& key) {
            if (key == key::Delete)
                key = 0;
        });
        onGotFocus(&first, [this] { log += QStringLiteral("got first"); });
        onLostFocus(&first, [this] { log += QStringLiteral("lost first"); });
        onGotFocus(&save, [this] { log += QStringLiteral("got save"); });
        on(&save, &QPushButton::clicked, &Counter::saved);
        on(&leave, &QPushButton::clicked, [this] { unload(); });
        on(&second, &QLineEdit::textEdited, [this](const QString& text) {
            if (text == QLatin1String("bad"))
                throw OverflowError();
        });
    }

    QLineEdit first;
    QLineEdit second;
    QPlainTextEdit note;
    QPushButton save{QStringLiteral("&Save")};
    QPushButton leave{QStringLiteral("&Back")};
    QStringList log;
    bool failsToLoad = false;
    bool leavesAtOnce = false;

protected:
    void Form_Load() override
    {
        log += QStringLiteral("load");
        if (failsToLoad)
            throw OperatorError(QStringLiteral("No such table"));
        if (leavesAtOnce)
            unload();
    }
    void Form_Activate() override { log += QStringLiteral("activate"); }
    void Form_Unload() override { log += QStringLiteral("unload"); }
    void Form_KeyDown(int& key, Qt::KeyboardModifiers) override
    {
        if (key == key::F1)
            log += QStringLiteral("F1");
        if (key == key::Right)
            key = 0;
    }
    void Form_KeyPress(int& key) override
    {
        if (key == key::CtrlA)
            log += QStringLiteral("Ctrl+A");
        if (key == key::CtrlA || key == 'x')
            key = 0;
        if (key == key::Enter) {
            key = 0;
            sendTab();
        }
        if (key == key::Escape)
            unload();
    }

private:
    void saved() { log += QStringLiteral("saved"); }
};

} // namespace

class tst_screen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_prompts.emplace(); }
    void cleanup()
    {
        QVERIFY(m_prompts->allMet());
        m_prompts.reset();
    }

    void chainOfModalScreens()
    {
        Counter below;
        onNextModal<Counter>([&](Counter& screen) {
            QCOMPARE(&screen, &below);
            QCOMPARE(below.log.mid(0, 2), QStringList({"load", "activate"}));
            below.log.clear();
            Counter above;
            onNextModal<Counter>([&](Counter& second) {
                QCOMPARE(&second, &above);
                QCOMPARE(Screen::front(), &above);
                QVERIFY(below.log.isEmpty());
                press(Qt::Key_Escape);
                QCOMPARE(below.log, QStringList("activate")); // as soon as the screen above has gone
            });
            above.showModal();
            QCOMPARE(above.log.last(), QStringLiteral("unload"));
            QCOMPARE(Screen::front(), &below);

            m_prompts->expect(QStringLiteral("Plain"));
            plainMessage(&below, QStringLiteral("Plain"));
            QCOMPARE(below.log, QStringList("activate"));
        });
        below.showModal();
        QVERIFY(!Screen::front());
        QCOMPARE(below.log.count(QStringLiteral("unload")), 1);
        QVERIFY(!below.isLoaded());
    }

    void failedLoadIsNotShown()
    {
        Counter screen;
        screen.failsToLoad = true;
        QVERIFY_THROWS_EXCEPTION(OperatorError, screen.showModal());
        QVERIFY(!screen.isLoaded() && !screen.isVisible() && !Screen::front());

        Counter leaving;
        leaving.leavesAtOnce = true;
        leaving.showModal(); // returns: nothing to wait for
        QCOMPARE(leaving.log, QStringList({"load", "unload"}));
    }

    void screenMayDieWhileItStands()
    {
        auto* screen = new Counter;
        QTimer::singleShot(0, screen, [screen] { delete screen; });
        screen->showModal();
        QVERIFY(!Screen::front());
    }

    void keysReachTheScreenFirst()
    {
        Counter screen;
        onNextModal<Counter>([&](Counter&) {
            QVERIFY(screen.first.hasFocus());
            screen.log.clear();
            typeText(QStringLiteral("xab"));
            QCOMPARE(screen.first.text(), QStringLiteral("Ab"));
            QCOMPARE(screen.log, QStringList({"first 97", "first 98"}));

            screen.log.clear();
            press(Qt::Key_A, Qt::ControlModifier); // not "select all"
            QVERIFY(!screen.first.hasSelectedText());
            press(Qt::Key_F1);
            QCOMPARE(screen.log, QStringList({"Ctrl+A", "F1"}));

            press(Qt::Key_Home);
            press(Qt::Key_Right);  // swallowed by the screen
            press(Qt::Key_Delete); // and this by the field
            typeText(QStringLiteral("c"));
            QCOMPARE(screen.first.text(), QStringLiteral("cAb"));

            screen.log.clear();
            press(Qt::Key_Return);
            QVERIFY(screen.second.hasFocus());
            QCOMPARE(screen.log, QStringList({"lost first"}));
        });
        screen.showModal();
    }

    void buttons()
    {
        Counter screen;
        onNextModal<Counter>([&](Counter&) {
            screen.log.clear();
            press(Qt::Key_Z, Qt::AltModifier); // no button's letter, and no text
            QCOMPARE(screen.first.text(), QString());
            press(Qt::Key_S, Qt::AltModifier);
            QCOMPARE(screen.log, QStringList({"lost first", "got save", "saved"}));
            press(Qt::Key_Return);
            QCOMPARE(screen.log.count(QStringLiteral("saved")), 2);
            QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
            QCoreApplication::sendEvent(&screen.save, &heldDown);
            QCOMPARE(screen.log.count(QStringLiteral("saved")), 2);
            press(Qt::Key_B, Qt::AltModifier);
            QVERIFY(!screen.isLoaded());
        });
        screen.showModal();
    }

    void largerThanTheDisplay()
    {
        Counter screen;
        screen.note.setMinimumSize(screen.screen()->size());
        onNextModal<Counter>([&](Counter&) {
            QVERIFY(screen.screen()->geometry().contains(screen.geometry()));
            for (QWidget* each : std::initializer_list<QWidget*>{&screen.save, &screen.first}) {
                each->setFocus();
                const QPoint middle = each->mapTo(&screen, each->rect().center());
                QVERIFY(screen.rect().contains(middle));
            }
            sendTab();
            QVERIFY(screen.second.hasFocus());
        });
        screen.showModal();
    }

    void tabSkipsWhatCannotBeEntered()
    {
        Counter screen;
        screen.second.setEnabled(false);
        screen.note.hide();
        onNextModal<Counter>([&](Counter&) {
            sendTab();
            QVERIFY(screen.save.hasFocus());
            sendTab(true);
            QVERIFY(screen.first.hasFocus());
        });
        screen.showModal();
    }

    void errorsReachTheOperatorAndTheProgramGoesOn()
    {
        Counter screen;
        onNextModal<Counter>([&](Counter&) {
            screen.second.setFocus();
            m_prompts->expect(QStringLiteral("Overflow"));
            typeText(QStringLiteral("badly"));
            QCOMPARE(screen.second.text(), QStringLiteral("badly"));
            QVERIFY(screen.second.hasFocus());
        });
        screen.showModal();

        QVERIFY(guarded(nullptr, [] {}));
        m_prompts->expect(QStringLiteral("out of paper"));
        QVERIFY(!guarded(nullptr, [] { throw std::runtime_error("out of paper"); }));
        const QString endless(5000, QLatin1Char('x'));
        m_prompts->expect(endless.left(1200) + QChar(0x2026));
        QVERIFY(!guarded(nullptr, [&] { throw OperatorError(endless); }));
    }

    void questions()
    {
        m_prompts->expect(QStringLiteral("Sure?"), Answer::Yes);
        QVERIFY(askPlain(nullptr, QStringLiteral("Sure?")));
        m_prompts->expect(QStringLiteral("Sure?"), Answer::No);
        QVERIFY(!askPlain(nullptr, QStringLiteral("Sure?")));
        m_prompts->expect(QStringLiteral("Sure?"), Answer::Esc);
        QVERIFY(!askPlain(nullptr, QStringLiteral("Sure?")));
    }

private:
    std::optional<Prompts> m_prompts;
};

QTEST_MAIN(tst_screen)
#include "tst_screen.moc"
