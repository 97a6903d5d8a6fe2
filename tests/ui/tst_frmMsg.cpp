#include "core/Session.h"
#include "core/Settings.h"
#include "platform/ado/Connection.h"
#include "platform/ado/DatabaseError.h"
#include "platform/forms/Metrics.h"
#include "support/KeysTo.h"
#include "support/Modal.h"
#include "support/Shop.h"
#include "ui/ModOtherFUN.h"
#include "ui/frmMsg.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using forms::twips;

namespace {

class Below : public forms::Screen
{
    Q_OBJECT
public:
    int activations = 0;

protected:
    void Form_Activate() override { ++activations; }
};

void layHindi(const QString& folder)
{
    ado::Connection language;
    language.create(folder + QStringLiteral("/Lang.mdb"), {});
    language.Execute(QStringLiteral("CREATE TABLE messages (EngMessage TEXT, HindiMessage TEXT)"));
    language.Execute(QStringLiteral("INSERT INTO messages VALUES ('Can''t Delete!', 'gVk ugha ldrs')"));
}

} // namespace

class tst_frmMsg : public QObject
{
    Q_OBJECT

    /// Shows a message, acts in it and gives back its answer.
    static int show(const QString& text, int kind, const std::function<void(frmMsg&)>& act)
    {
        onNextModal<frmMsg>([&](frmMsg& dialog) { act(dialog); });
        qint16 result = -1;
        frmMsg().ShowMessage(text, kind, result);
        return result;
    }
    static void speakHindi()
    {
        session.Language = QStringLiteral("Hindi");
        SetSetting(0, QStringLiteral("Hindi"));
    }
    static QString family(QWidget& widget) { return widget.font().family(); }

private Q_SLOTS:
    void init() { m_shop.emplace(); }
    void cleanup()
    {
        QCOMPARE(modal::pending(), 0);
        m_shop.reset();
    }

