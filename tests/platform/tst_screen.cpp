#include "platform/forms/MessageBox.h"
#include "platform/forms/Screen.h"
#include "platform/values/Errors.h"
#include "support/Fields.h"
#include "support/Modal.h"
#include "support/Prompts.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

using namespace forms;

/// Two fields and two buttons; writes down what reaches it.
class Counter : public Screen
{
    Q_OBJECT
public:
    Counter()
    {
        auto* column = new QVBoxLayout(this);
        for (QWidget* each : std::initializer_list<QWidget*>{&first, &second, &save, &leave})
            column->addWidget(each);
        onKeyPress(&first, [this](int& key) {
            log += QString("first %1").arg(key);
            if (key == 'a')
                key = 'A';
        });
        onGotFocus(&save, [this] { log += "got save"; });
        onLostFocus(&first, [this] { log += "lost first"; });
        on(&save, &QPushButton::clicked, [this] { log += "saved"; });
        on(&leave, &QPushButton::clicked, [this] { unload(); });
        on(&second, &QLineEdit::textEdited, [](const QString& text) {
            if (text == "bad")
                throw TypeMismatchError();
        });
    }

    QLineEdit first;
    QLineEdit second;
    QPushButton save{"&Save"};
    QPushButton leave{"&Back"};
    QStringList log;
    std::function<void()> loading = [] {};
    using Screen::setNotice;

protected:
    void Form_Load() override
    {
        log += "load";
        loading();
    }
    void Form_Activate() override { log += "activate"; }
    void Form_Unload() override { log += "unload"; }
    void Form_KeyDown(int& key, Qt::KeyboardModifiers) override
    {
        if (key == key::Right)
            key = 0;
    }
    void Form_KeyPress(int& key) override
    {
        if (key == key::CtrlA || key == 'x')
            key = 0;
        if (key == key::Enter) {
            key = 0;
            sendTab();
        }
        if (key == key::Escape)
            unload();
    }
};

class tst_screen : public QObject
{
    Q_OBJECT
    std::optional<Prompts> m_prompts;

private Q_SLOTS:
    void init() { m_prompts.emplace(); }
    void cleanup() { QVERIFY(m_prompts->allMet()); }

    void chainOfModalScreens()
    {
        inModal<Counter>([this](Counter& below) {
            QCOMPARE(below.log.mid(0, 2), QStringList({"load", "activate"}));
            below.log.clear();
            inModal<Counter>([&](Counter& above) {
                QCOMPARE(Screen::front(), &above);
                QVERIFY(below.log.isEmpty());
                press(Qt::Key_Escape);
                QCOMPARE(above.log.last(), "unload");
                QCOMPARE(below.log, QStringList("activate")); // as soon as the screen above has gone
            });
            m_prompts->expect("Plain");
            plainMessage(&below, "Plain");
            Counter notice;
            notice.setNotice(true);
            onNextModal<Counter>([](Counter&) {});
            notice.showModal();
            QCOMPARE(below.log, QStringList("activate")); // neither of the two activates
        });
        QVERIFY(!Screen::front());
    }

    void screensThatNeverStandOrDie()
    {
        Counter failing;
        failing.loading = [] { throw OperatorError("No such table"); };
        QVERIFY_THROWS_EXCEPTION(OperatorError, failing.showModal());
        QVERIFY(!failing.isLoaded() && !failing.isVisible() && !Screen::front());
        Counter leaving;
        leaving.loading = [&leaving] { leaving.unload(); };
        leaving.showModal(); // returns: nothing to wait for
        QCOMPARE(leaving.log, QStringList({"load", "unload"}));
        auto* dying = new Counter;
        QTimer::singleShot(0, dying, [dying] { delete dying; });
        dying->showModal();
        QVERIFY(!Screen::front());
    }

    void keysReachTheScreenFirst()
    {
        inModal<Counter>([](Counter& screen) {
            screen.log.clear();
            typeText("xab");
            QCOMPARE(screen.first.text(), "Ab");
            QCOMPARE(screen.log, QStringList({"first 97", "first 98"}));
            press(Qt::Key_A, Qt::ControlModifier); // not "select all"
            press(Qt::Key_Home);
            press(Qt::Key_Right); // swallowed by the screen
            typeText("c");
            press(Qt::Key_Z, Qt::AltModifier); // no button's letter, and no text
            QCOMPARE(screen.first.text(), "cAb");

            screen.log.clear();
            press(Qt::Key_S, Qt::AltModifier);
            QCOMPARE(screen.log, QStringList({"lost first", "got save", "saved"}));
            press(Qt::Key_Return);
            QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
            QCoreApplication::sendEvent(&screen.save, &heldDown);
            QCOMPARE(screen.log.count("saved"), 2);
            screen.second.setEnabled(false); // Tab passes over what cannot be entered
            screen.first.setFocus();
            press(Qt::Key_Return);
            QVERIFY(screen.save.hasFocus());
            press(Qt::Key_B, Qt::AltModifier);
            QVERIFY(!screen.isLoaded());
        });
    }

    void largerThanTheDisplay()
    {
        Counter screen;
        screen.second.setMinimumSize(screen.screen()->size());
        screen.loading = [&screen] { screen.save.setFocus(); };
        onNextModal<Counter>([](Counter& shown) {
            QVERIFY(shown.save.hasFocus());
            QVERIFY(shown.screen()->geometry().contains(shown.geometry()));
            for (QWidget* each : std::initializer_list<QWidget*>{&shown.save, &shown.first}) {
                each->setFocus();
                QVERIFY(shown.rect().contains(each->mapTo(&shown, each->rect().center())));
            }
        });
        screen.showModal();
    }

    void errorsReachTheOperatorAndTheProgramGoesOn()
    {
        m_prompts->expect("Type mismatch");
        inModal<Counter>([](Counter& screen) {
            screen.second.setFocus();
            typeText("badly");
            QCOMPARE(screen.second.text(), "badly");
        });
        m_prompts->expect(QString(1200, 'x') + QChar(0x2026));
        QVERIFY(!guarded(nullptr, [&] { throw std::runtime_error(std::string(5000, 'x')); }));
        for (const Answer answer : {Answer::Yes, Answer::No, Answer::Esc}) {
            m_prompts->expect("Sure?", answer);
            QCOMPARE(askPlain(nullptr, "Sure?"), answer == Answer::Yes);
        }
    }
};

QTEST_MAIN(tst_screen)
#include "tst_screen.moc"
