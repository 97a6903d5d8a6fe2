#include "platform/ado/Connection.h"
#include "support/ShopTest.h"
#include "ui/frmMsg.h"

#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

static QString caption(QWidget& dialog, const char* button)
{
    return control<QPushButton>(dialog, button).text();
}

/// Shows a message, acts in it and gives back its answer.
static int show(const QString& text, int kind, const std::function<void(frmMsg&)>& act)
{
    onNextModal<frmMsg>(act);
    qint16 result = -1;
    frmMsg().ShowMessage(text, kind, result);
    return result;
}

class tst_frmMsg : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { QCOMPARE(modal::pending(), 0); }

    void answersOfATextThatFits()
    {
        const Shop shop;
        const QString story = QString("A very long story. ").repeated(50);
        for (const auto& [text, kind, key, held, answer] :
             {std::tuple(QString("One\nTwo\nThree\nFour"), 1, Qt::Key_Escape, Qt::NoModifier, 0),
              std::tuple(story, 2, Qt::Key_Return, Qt::NoModifier, 1),
              std::tuple(QString("Sure?"), 2, Qt::Key_Y, Qt::AltModifier, 1),
              std::tuple(QString("Sure?"), 2, Qt::Key_Y, Qt::NoModifier, 1),
              std::tuple(QString("Sure?"), 2, Qt::Key_N, Qt::ShiftModifier, 0)}) {
            const auto act = [&, kind = kind, key = key, held = held](frmMsg& dialog) {
                const auto& label = control<QLabel>(dialog, "lblMsg");
                const auto& ok = control<QPushButton>(dialog, "cmdOK");
                const auto& no = control<QPushButton>(dialog, "cmdNo");
                QVERIFY(ok.isVisible() == (kind == 1) && no.isVisible() == (kind == 2));
                const QRect button = (kind == 1 ? ok : no).geometry();
                QVERIFY(label.height() >= label.heightForWidth(label.width()));
                QVERIFY(label.width() <= dialog.screen()->availableSize().width() * 7 / 10 + 2);
                QVERIFY(label.geometry().bottom() < button.y());
                QVERIFY(dialog.rect().contains(button) && dialog.rect().contains(label.geometry()));
                press(key, held);
                QVERIFY(!dialog.isVisible());
            };
            QCOMPARE(show(text, kind, act), answer);
        }
    }

    void speaksTheLanguageOfTheShop()
    {
        const Shop shop;
        session.Language = "Hindi";
        SetSetting(0, "Hindi");
        const auto told = [](QMessageBox& box) { QVERIFY(box.text().contains("Lang.mdb")); };
        onNextModal<QMessageBox>(told); // it is missing; the question can be answered all the same
        QCOMPARE(show("Sure?", 2,
                      [](frmMsg& dialog) {
                          QCOMPARE(label(dialog, "lblMsg") + caption(dialog, "cmdYes"), "Sure?&Yes");
                          press(Qt::Key_Return);
                      }),
                 1);
        writeFile(shop.folder() + "/Lang.mdb", "damaged");
        QCOMPARE(show("Saved", 1, [](frmMsg&) { press(Qt::Key_Return); }), 1); // said once
        QVERIFY(QFile::remove(shop.folder() + "/Lang.mdb"));
        ado::Connection language;
        language.create(shop.folder() + "/Lang.mdb", {});
        language.Execute("CREATE TABLE messages (EngMessage TEXT, HindiMessage TEXT)");
        language.Execute("INSERT INTO messages VALUES ('Can''t Delete!', 'gVk ugha ldrs')");
        show("Can't Delete!", 2, [&](frmMsg& dialog) {
            const QFont font = control<QLabel>(dialog, "lblMsg").font();
            QCOMPARE(label(dialog, "lblMsg"), "gVk ugha ldrs");
            QCOMPARE(font.family(), "Kruti Dev 010");
            QCOMPARE(caption(dialog, "cmdYes") + caption(dialog, "cmdNo"), "gkugh");
        });
        show("No such sentence", 2, [&](frmMsg& dialog) {
            QCOMPARE(label(dialog, "lblMsg") + caption(dialog, "cmdYes"), "No such sentence&Yes");
            QCOMPARE(control<QLabel>(dialog, "lblMsg").font().family(), "MS Sans Serif");
        });
    }
};

QTEST_MAIN(tst_frmMsg)
#include "tst_frmMsg.moc"
