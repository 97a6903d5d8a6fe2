#include "core/shell/frmLogin.h"
#include "core/shell/frmMain.h"
#include "core/shell/frmMasters.h"
#include "core/shell/frmShopINFO.h"
#include "core/shell/modMain.h"
#include "core/store/Schema.h"
#include "core/store/Texts.h"
#include "jobcards/UnsavedCards.h"
#include "masters/frmClients.h"
#include "platform/forms/ListSheet.h"
#include "platform/report/ListPaper.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/Pdf.h"
#include "support/ShopTest.h"

#include <QDir>
#include <QGroupBox>
#include <QMessageBox>
#include <QProcess>

/// The start of the program, its main screen and the screens that stand beside it.
class tst_main : public ShopTest
{
    Q_OBJECT

    /// What the operator is told after the act.
    void told(const QString& message, void (*act)())
    {
        prompts->expect(message);
        act();
    }

    static QStringList lock() { return {GetSetting(7, "-"), GetSetting(8, "-"), GetSetting(9, "-")}; }

private Q_SLOTS:
    /// A lost folder of pictures that cannot be made again stops nobody.
    void firstRunShowsTheShop()
    {
        DE.close();
        QVERIFY(QFile::remove(session.databasePath()));
        QVERIFY(QDir(session.imagesFolder()).removeRecursively());
        writeFile(session.imagesFolder(), "in the way");
        QVERIFY(Main());
        QCOMPARE(Shop::value("Select Name from Shop where id=1").toString(), "KORVANE");
        auto* main = qobject_cast<frmMain*>(forms::Screen::front());
        QVERIFY(main);
        QCOMPARE(label(*main, "lblShopName"), "KORVANE");
        QVERIFY(session.ShopName.isEmpty());
        delete main;
        forms::ListSheet sheet;
        sheet.title = "Dues";
        sheet.columns = {{"Client"}};
        QVERIFY(readBack(*report::listPaper(sheet))[0].contains("KORVANE \u00B7 " +
                                                                dateText(session.WorkingDate)));
    }

    /// A file that is there but not ours is told by name, and never taken for a first run.
    void startIsRefused()
    {
        SetSetting(16, "11");
        DE.close();
        const QString path = session.databasePath();
        for (const QByteArray& file :
             {contents(path), QByteArray(), QByteArray("The shop's clients: Asha, Ravi.")}) {
            writeFile(path, file);
            prompts.reset(); // the engine's words differ by fault
            onNextModal<QMessageBox>([&](QMessageBox& notice) {
                QVERIFY(notice.text().contains(file.size() > 99 ? "Can not Run with this Database!" : path));
            });
            openShopAhead();
            QVERIFY(!Main());
            prompts = std::make_unique<Prompts>();
            DE.close();
            QCOMPARE(contents(path), file);
        }
    }

    void loginOpensTheProgramOrLeavesIt()
    {
        SetSetting(7, "1");
        SetSetting(8, "Asha");
        SetSetting(9, "needle");
        const auto logIn = [] { press(Qt::Key_L, Qt::AltModifier); };
        onNextModal<frmLogin>([&](frmLogin& login) {
            told("Please enter user name!", logIn);
            typeText("Asha"); // where the focus is now
            told("Please enter password!", logIn);
            typeText("Needle");
            told("Invalid user name or password!", logIn);
            QCOMPARE(focused(login), "txtUserName");
            typeFields({"Asha", "needle", {}});
        });
        QVERIFY(frmLogin().Login());
        DE.close();
        onNextModal<frmLogin>([](frmLogin&) { press(Qt::Key_Escape); });
        QVERIFY(!Main());
    }

    void mainScreenByKeys()
    {
        session.WorkingDate = QDate(2024, 2, 29);
        inModal<frmMain>([this](frmMain& main) {
            QCOMPARE(date(main, "TodayDate").value(), QDate(2024, 2, 29));
            QCOMPARE(GetSetting(1, "never"), "never"); // showing the date is no change of it
            press(Qt::Key_F2);
            QCOMPARE(focused(main), "TodayDate");
            press(Qt::Key_Down);
            QVERIFY(session.WorkingDate != QDate(2024, 2, 29));
            QCOMPARE(GetSetting(1, {}), session.WorkingDate.toString(Qt::ISODate));

            onNextModal<frmMasters>([&](frmMasters& masters) {
                onNextModal<frmClients>([&](frmClients&) {});
                press(Qt::Key_C, Qt::AltModifier);
                press(Qt::Key_Escape);
                QVERIFY(!masters.isVisible());
            });
            press(Qt::Key_M, Qt::AltModifier);
            unsavedCards = {};
            unsavedCards.keep({});
            for (const Answer answer : {Answer::No, Answer::Yes}) {
                prompts->expect("Are you sure to exit?", answer);
                if (answer == Answer::Yes)
                    prompts->expect("A job card that was left unsaved will be lost. Exit all the same?",
                                    Answer::No);
                press(Qt::Key_Escape);
            }
            unsavedCards = {};
            for (const Answer answer : {Answer::No, Answer::Esc, Answer::Yes}) {
                QVERIFY(main.isVisible());
                prompts->expect("Are you sure to exit?", answer);
                press(Qt::Key_Escape);
            }
            QVERIFY(!main.isVisible());
        });
    }