    void answers_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("held");
        QTest::addColumn<int>("result");
        const int alt = Qt::AltModifier;
        QTest::newRow("OK by Enter") << 1 << int(Qt::Key_Return) << 0 << 1;
        QTest::newRow("OK left by Esc") << 1 << int(Qt::Key_Escape) << 0 << 0;
        QTest::newRow("question, Enter") << 2 << int(Qt::Key_Return) << 0 << 1;
        QTest::newRow("question, Esc") << 2 << int(Qt::Key_Escape) << 0 << 0;
        QTest::newRow("question, Yes") << 2 << int(Qt::Key_Y) << alt << 1;
        QTest::newRow("question, No") << 2 << int(Qt::Key_N) << alt << 0;
    }
    void answers()
    {
        QFETCH(int, kind);
        QFETCH(int, key);
        QFETCH(int, held);
        const int result = show(QStringLiteral("Sure?"), kind, [&](frmMsg& dialog) {
            QCOMPARE(control<QPushButton>(dialog, "cmdOK").isVisible(), kind == 1);
            QCOMPARE(control<QPushButton>(dialog, "cmdYes").isVisible(), kind == 2);
            QCOMPARE(control<QPushButton>(dialog, "cmdNo").isVisible(), kind == 2);
            press(Qt::Key(key), Qt::KeyboardModifiers(held));
            QVERIFY(!dialog.isVisible());
        });
        QTEST(result, "result");
    }

    void sizesItselfToTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("short") << QStringLiteral("Duplicate!");
        QTest::newRow("lines") << QStringLiteral("One\nTwo\nThree\nFour");
        QTest::newRow("wider than the screen")
            << QStringLiteral("A very long story of a job card. ").repeated(30);
    }
    void sizesItselfToTheText()
    {
        QFETCH(QString, text);
        show(text, 2, [&](frmMsg& dialog) {
            const auto& label = control<QLabel>(dialog, "lblMsg");
            const auto& yes = control<QPushButton>(dialog, "cmdYes");
            const auto& no = control<QPushButton>(dialog, "cmdNo");
            QCOMPARE(label.text(), text);
            QVERIFY(label.height() >= label.heightForWidth(label.width()));
            QVERIFY(label.width() <= dialog.screen()->availableSize().width() * 7 / 10 + 2);
            QCOMPARE(dialog.height(), no.height() + label.height() + twips(1500 - 420)); // less the title bar
            QCOMPARE(dialog.width(), qMax(label.width() + twips(500), twips(4650)));
            QCOMPARE(no.y(), label.height() + twips(900));
            QCOMPARE(no.x(), dialog.width() - no.width() - twips(200));
            QCOMPARE(yes.x(), no.x() - yes.width() - twips(50));
            QCOMPARE(yes.y(), no.y());
            QVERIFY(label.geometry().bottom() < no.y());
        });
    }

    void english()
    {
        show(QStringLiteral("Saved"), 1, [](frmMsg& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("The Seamwise"));
            QCOMPARE(control<QLabel>(dialog, "lblTitle").text(), QStringLiteral("Information"));
            QCOMPARE(control<QPushButton>(dialog, "cmdOK").text(), QStringLiteral("Ok"));
            QCOMPARE(family(control<QLabel>(dialog, "lblMsg")), QStringLiteral("MS Sans Serif"));
            QCOMPARE(control<QLabel>(dialog, "lblMsg").font().pointSizeF(), forms::points(8));
        });
        session.Language = QStringLiteral("French"); // unknown: the dialog as it was designed
        show(QStringLiteral("Saved"), 1, [](frmMsg& dialog) {
            QCOMPARE(control<QLabel>(dialog, "lblMsg").text(), QStringLiteral("Error"));
            QCOMPARE(control<QPushButton>(dialog, "cmdOK").text(), QStringLiteral("&Ok"));
        });
    }

    void hindi()
    {
        const QString kruti = QStringLiteral("Kruti Dev 010");
        layHindi(m_shop->folder());
        speakHindi();
        qApp->setStyleSheet(QStringLiteral(
            "QPushButton { padding: 7px } QLabel#lblTitle { font-size: 19pt; font-weight: 600 }"));
        show(QStringLiteral("Can't Delete!"), 2, [&](frmMsg& dialog) {
            auto& label = control<QLabel>(dialog, "lblMsg");
            QCOMPARE(label.text(), QStringLiteral("gVk ugha ldrs"));
            QCOMPARE(family(label), kruti);
            QCOMPARE(label.font().pointSizeF(), forms::points(12));
            QCOMPARE(control<QPushButton>(dialog, "cmdYes").text(), QStringLiteral("gk"));
            QCOMPARE(control<QPushButton>(dialog, "cmdNo").text(), QStringLiteral("ugh"));
            QCOMPARE(control<QPushButton>(dialog, "cmdOK").text(), QStringLiteral("Bhd gS"));
            QCOMPARE(family(control<QPushButton>(dialog, "cmdYes")), kruti);
            QCOMPARE(control<QLabel>(dialog, "lblTitle").text(), QStringLiteral("lqpuk"));
            QCOMPARE(family(control<QLabel>(dialog, "lblTitle")), kruti);
            QCOMPARE(control<QLabel>(dialog, "lblTitle").font().weight(), QFont::Bold);
            QCOMPARE(control<QLabel>(dialog, "lblTitle").font().pointSizeF(), forms::points(14));
        });
        show(QStringLiteral("No such sentence"), 2, [&](frmMsg& dialog) {
            QCOMPARE(control<QLabel>(dialog, "lblMsg").text(), QStringLiteral("No such sentence"));
            QCOMPARE(family(control<QLabel>(dialog, "lblMsg")), QStringLiteral("MS Sans Serif"));
            QCOMPARE(control<QPushButton>(dialog, "cmdYes").text(), QStringLiteral("&Yes"));
            QCOMPARE(control<QLabel>(dialog, "lblTitle").text(), QStringLiteral("lqpuk"));
        });
        qApp->setStyleSheet({});
    }

    void missingHindiIsAnError()
    {
        speakHindi();
        qint16 result = 0;
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError,
                                 frmMsg().ShowMessage(QStringLiteral("Saved"), 1, result));
    }

    void noticeDoesNotActivateTheScreenBelow()
    {
        Below below;
        onNextModal<Below>([&](Below&) {
            onNextModal<frmMsg>([](frmMsg&) { press(Qt::Key_Return); });
            ShowMsg(QStringLiteral("Saved"));
            QCOMPARE(below.activations, 1);
            QCOMPARE(forms::Screen::front(), &below);
        });
        below.showModal();
    }

private:
    std::optional<Shop> m_shop;
};

QTEST_MAIN(tst_frmMsg)
#include "tst_frmMsg.moc"
