#include "core/Settings.h"
#include "core/frmSettings.h"
#include "messaging/modSMS.h"
#include "platform/forms/ComboBox.h"
#include "support/ShopTest.h"
#include "ui/frmSelectFile.h"
#include "ui/swTextBoxMultiLine.h"

#include <QCheckBox>
#include <QTabWidget>
#include <QTest>

namespace {

QString stored(qint32 setting) { return GetSetting(setting, "none"); }

} // namespace

class tst_frmSettings : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    /// The whole screen by keys: Enter walks the fields of a tab, Ctrl+Tab turns to the next.
    void fillsAllTabsByKeysAlone()
    {
        prompts->expect("Are you sure to load default SMS drafts?", Answer::No);
        prompts->expect("Settings Updated.");
        prompts->expect("Are you sure to load default SMS drafts?", Answer::Yes);
        inModal<frmSettings>([](frmSettings& screen) {
            const auto is = [&](const char* name) { return focused(screen) == QLatin1String(name); };
            press(Qt::Key_Backspace);
            typeText("abc");
            press(Qt::Key_Return);
            typeText("3 days"); // over the selected "0"
            press(Qt::Key_Return);
            onNextModal<frmSelectFile>([](frmSelectFile&) { press(Qt::Key_Escape); });
            typeText("/home/shop/wall.png");
            press(Qt::Key_Return);
            press(Qt::Key_Return); // "Select", left without a picture
            press(Qt::Key_Tab);
            press(Qt::Key_Space);
            press(Qt::Key_Return);
            QVERIFY(is("Command1"));
            press(Qt::Key_Tab, Qt::ControlModifier);

            control<QWidget>(screen, "txtLogo").setFocus();
            onNextModal<frmSelectFile>([](frmSelectFile& picker) {
                control<QLineEdit>(picker, "txtfilename").setText("/home/shop/logo.png");
                control<QPushButton>(picker, "cmdOK").click();
            });
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Return, Qt::Key_Tab})
                press(key);
            typeText("stitched by hand");
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Return, Qt::Key_Space})
                press(key);
            press(Qt::Key_Tab, Qt::ControlModifier);

            typeText("4");
            press(Qt::Key_Return);
            typeText("rangoli tailors"); // no more than ten of it
            press(Qt::Key_Return);
            QVERIFY(is("cmbSMSJobID"));
            typeText("y");
            press(Qt::Key_Return);
            for (int i = 0; i < 2; ++i)
                press(Qt::Key_Backspace);
            press(Qt::Key_Return);
            QVERIFY(is("txtSMS1"));
            press(Qt::Key_Return);
            typeText("Thanks");
            for (int i = 0; i < 3; ++i)
                press(Qt::Key_Tab);
            press(Qt::Key_Return); // "Load Default Draft": No
            save();
            QVERIFY(screen.isVisible());
            press(Qt::Key_Tab, Qt::ControlModifier);
            press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(control<QTabWidget>(screen, "SSTab1").currentIndex(), 2);
            control<QPushButton>(screen, "Command8").click(); // and Esc: stored is what was saved
            QVERIFY(!control<swTextBoxMultiLine>(screen, "txtSMS1").Text().contains("Thanks"));
            press(Qt::Key_Escape);
            QVERIFY(!screen.isVisible());
        });
        const std::pair<qint32, QString> expected[] = {{23, "1"},
                                                       {13, "3"},
                                                       {11, "/home/shop/wall.png"},
                                                       {22, "1"},
                                                       {5, "/home/shop/logo.png"},
                                                       {6, "Stitched By Hand"},
                                                       {14, "1"},
                                                       {15, "0"},
                                                       {4, "4"},
                                                       {10, "Rangoli Ta"},
                                                       {3, "Yes"},
                                                       {2, "No"},
                                                       {24, DefaultJobRegisteredDraft() + "\rThanks"},
                                                       {25, DefaultJobFinishedDraft()},
                                                       {26, DefaultDueBalanceDraft()},
                                                       {19, "none"}};
        for (const auto& [setting, value] : expected)
            QCOMPARE(stored(setting), value);
    }

    void keepsWhatIsStored()
    {
        SetSetting(10, "Rangoli Tailors");
        SetSetting(15, "0");
        SetSetting(19, "/backup");
        SetSetting(24, "Dear\r\rO'Hara\r");
        prompts->expect("Settings Updated.");
        inModal<frmSettings>([](frmSettings& screen) {
            QCOMPARE(control<QLineEdit>(screen, "txtBackuppath").text(), "/backup");
            save();
        });
        QCOMPARE(stored(10), "Rangoli Tailors");
        QCOMPARE(stored(15), "0");
        QCOMPARE(stored(24), "Dear\r\rO'Hara\r");
    }
};

QTEST_MAIN(tst_frmSettings)
#include "tst_frmSettings.moc"
