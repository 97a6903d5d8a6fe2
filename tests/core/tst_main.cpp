#include "core/DE.h"
#include "core/Schema.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "core/frmAbout.h"
#include "core/frmLogin.h"
#include "core/frmMain.h"
#include "core/frmMasters.h"
#include "core/frmShopINFO.h"
#include "core/modMain.h"
#include "masters/frmClients.h"
#include "platform/forms/DatePicker.h"
#include "support/KeysTo.h"
#include "support/Modal.h"
#include "support/Prompts.h"
#include "support/Shop.h"

#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

/// The start of the program, its main screen and the screens that stand beside it.
class tst_main : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void firstRunShowsTheShop();
    void startIsRefused_data();
    void startIsRefused();
    void picturesFolderCannotBeMade();
    void wallpaperThatIsNoPicture();
    void escAsksAndEnds();
    void workingDate();
    void menusByKeyboard();
    void login();
    void loginLeftEndsTheStart();
    void shopProfile();
    void passwordLock();

private:
    /// Shows the main screen modally, acts in it and closes it.
    void inMain(const std::function<void(frmMain&)>& act);

    std::unique_ptr<Shop> m_shop;
    std::unique_ptr<Prompts> m_prompts;
};

void tst_main::init()
{
    m_shop = std::make_unique<Shop>();
    m_prompts = std::make_unique<Prompts>();
}

void tst_main::cleanup()
{
    QVERIFY(m_prompts->allMet());
    m_prompts.reset();
    m_shop.reset();
}

void tst_main::inMain(const std::function<void(frmMain&)>& act)
{
    onNextModal<frmMain>(act);
    frmMain().showModal();
}

void tst_main::firstRunShowsTheShop()
{
    DE.close();
    QVERIFY(QFile::remove(session.databasePath()));
    QVERIFY(Main());
    QVERIFY(QFile::exists(session.databasePath()));
    QVERIFY(QFileInfo(session.imagesFolder()).isDir());
    QCOMPARE(Shop::value(QStringLiteral("Select Name from Shop where id=1")).toString(),
             QStringLiteral("KORVANE"));
    auto* main = qobject_cast<frmMain*>(forms::Screen::front());
    QVERIFY(main);
    QCOMPARE(control<QLabel>(*main, "lblShopName").text(), QStringLiteral("KORVANE"));
    QVERIFY(session.ShopName.isEmpty());
    delete main;
}

void tst_main::startIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("version");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("plain text") << QByteArray("These are the shop's clients: Asha, Ravi.").repeated(200)
                                << QString();
    QTest::newRow("older version") << QByteArray() << QStringLiteral("11");
}

/// A file that is there but not ours is told by name, and never taken for a first run.
void tst_main::startIsRefused()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, version);
    if (version.isEmpty()) {
        DE.close();
        QFile database(session.databasePath());
        QVERIFY(database.open(QIODevice::WriteOnly | QIODevice::Truncate));
        database.write(file);
    } else {
        SetSetting(16, version);
        DE.close();
        m_prompts->expect(QStringLiteral("Invalid Database!\r\nSeamwise Can not Run with this Database!"));
    }
    QFile database(session.databasePath());
    QVERIFY(database.open(QIODevice::ReadOnly));
    const QByteArray before = database.readAll();
    database.close();

    if (version.isEmpty()) {
        // The engine's words differ by fault: what counts is that the file is named.
        onNextModal<QMessageBox>([](QMessageBox& box) {
            QVERIFY2(box.text().contains(session.databasePath()), qPrintable(box.text()));
        });
        m_prompts.reset();
    }
    QVERIFY(!Main());
    if (!m_prompts)
        m_prompts = std::make_unique<Prompts>();
    DE.close();
    QVERIFY(database.open(QIODevice::ReadOnly));
    QCOMPARE(database.readAll(), before);
}