    /// The working date by keys, and a garment's code that is scanned while its box has the focus.
    void datesAndScans()
    {
        inModal<frmMain>([](frmMain& main) {
            forms::DatePicker& day = date(main, "TodayDate");
            const auto scan = [](const char* code) {
                QString found;
                onNextModal<frmWorkerJobRegister>(
                    [&](frmWorkerJobRegister& list) { found = field(list, "txtSearchID").text(); });
                typeText(code);
                press(Qt::Key_Return);
                return found;
            };
            press(Qt::Key_F2);
            typeText("25-1");
            press(Qt::Key_Return);
            QCOMPARE(session.WorkingDate, QDate(2024, 1, 25));
            QCOMPARE(day.selectedText(), "25-Jan-2024");
            typeText("26");
            QCOMPARE(day.text(), "26"); // in place of the date, not behind it
            press(Qt::Key_Return);
            QCOMPARE(session.WorkingDate, QDate(2024, 1, 26));
            QCOMPARE(scan("12/1"), "12/1"); // no twelfth of January
            press(Qt::Key_F2);
            press(Qt::Key_F4);
            press(Qt::Key_Return); // in the calendar
            QCOMPARE(scan("12/1"), "12/1");
            press(Qt::Key_F2);
            QCOMPARE(scan("1436/2"), "1436/2");
            press(Qt::Key_F2);
            QCOMPARE(scan("12/14"), "12/14");
            QCOMPARE(session.WorkingDate, QDate(2024, 1, 26));
            press(Qt::Key_F2);
            typeText("3/2"); // asked for the date: it is one
            press(Qt::Key_F2);
            QCOMPARE(day.selectedText(), "03-Feb-2024");
            typeText("4");
            press(Qt::Key_Tab);
            QCOMPARE(session.WorkingDate, QDate(2024, 2, 4));
            QCOMPARE(GetSetting(1, {}), "2024-02-04");
            control<QWidget>(main, "cmdCreateJOB").setFocus();
            typeText("14/");
            press(Qt::Key_Return); // half a code presses no button
            QVERIFY(main.isActiveWindow());
            QCOMPARE(scan("7/1"), "7/1");
        });
    }

    void firstStartsAtOnceMakeOneShop()
    {
        DE.close();
        QVERIFY(QFile::remove(session.databasePath()));
        QProcess starts[4];
        for (QProcess& program : starts)
            program.start(QCoreApplication::applicationFilePath(), {"--start-in", shop->folder()});
        for (QProcess& program : starts)
            QVERIFY2(program.waitForFinished() && program.exitCode() == 0, program.readAllStandardError());
        DE.open(session.databasePath());
        QCOMPARE(Shop::rows("Select Name from Shop"), QStringList("KORVANE"));
        QCOMPARE(Shop::count("Select * from Accounts"), 4);
    }

    void wallpaper()
    {
        const QString path = writeFile(shop->folder() + "/wall.jpg", "no picture");
        SetSetting(11, path);
        inModal<frmMain>([](frmMain& main) { QVERIFY(main.isVisible()); });
        QImage red(40, 30, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(path, "png"));
        inModal<frmMain>([&](frmMain& main) {
            const QImage wall = control<QWidget>(main, "MyWall").grab().toImage();
            QCOMPARE(wall.pixelColor(wall.rect().center()), QColor(Qt::red));
        });
    }

    void shopProfileAndItsLock()
    {
        const QString name = "<h1>Men's</h1> & 100% \U0001F9F5";
        inModal<frmMain>([&](frmMain& main) {
            onNextModal<frmShopINFO>([&](frmShopINFO& profile) {
                QVERIFY(!checked(profile, "Check1") && !control<QGroupBox>(profile, "Frame1").isEnabled());
                field(profile, "txtName").setText(name);
                click(profile, "Check1");
                field(profile, "txtUserName").setText("asha");
                told("Please enter User Name and Password!", save);
                QCOMPARE(Shop::value("Select Name from Shop").toString(), "KORVANE");
                field(profile, "txtPassword").setText("needle");
                told("Shop Info Updated.", save);
                QVERIFY(profile.isVisible());
            });
            click(main, "Command5");
            QCOMPARE(label(main, "lblShopName"), name);
            QCOMPARE(control<QLabel>(main, "lblShopName").textFormat(), Qt::PlainText);
            QCOMPARE(lock(), QStringList({"1", "asha", "needle"}));
            session.ShopContacts = "0981";
            onNextModal<frmShopINFO>([&](frmShopINFO& profile) {
                QCOMPARE(field(profile, "txtPassword").text(), "needle");
                click(profile, "Check1");
                told("Shop Info Updated.", save);
            });
            click(main, "Command5");
            QVERIFY(session.ShopContacts.isEmpty()); // empty text, no null: the session's copy empties too
            QCOMPARE(lock(), QStringList({"0", "", ""}));
        });
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--start-in") { // as the program itself, for one of those that start at once
        session.appFolder = arguments.value(2);
        openShopAhead();
        const bool started = Main();
        delete forms::Screen::front();
        return started ? 0 : 1;
    }
    tst_main test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_main.moc"
