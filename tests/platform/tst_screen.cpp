#include "platform/forms/DatePicker.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Screen.h"
#include "platform/forms/Theme.h"
#include "platform/values/Errors.h"
#include "support/Fields.h"
#include "support/Modal.h"
#include "support/Prompts.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>
#include <cmath>

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

static QString styleSheet()
{
    QFile sheet(":/style.qss");
    return sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
}

/// The palette's name that a rule gives to a property; empty for none.
static QString colourOf(const QString& property, const QString& rule)
{
    const QRegularExpression given("(?:^|[;\\s])" + property + ":\\s*@(\\w+)");
    return given.match(rule).captured(1);
}

static double luminance(const QString& tone, palette::Look look)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    for (const palette::Tone* each : palette::tones())
        if (tone == QLatin1StringView(each->name)) {
            const QColor colour(each->in(look));
            return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
                   0.0722 * linear(colour.blueF());
        }
    qFatal("No colour %s", qPrintable(tone));
}

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

    /// The style sheet names no colour of its own, and what it writes can be read in both looks.
    void textStandsOffFromItsGround_data()
    {
        using namespace palette;
        QTest::addColumn<QString>("ink");
        QTest::addColumn<QString>("ground");
        const auto pair = [](const QString& text, const QString& ground) {
            QTest::addRow("%s on %s", qPrintable(text), qPrintable(ground)) << text << ground;
        };
        for (const auto& [text, ground] :
             std::initializer_list<std::pair<Tone, Tone>>{{notice, window},
                                                          {notice, card},
                                                          {focusNotice, focusGround},
                                                          {emphasis, shade},
                                                          {accent, card},
                                                          {accent, shade},
                                                          {ink, shade},
                                                          {quietInk, shade},
                                                          {panelInk, panel},
                                                          {ink, accentSoft},
                                                          {panelBright, panelMain},
                                                          {onAccent, accent}})
            pair(text.name, ground.name);
        static const QRegularExpression rules("([^{}]+)\\{([^}]*)\\}");
        for (auto rule = rules.globalMatch(styleSheet()); rule.hasNext();) {
            const auto found = rule.next();
            const QString who = found.captured(1);
            const QString text = colourOf("color", found.captured(2));
            const QString own = colourOf("background", found.captured(2));
            if (const QString chosen = colourOf("selection-color", found.captured(2)); !chosen.isEmpty())
                pair(chosen, own.isEmpty() || who.contains("View")
                                 ? "accent"
                                 : colourOf("selection-background-color", found.captured(2)));
            if (text.isEmpty() || who.contains(":disabled"))
                continue;
            if (!own.isEmpty())
                pair(text, own);
            else if (who.contains("#Picture2"))
                pair(text, "panel"), pair(text, "panelHover");
            else if (who.contains("BannerStrip"))
                pair(text, "bannerGround");
            else if (who.contains("QToolButton"))
                pair(text, "accent");
            else if (!who.contains(":checked") && !who.contains("QComboBox QLineEdit"))
                pair(text, "window"), pair(text, "card");
        }
    }
    void textStandsOffFromItsGround()
    {
        QFETCH(QString, ink);
        QFETCH(QString, ground);
        for (const palette::Look look : {palette::Look::Light, palette::Look::Dark}) {
            const bool red = ink == "emphasis" && look == palette::Look::Light; // the total's, bold
            const double contrast = (luminance(ink, look) + 0.05) / (luminance(ground, look) + 0.05);
            const double ratio = std::max(contrast, 1 / contrast);
            QVERIFY2(ratio >= (red ? 3 : 4.5),
                     qPrintable(QString("%1 in look %2").arg(ratio).arg(int(look))));
        }
    }

    /// In both looks: nothing is left of the names, and letters grow.
    void styleSheetOfAnAppearance()
    {
        static const QRegularExpression ownColour("#[0-9A-Fa-f]{6}\\b|\\b(white|black)\\s*;");
        QVERIFY(!styleSheet().contains(ownColour));
        for (const palette::Look look : {palette::Look::Light, palette::Look::Dark})
            QVERIFY(!expandStyleSheet(styleSheet(), {look, 100}).contains('@'));
        QCOMPARE(expandStyleSheet(
                     "a { color: @inkling; font: 10pt; background: @ink; min-height: 20px; padding: 4px }",
                     {palette::Look::Dark, 150}),
                 "a { color: @inkling; font: 15pt; background: #f2f5f7; min-height: 30px; padding: 4px }");
    }

    /// What is half typed or chosen stays, and the screen grows with its text; and back.
    void changesItsLookWhileItIsOpen()
    {
        inModal<Counter>([](Counter& screen) {
            DatePicker day(&screen);
            day.setMaximumWidth(100);
            screen.layout()->addWidget(&day);
            day.show();
            day.setFocus();
            typeText("12-");
            const QString typed = day.text();
            screen.second.setText("half a wor");
            setAppearance({palette::Look::Dark, 150});
            QCOMPARE(day.text(), typed);
            QVERIFY(day.hasFocus());
            QCOMPARE(day.maximumWidth(), 150);
            QCOMPARE(screen.second.text(), "half a wor");
            QCOMPARE(screen.save.palette().color(QPalette::ButtonText), QColor(palette::ink.dark));
            QCOMPARE(screen.save.fontInfo().pointSizeF(), 15.75);
            QVERIFY(screen.screen()->geometry().contains(screen.geometry()));
            setAppearance({});
            QCOMPARE(day.maximumWidth(), 100);
            QCOMPARE(screen.save.palette().color(QPalette::ButtonText), QColor(palette::ink.light));
        });
        qApp->setStyleSheet({});
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