void tst_main::picturesFolderCannotBeMade()
{
    DE.close();
    QVERIFY(QDir(session.imagesFolder()).removeRecursively());
    QFile blocker(session.imagesFolder());
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    QVERIFY(Main());
    delete forms::Screen::front();
}

void tst_main::wallpaperThatIsNoPicture()
{
    const QString path = m_shop->folder() + QStringLiteral("/wall.jpg");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    QImage builtIn;
    inMain([&](frmMain& main) { builtIn = main.grab().toImage(); });
    SetSetting(11, path);
    inMain([&](frmMain& main) { QCOMPARE(main.grab().toImage(), builtIn); });
    QImage red(40, 30, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(path, "png"));
    inMain([&](frmMain& main) {
        auto& wall = control<QWidget>(main, "MyWall");
        QCOMPARE(wall.grab().toImage().pixelColor(wall.rect().center()), QColor(Qt::red));
        QVERIFY(wall.grab().toImage().pixelColor(2, 2) != QColor(Qt::red));
    });
}

void tst_main::escAsksAndEnds()
{
    inMain([this](frmMain& main) {
        m_prompts->expect(QStringLiteral("Are you sure to exit?"), Answer::No);
        press(Qt::Key_Escape);
        QVERIFY(main.isVisible());
        m_prompts->expect(QStringLiteral("Are you sure to exit?"), Answer::Esc);
        press(Qt::Key_Escape);
        QVERIFY(main.isVisible());
        m_prompts->expect(QStringLiteral("Are you sure to exit?"), Answer::Yes);
        press(Qt::Key_Escape);
        QVERIFY(!main.isVisible());
    });
}

void tst_main::workingDate()
{
    session.WorkingDate = QDate(2024, 2, 29);
    inMain([](frmMain& main) {
        auto& picker = control<forms::DatePicker>(main, "TodayDate");
        QCOMPARE(picker.value(), QDate(2024, 2, 29));
        // Showing the date is no change of it: nothing is kept yet.
        QCOMPARE(GetSetting(1, QStringLiteral("never")), QStringLiteral("never"));
        press(Qt::Key_F2);
        QVERIFY(picker.hasFocus());
        press(Qt::Key_Down);
        QCOMPARE(session.WorkingDate, picker.value());
        QVERIFY(session.WorkingDate != QDate(2024, 2, 29));
        QCOMPARE(GetSetting(1, QString()), session.WorkingDate.toString(Qt::ISODate));
    });
}

void tst_main::menusByKeyboard()
{
    inMain([](frmMain& main) {
        bool listSeen = false;
        onNextModal<frmMasters>([&](frmMasters& masters) {
            onNextModal<frmClients>([&](frmClients&) {
                listSeen = true;
                press(Qt::Key_Escape);
            });
            press(Qt::Key_C, Qt::AltModifier);
            QVERIFY(masters.isVisible());
            press(Qt::Key_Escape);
            QVERIFY(!masters.isVisible());
        });
        press(Qt::Key_M, Qt::AltModifier);
        QVERIFY(listSeen);
        QVERIFY(main.isVisible());
    });
}

