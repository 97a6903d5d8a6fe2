#include "core/shell/frmNewBooks.h"
#include "core/shell/frmSettings.h"
#include "core/store/Backup.h"
#include "messaging/modSMS.h"
#include "platform/forms/Theme.h"
#include "support/ShopTest.h"
#include "ui/Appearance.h"
#include "ui/frmSelectFile.h"
#include "ui/swTextBoxMultiLine.h"

#include <QDir>
#include <QFileDialog>

static QString stored(qint32 setting) { return GetSetting(setting, "none"); }

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
            press(Qt::Key_Backspace);
            typeFields({"abc", "3 days", "/home/shop/wall.png"}); // over the selected "0"
            onNextModal<frmSelectFile>([](frmSelectFile&) { press(Qt::Key_Escape); }); // on "Select"
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Space})
                press(key);
            press(Qt::Key_Tab);
            QVERIFY(!control<QWidget>(screen, "chHindiSlip").isEnabled());
            press(Qt::Key_Down); // Hindi
            press(Qt::Key_Return);
            press(Qt::Key_Space);
            press(Qt::Key_Tab, Qt::ControlModifier);
            control<QWidget>(screen, "txtLogo").setFocus();
            onNextModal<frmSelectFile>([](frmSelectFile& picker) {
                field(picker, "txtfilename").setText("/home/shop/logo.png");
                click(picker, "cmdOK");
            });
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Return, Qt::Key_Tab})
                press(key);
            typeFields({"stitched by hand"});
            for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Space})
                press(key);
            press(Qt::Key_Tab, Qt::ControlModifier);

            typeFields({"4", "rangoli tailors", "y"}); // no more than ten of the title
            for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Return})
                press(key);
            typeText("Thanks"); // in a draft, on a line of its own
            for (int i = 0; i < 3; ++i)
                press(Qt::Key_Tab);
            press(Qt::Key_Return); // "Load Default Draft": No
            save();
            QVERIFY(screen.isVisible());
            click(screen, "Command8"); // and Esc: stored is what was saved
            QVERIFY(!control<swTextBoxMultiLine>(screen, "txtSMS1").Text().contains("Thanks"));
            press(Qt::Key_Escape);
        });
        QStringList settings;
        for (const qint32 number : {0, 12, 2, 3, 4, 5, 6, 10, 11, 13, 14, 15, 19, 22, 23, 24, 25, 26})
            settings << stored(number);
        QCOMPARE(settings, QStringList({"Hindi", "Yes", "No", "Yes", "4", "/home/shop/logo.png",
                                        "Stitched By Hand", "Rangoli Ta", "/home/shop/wall.png", "3", "1",
                                        "0", "none", "1", "1", DefaultJobRegisteredDraft() + "\rThanks",
                                        DefaultJobFinishedDraft(), DefaultDueBalanceDraft()}));
    }

    void keepsWhatIsStored()
    {
        const std::pair<qint32, QString> kept[] = {{10, "Rangoli Tailors"},
                                                   {15, "0"},
                                                   {19, "/backup"},
                                                   {24, "Dear\r\rO'Hara\r"},
                                                   {25, "Dear\r\nO'Hara\n"}};
        for (const auto& [number, value] : kept)
            SetSetting(number, value);
        prompts->expect("Settings Updated.");
        inModal<frmSettings>([](frmSettings& screen) {
            QCOMPARE(field(screen, "txtBackuppath").text(), "/backup");
            save();
        });
        for (const auto& [number, value] : kept)
            QCOMPARE(stored(number), value);
    }

    void takesAPaymentAddress()
    {
        const QString address = "upi://pay?pa=rangoli@bank&pn=O'Neil \"Fine\" Tailors";
        inModal<frmSettings>([&](frmSettings& screen) {
            field(screen, "txtPaymentAddress").setText("pay at the counter");
            prompts->expect("The payment address must be a link, such as upi://pay?pa=name@bank or "
                            "https://pay.example/shop, of up to 1000 letters.\n\nNothing has been saved.");
            save();
            QCOMPARE(focused(screen), "txtPaymentAddress");
            QCOMPARE(stored(42) + stored(43), "nonenone");
            field(screen, "txtPaymentAddress").setText(' ' + address);
            press(Qt::Key_Return);
            press(Qt::Key_Space);
            prompts->expect("Settings Updated.");
            save();
        });
        QCOMPARE(stored(42) + stored(43), address + "1");
        inModal<frmSettings>([&](frmSettings& screen) {
            QCOMPARE(field(screen, "txtPaymentAddress").text(), address);
            QVERIFY(checked(screen, "chTwoReceipts"));
            field(screen, "txtPaymentAddress").clear(); // back to none
            prompts->expect("Settings Updated.");
            save();
        });
        QCOMPARE(stored(42), "");
    }

    void refusesWhatWouldStopTheShop()
    {
        prompts->expect(
            "\"Start Job Card number from\" must be from 1 to 2147483646.\n\nNothing has been saved.");
        prompts->expect("\"Delivery Margin in Days\" must be from 0 to 36500.\n\nNothing has been saved.");
        const QString asked("The modem can't send all letters of an SMS. Clients would read:\n\nPay ?5\n\n"
                            "Save it all the same?");
        prompts->expect(asked, Answer::No);
        inModal<frmSettings>([](frmSettings& screen) {
            for (const auto& [box, text] :
                 {std::pair("txtStartNum", "2147483647"), std::pair("txtDelMargin", "99999999999")}) {
                field(screen, "txtStartNum").setText("2147483646");
                field(screen, box).setText(text);
                save();
                QCOMPARE(focused(screen), box);
            }
            field(screen, "txtDelMargin").setText("36500");
            auto& due = control<swTextBoxMultiLine>(screen, "txtSMS3");
            due.selectAll();
            due.insertPlainText(QString::fromUtf8("Pay ₹5"));
            save();
            QCOMPARE(focused(screen), "txtSMS3");
            QCOMPARE(stored(23), "none");
        });
    }

    /// At once, for the screens that are open too, and again after the next start.
    void textSizeAndLook()
    {
        for (const char* size : {"", "7000", "-1", "150x"}) {
            SetSetting(settings::TextSize, size);
            SetSetting(settings::ScreenLook, "Purple");
            QCOMPARE(GetTextSize(), 100);
            QVERIFY(!IsDarkLook());
        }
        inModal<frmSettings>([this](frmSettings& screen) {
            QCOMPARE(combo(screen, "cmbTextSize").text() + combo(screen, "cmbLook").text(), "100 %Light");
            combo(screen, "cmbTextSize").setText("150 %");
            combo(screen, "cmbLook").setText("Dark");
            control<QWidget>(screen, "txtDelMargin").setFocus();
            typeText("12");
            prompts->expect("Settings Updated.");
            press(Qt::Key_S, Qt::AltModifier);
            QCOMPARE(field(screen, "txtDelMargin").text(), "12");
            QCOMPARE(control<QLabel>(screen, "lblLook").fontInfo().pointSizeF(), 15.75);
            QCOMPARE(control<QLabel>(screen, "lblLook").palette().color(QPalette::WindowText),
                     QColor(palette::ink.dark));
        });
        QCOMPARE(stored(51) + stored(52), "150Dark");
        forms::setAppearance({});
        shop->reopen();
        ApplyAppearance();
        QVERIFY(forms::appearance() == forms::Appearance({palette::Look::Dark, 150}));
        forms::setAppearance({});
        qApp->setStyleSheet({});
    }

    void backsUpAndRestores()
    {
        const QString folder = shop->folder() + "/stick";
        QDir().mkdir(folder);
        inModal<frmSettings>([&](frmSettings& screen) {
            for (const char* command : {"Command7", "Command4", "Command5"}) {
                prompts->expect("Please select backup file path!");
                click(screen, command);
            }
            onNextModal<QFileDialog>([&folder](QFileDialog& dialog) {
                control<QLineEdit>(dialog, "fileNameEdit").setText(folder);
                QMetaObject::invokeMethod(&dialog, "accept");
            });
            click(screen, "Command6");
            QCOMPARE(stored(19), folder);
            prompts->expect("No backup file found!");
            click(screen, "Command5");
            QCOMPARE(label(screen, "lblLastBackup"), "No backup yet");
            prompts->expect("Database Backup Created.");
            click(screen, "Command4");
            QCOMPARE(label(screen, "lblLastBackup"), "Last backup: today");
        });
        shop->addClient("Asha");
        prompts->expect("Database restored.\r\nPlease restart application.");
        inModal<frmSettings>([](frmSettings& screen) { click(screen, "Command5"); });
        shop->reopen();
        QCOMPARE(Shop::count("Select * from Accounts where Title='Asha'"), 0);
        QCOMPARE(lastBackupDay(), QDate::currentDate()); // of the archive, which was made before it was noted
    }

    /// By keys: who stays behind is seen and changed; the old books open from the client's folder.
    void makesNewBooks()
    {
        shop->addClient("Asha");
        shop->addItem("Shirt");
        JobCard card;
        Shop::order(card.JobRows, "Shirt", 300);
        JobCardHead head = Shop::head(1, "Asha", 300);
        head.Delivered = true;
        card.SaveNew(head);
        JobCard later;
        Shop::order(later.JobRows, "Shirt", 500);
        later.SaveNew(Shop::head(2, "Asha", 500));
        shop->addClient("Never Came");
        shop->addWorker("Left Long Ago");
        for (const char* old :
             {"JOBS set DATE='2020-03-01' where Id=1",
              "JOBS_DETAIL set DATE='2020-03-01', DoneByWorker=2, DelToCustDate='2020-03-02' where JobID=1",
              "postings set Date='2020-03-01' where VID=1"})
            Shop::run(QString("Update ") + old);
        prompts->expect("Make new books now, the old ones to end with 31-Jan-2024?", Answer::No);
        prompts->expect("Make new books now, the old ones to end with 31-Jan-2024?", Answer::Yes);
        prompts->expect("The new books are made. The old ones, to 31-Jan-2024, are listed with the copies of "
                        "the shop, on "
                        "the Backup page.\r\nPlease restart application.");
        inModal<frmSettings>([](frmSettings& screen) {
            onNextModal<frmNewBooks>([](frmNewBooks& books) {
                forms::ListView& list = listView(books, "lvIdle");
                QCOMPARE(focused(books), "lvIdle");
                QCOMPARE(rowText(books, 0, "lvIdle"), "Left Long Ago|Worker|never|");
                QCOMPARE(rowText(books, 1, "lvIdle"), "Never Came|Client|never|");
                press(Qt::Key_Down);
                press(Qt::Key_Return);
                QCOMPARE(rowText(books, 1, "lvIdle"), "Never Came|Client|never|Yes");
                date(books, "LastDay").setValue(QDate(2024, 1, 15));
                click(books, "cmdMake"); // shows that day first
                QVERIFY(books.isVisible() && list.cell(1, 3).isEmpty());
                date(books, "LastDay").setValue(QDate(2024, 1, 31));
                click(books, "cmdView");
                list.selectRow(1);
                press(Qt::Key_Return);
                click(books, "cmdMake");
                QVERIFY(books.isVisible());
                click(books, "cmdMake");
            });
            click(screen, "cmdNewBooks");
        });
        shop->reopen();
        QCOMPARE(Shop::rows("Select Title from Accounts where Type<2 order by Id"),
                 QStringList({"Asha", "Never Came"}));
        QCOMPARE(GetBalance(qint16(GetAccountID("Asha")), session.WorkingDate), -800.0);
        QCOMPARE(Shop::rows("Select JobID from JOBS_DETAIL"), QStringList("2"));
    }
};

QTEST_MAIN(tst_frmSettings)
#include "tst_frmSettings.moc"
