#include "core/store/Schema.h"
#include "core/store/SchemaSteps.h"
#include "core/store/Startup.h"
#include "support/Files.h"
#include "support/Refusal.h"
#include "support/Shop.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

/// A list that remembers what it was filled with.
struct Texts : ListTarget
{
    QStringList all{"left over"};

    void Clear() override { all.clear(); }
    void AddItems(const QStringList& texts) override { all += texts; }
};

/// The shop's file and the small operations that all screens work through.
class tst_store : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void firstRun()
    {
        const Shop shop;
        QCOMPARE(Shop::rows("Select Id, Title, Type, Nature, ReadOnly from accounts order by id"),
                 QStringList({"1 Wages 2 1 1", "2 Sales 2 0 1", "3 Purchase 2 1 1", "4 Cash 2 0 1"}));
        QVERIFY(CheckDatabaseVersion());
        for (const char* version : {"11", "13", "", "twelve"}) {
            SetSetting(16, version);
            QVERIFY(!CheckDatabaseVersion());
        }
        Shop::run("Delete * from Settings");
        QVERIFY(!CheckDatabaseVersion());
    }

    /// What a lost database has left behind does the new one no harm, and nothing of the making stays.
    void aFileOfAnEarlierVersion()
    {
        const Shop shop;
        SetSetting(settings::DatabaseVersion, "10");
        const auto run = [](const QString& sql) {
            return [sql](ado::Connection& file) { file.Execute(sql); };
        };
        const SchemaStep adds{10, run("Create table Racks (Id INTEGER)")};
        const QString kept = shop.folder() + "/data.before-restore.mdb";

        QVERIFY(!bringUpToDate()); // no step leads from there
        QVERIFY(!bringUpToDate({adds}));
        const std::vector<SchemaStep> broken{adds, {11, run("Insert into Nowhere values (1)")}};
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, bringUpToDate(broken));
        QCOMPARE(Shop::count("Select * from sqlite_master where name='Racks'"), 0);
        QVERIFY(!QFile::exists(kept) && !QFile::exists(shop.folder() + "/data.restoring.mdb"));

        const std::vector<SchemaStep> steps{
            {9, run("nonsense")}, adds, {11, run("Insert into Racks values (7)")}};
        QVERIFY(bringUpToDate(steps) && CheckDatabaseVersion());
        QCOMPARE(Shop::value("Select Id from Racks"), "7");
        DE.close();
        DE.open(kept);
        QCOMPARE(GetSetting(16, {}), "10");
    }

    void creationAmongRemains()
    {
        const Shop shop;
        const QString path = session.databasePath();
        const QString journal = path + "-journal";
        Shop::run("PRAGMA cache_size=5");
        DE.connection().writeBatch([&] {
            for (int i = 0; i < 300; ++i)
                SetSetting(100 + i, QString(500, u'x'));
            QVERIFY(QFile::copy(journal, path + ".cut")); // as a power cut leaves it now
        });
        DE.close();
        QVERIFY(QFile::remove(path) && QFile::remove(journal) && QFile::rename(path + ".cut", journal));
        CreateDatabase();
        DE.open(path);
        QCOMPARE(GetSetting(16, {}), "12");
        DE.close();

        QVERIFY(QFile::remove(path) && QDir().mkdir(path));
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, CreateDatabase());
        QCOMPARE(QDir(shop.folder()).entryList({"data.mdb.new*"}), QStringList());
    }

    void theFileIsTheOwnersAloneAndTakesNobodysPlace()
    {
        const Shop shop;
        const QString path = session.databasePath();
        const auto owners = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFile::permissions(path), owners);
        QCOMPARE(QFile::permissions(path + "-journal"), owners);
        QCOMPARE(QFile::permissions(session.imagesFolder()), owners | QFile::ExeOwner | QFile::ExeUser);

        SetSetting(200, "kept");
        CreateDatabase(); // another first start was quicker
        QCOMPARE(GetSetting(200, {}), "kept");
        DE.close();
        QVERIFY(QFile::remove(path) && QFile::link(shop.folder() + "/unplugged.mdb", path));
        QVERIFY(refusal([] { CreateDatabase(); }).startsWith(path));
        QVERIFY(QFileInfo(path).isSymLink());
    }

    /// A program's shop lies beside it; that of an installed one, among its user's data.
    void theShopsFolder()
    {
        const QTemporaryDir top;
        const QString data = top.filePath("data"), parts = top.filePath("share/seamwise"),
                      program = top.filePath("bin");
        const auto before = qScopeGuard([kept = session, home = qgetenv("XDG_DATA_HOME")] {
            session = kept;
            home.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", home);
        });
        qputenv("XDG_DATA_HOME", data.toUtf8());
        QVERIFY(QDir().mkpath(program));
        FindFolders(program);
        QCOMPARE(session.databasePath(), program + "/data.mdb");
        QCOMPARE(session.languageDatabasePath(), program + "/Lang.mdb");

        QVERIFY(QDir().mkpath(parts));
        FindFolders(program);
        QCOMPARE(session.databasePath(), data + "/seamwise/data.mdb");
        QCOMPARE(session.languageDatabasePath(), parts + "/Lang.mdb");
        writeFile(data, "no folder");
        QVERIFY_THROWS_EXCEPTION(OperatorError, MakeShopFolder());
        QVERIFY(QFile::remove(data));
        MakeShopFolder();
        QCOMPARE(QFile::permissions(session.appFolder) & ~QFile::Permissions(0x7700), QFile::Permissions());
        QVERIFY(QFile::setPermissions(session.appFolder,
                                      QFile::permissions(session.appFolder) | QFile::ReadGroup));
        MakeShopFolder(); // a folder that its owner has opened to others stays as it is
        QVERIFY(QFile::permissions(session.appFolder) & QFile::ReadGroup);

        writeFile(program + "/data.mdb", "a shop");
        FindFolders(program);
        QCOMPARE(session.databasePath(), program + "/data.mdb");
        QCOMPARE(session.languageDatabasePath(), parts + "/Lang.mdb");
    }

    void settingsAndSession()
    {
        Shop shop;
        const QString tagLine = "The tailor's 100% choice \u2702 'since' 1985\r\nविशेष";
        SetSetting(6, "first");
        SetSetting(6, tagLine);
        shop.reopen();
        QCOMPARE(GetSetting(6, {}), tagLine);
        QCOMPARE(Shop::count("Select * from settings where SETTING='6'"), 1);
        SetSetting(6, {});
        QCOMPARE(GetSetting(6, "default"), QString());

        for (const auto& [stored, date] :
             {std::pair("2023-12-31", QDate(2023, 12, 31)), std::pair("no date at all", QDate(2011, 4, 1))}) {
            SetSetting(1, stored);
            LoadSessionDefaults();
            QCOMPARE(session.WorkingDate, date);
        }
        SetSetting(22, "1");
        LoadSessionDefaults();
        QCOMPARE(session.WorkingDate, QDate::currentDate());
    }

    void lookUps()
    {
        Shop shop;
        const qint32 client = shop.addClient("asha Rao");
        const qint32 souza = shop.addClient("D'Souza");
        const qint32 emile = shop.addClient(QString("\u00c9mile d\u2019Arc"));
        shop.addWorker("Mohan");
        const qint32 shirt = shop.addItem("Men's Shirt", 450.5, 120);
        QCOMPARE(GetAccountID("Asha rao"), client);
        QCOMPARE(GetItemID("Men's Shirt"), shirt);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, GetAccountID("D'Souza"));
        QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, GetItemName(999));
        for (const auto& [title, field, value] :
             {std::tuple("d'souza", "ID", souza), std::tuple("D\u2019SOUZA", "ID", souza),
              std::tuple("\u00e9MILE D'ARC", "ID", emile), std::tuple("D'Souza", "DOB", -1),
              std::tuple("D_Souza", "ID", -1)})
            QCOMPARE(FieldValueExists(title, "Title", field, "Accounts", DE.rsaccounts).toInt(), value);
        QVERIFY(!DE.rsaccounts.State());

        for (const char* title : {"\u00e9a", "D\u2019Arcy"})
            shop.addClient(title);
        Texts list;
        FillList("Title", "Accounts", " where Type=0", list, DE.rsaccounts);
        QCOMPARE(list.all,
                 QStringList({"asha Rao", "D\u2019Arcy", "D'Souza", "\u00e9a", "\u00c9mile d\u2019Arc"}));
    }

    void balances()
    {
        Shop shop;
        const QDate day = session.WorkingDate;
        const auto account = qint16(shop.addClient("Asha"));
        const auto post = [&](const QDate& date, double amount) {
            shop.addVoucher(1, account, 4, amount);
            Shop::run(QString("Update Postings set Date='%1' where id>(select max(id) from Postings)-2")
                          .arg(date.toString(Qt::ISODate)));
        };
        for (const double amount : {0.10, 0.20, -0.30})
            post(day, amount);
        QCOMPARE(GetBalance(account, day), 0.0);
        post(day, -9999);
        Shop::run("Update Postings set Status=1 where Amount=-9999"); // a cancelled card's
        post(day, -500);
        post(day.addDays(1), -1);
        post(QDate(1985, 11, 16), -7777); // older than all time
        QCOMPARE(GetBalance(account, day), -500.0);
        QCOMPARE(GetBalances("Select ID from Accounts where Type=0", day).value(account), -500.0);
        QCOMPARE(GetPositiveTotal(account, day, day), 0.3);
        QCOMPARE(GetNegativeTotal(account, day, day.addDays(1)), -501.3);
        QCOMPARE(GetNegativeTotal(account, day.addDays(2), day.addDays(3)), 0.0);
    }
};

QTEST_GUILESS_MAIN(tst_store)
#include "tst_store.moc"