void tst_main::login()
{
    SetSetting(8, QStringLiteral("Asha"));
    SetSetting(9, QStringLiteral("needle"));
    onNextModal<frmLogin>([this](frmLogin& login) {
        auto& user = control<QLineEdit>(login, "txtUserName");
        auto& password = control<QLineEdit>(login, "txtPassword");
        m_prompts->expect(QStringLiteral("Please enter user name!"));
        press(Qt::Key_L, Qt::AltModifier);
        QVERIFY(user.hasFocus());
        typeText(QStringLiteral("Asha"));
        m_prompts->expect(QStringLiteral("Please enter password!"));
        press(Qt::Key_L, Qt::AltModifier);
        QVERIFY(password.hasFocus());
        typeText(QStringLiteral("Needle"));
        m_prompts->expect(QStringLiteral("Invalid user name or password!"));
        press(Qt::Key_L, Qt::AltModifier);
        QVERIFY(user.hasFocus() && user.text().isEmpty() && password.text().isEmpty());
        typeText(QStringLiteral("Asha"));
        press(Qt::Key_Return);
        typeText(QStringLiteral("needle"));
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    QVERIFY(frmLogin().Login());
}

void tst_main::loginLeftEndsTheStart()
{
    SetSetting(7, QStringLiteral("1"));
    DE.close();
    onNextModal<frmLogin>([](frmLogin&) { press(Qt::Key_Escape); });
    QVERIFY(!Main());
}

void tst_main::shopProfile()
{
    inMain([this](frmMain& main) {
        onNextModal<frmShopINFO>([this](frmShopINFO& screen) {
            auto& name = control<QLineEdit>(screen, "txtName");
            QCOMPARE(name.text(), QStringLiteral("KORVANE"));
            name.setText(QStringLiteral("<h1>Men's</h1> & 100% \U0001F9F5"));
            control<QLineEdit>(screen, "txtCONTACTS").setText(QStringLiteral("98290 14523"));
            m_prompts->expect(QStringLiteral("Shop Info Updated."));
            press(Qt::Key_S, Qt::AltModifier);
            QVERIFY(screen.isVisible());
        });
        control<QPushButton>(main, "Command5").click();
        const auto& shown = control<QLabel>(main, "lblShopName");
        QCOMPARE(shown.text(), QStringLiteral("<h1>Men's</h1> & 100% \U0001F9F5"));
        QCOMPARE(shown.textFormat(), Qt::PlainText);
        QCOMPARE(session.ShopContacts, QStringLiteral("98290 14523"));
    });
    // An emptied line is empty text, no null: the session's copy empties too.
    DE.connection().Execute(QStringLiteral("Update Shop set Contacts='' where id=1"));
    inMain([](frmMain&) { QVERIFY(session.ShopContacts.isEmpty()); });
}

void tst_main::passwordLock()
{
    inMain([](frmMain&) {}); // makes the shop's row
    const auto edit = [this](const std::function<void(frmShopINFO&)>& act) {
        onNextModal<frmShopINFO>(act);
        frmShopINFO().showModal();
        QVERIFY(m_prompts->allMet());
    };
    edit([this](frmShopINFO& screen) {
        auto& lock = control<QCheckBox>(screen, "Check1");
        QVERIFY(!lock.isChecked() && !control<QGroupBox>(screen, "Frame1").isEnabled());
        lock.click();
        control<QLineEdit>(screen, "txtUserName").setText(QStringLiteral("asha"));
        control<QLineEdit>(screen, "txtName").setText(QStringLiteral("Not To Be Stored"));
        m_prompts->expect(QStringLiteral("Please enter User Name and Password!"));
        press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(Shop::value(QStringLiteral("Select Name from Shop")).toString(), QStringLiteral("KORVANE"));
        control<QLineEdit>(screen, "txtPassword").setText(QStringLiteral("needle"));
        m_prompts->expect(QStringLiteral("Shop Info Updated."));
        press(Qt::Key_S, Qt::AltModifier);
    });
    QCOMPARE(GetSetting(7, QString()) + GetSetting(8, QString()) + GetSetting(9, QString()),
             QStringLiteral("1ashaneedle"));
    edit([this](frmShopINFO& screen) {
        QCOMPARE(control<QLineEdit>(screen, "txtPassword").text(), QStringLiteral("needle"));
        control<QCheckBox>(screen, "Check1").click();
        QVERIFY(control<QLineEdit>(screen, "txtPassword").text().isEmpty());
        m_prompts->expect(QStringLiteral("Shop Info Updated."));
        press(Qt::Key_S, Qt::AltModifier);
    });
    QCOMPARE(GetSetting(7, QString()) + GetSetting(8, QString()) + GetSetting(9, QString()),
             QStringLiteral("0"));
}

QTEST_MAIN(tst_main)
#include "tst_main.moc"
