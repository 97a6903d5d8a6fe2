#include "core/Session.h"
#include "core/Settings.h"
#include "platform/ado/Connection.h"
#include "platform/ado/DatabaseError.h"
#include "platform/forms/Metrics.h"
#include "support/ShopTest.h"
#include "ui/frmMsg.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace {

QString caption(QWidget& dialog, const char* button) { return control<QPushButton>(dialog, button).text(); }

/// Shows a message, acts in it and gives back its answer.
int show(const QString& text, int kind, const std::function<void(frmMsg&)>& act)
{
    onNextModal<frmMsg>(act);
    qint16 result = -1;
    frmMsg().ShowMessage(text, kind, result);
    return result;
}

} // namespace

class tst_frmMsg : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { QCOMPARE(modal::pending(), 0); }

    void answers()
    {
        const Shop shop;
        struct
        {
            int kind;
            Qt::Key key;
            Qt::KeyboardModifiers held;
            int result;
        } const rows[] = {
            {1, Qt::Key_Return, {}, 1},         {1, Qt::Key_Escape, {}, 0},
            {2, Qt::Key_Return, {}, 1},         {2, Qt::Key_Escape, {}, 0},
            {2, Qt::Key_Y, Qt::AltModifier, 1}, {2, Qt::Key_N, Qt::AltModifier, 0},
        };
        for (const auto& row : rows) {
            const int result = show("Sure?", row.kind, [&](frmMsg& dialog) {
                QCOMPARE(control<QPushButton>(dialog, "cmdOK").isVisible(), row.kind == 1);
                QCOMPARE(control<QPushButton>(dialog, "cmdNo").isVisible(), row.kind == 2);
                press(row.key, row.held);
                QVERIFY(!dialog.isVisible());
            });
            QCOMPARE(result, row.result);
        }
    }

    void sizesItselfToTheText()
    {
        const Shop shop;
        for (const QString& text :
             {QString("One\nTwo\nThree\nFour"), QString("A very long story. ").repeated(50)})
            show(text, 2, [&](frmMsg& dialog) {
                const auto& label = control<QLabel>(dialog, "lblMsg");
                const auto& no = control<QPushButton>(dialog, "cmdNo");
                QVERIFY(label.height() >= label.heightForWidth(label.width()));
                QVERIFY(label.width() <= dialog.screen()->availableSize().width() * 7 / 10 + 2);
                QVERIFY(label.geometry().bottom() < no.y());
                QVERIFY(dialog.rect().contains(no.geometry()) && dialog.rect().contains(label.geometry()));
            });
    }

    void speaksTheLanguageOfTheShop()
    {
        const Shop shop;
        show("Saved", 1, [](frmMsg& dialog) {
            QCOMPARE(control<QLabel>(dialog, "lblTitle").text(), "Information");
            QCOMPARE(caption(dialog, "cmdOK"), "Ok");
        });
        session.Language = "French"; // unknown: the dialog as it was designed
        show("Saved", 1, [](frmMsg& dialog) { QCOMPARE(caption(dialog, "cmdOK"), "&Ok"); });

        session.Language = "Hindi";
        SetSetting(0, "Hindi");
        qint16 result = 0;
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, frmMsg().ShowMessage("Saved", 1, result)); // no Lang.mdb
        ado::Connection language;
        language.create(shop.folder() + "/Lang.mdb", {});
        language.Execute("CREATE TABLE messages (EngMessage TEXT, HindiMessage TEXT)");
        language.Execute("INSERT INTO messages VALUES ('Can''t Delete!', 'gVk ugha ldrs')");
        qApp->setStyleSheet("QLabel#lblTitle { font-size: 19pt }");
        show("Can't Delete!", 2, [&](frmMsg& dialog) {
            auto& label = control<QLabel>(dialog, "lblMsg");
            QCOMPARE(label.text(), "gVk ugha ldrs");
            QCOMPARE(label.font().family(), "Kruti Dev 010");
            QCOMPARE(label.font().pointSizeF(), forms::points(12));
            QCOMPARE(caption(dialog, "cmdYes") + caption(dialog, "cmdNo"), "gkugh");
            QCOMPARE(control<QLabel>(dialog, "lblTitle").font().pointSizeF(), forms::points(14));
        });
        show("No such sentence", 2, [&](frmMsg& dialog) {
            QCOMPARE(control<QLabel>(dialog, "lblMsg").text(), "No such sentence");
            QCOMPARE(control<QLabel>(dialog, "lblMsg").font().family(), "MS Sans Serif");
            QCOMPARE(caption(dialog, "cmdYes"), "&Yes");
        });
        qApp->setStyleSheet({});
    }
};

QTEST_MAIN(tst_frmMsg)
#include "tst_frmMsg.moc"
