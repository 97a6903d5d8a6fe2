#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Schema.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "core/Startup.h"
#include "support/Shop.h"

#include <QDir>
#include <QTest>

namespace {

/// A list that remembers what it was filled with.
struct Texts : ListTarget
{
    QStringList all{"left over"};

    void Clear() override { all.clear(); }
    void AddItems(const QStringList& texts) override { all += texts; }
};

void post(qint32 account, const QDate& date, double amount, int status = 0)
{
    ado::Recordset rows(DE.connection());
    rows.Open("Select * from Postings order by ID");
    rows.AddNew();
    rows["Vtype"] = 2;
    rows["Date"] = date;
    rows["AccID"] = account;
    rows["particulars"] = QString();
    rows["Remark"] = QString();
    rows["Amount"] = amount;
    rows["Status"] = status;
    rows.Update();
}

} // namespace

/// The shop's file and the small operations that all screens work through.
class tst_store : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void firstRun();
    void creationAmongRemains();
    void requiredColumns();
    void versionIsChecked();
    void settings();
    void sessionDefaults();
    void namesAndNumbers();
    void lists();
    void balances();
};

void tst_store::firstRun()
{
    Shop shop;
    for (const char* table : {"SHOP", "ITEMS", "JOBS", "JOBS_DETAIL", "tmpHead", "tmpBody", "postings",
                              "rank", "wagesregister", "accountbook"})
        QCOMPARE(Shop::count("Select * from " + QLatin1String(table)), 0);
    QCOMPARE(Shop::count("Select * from Settings"), 1);
    QCOMPARE(GetSetting(16, QString()), "12");

    ado::Recordset accounts(DE.connection());
    accounts.Open("Select * from accounts order by id");
    const QStringList titles{"Wages", "Sales", "Purchase", "Cash"};
    for (int i = 0; i < 4; ++i, accounts.MoveNext()) {
        QCOMPARE(accounts["Id"].integer(), i + 1);
        QCOMPARE(accounts["Title"].text(), titles[i]);
        QCOMPARE(accounts["Type"].integer(), 2);
        QCOMPARE(accounts["Nature"].integer(), i % 2 == 0 ? 1 : 0);
        QCOMPARE(accounts["ReadOnly"].integer(), 1);
    }
    QVERIFY(accounts.AtEOF());
}

/// What a lost database has left behind does the new one no harm, and nothing of the making stays.
void tst_store::creationAmongRemains()
{
    Shop shop;
    const QString path = session.databasePath();
    const QString journal = path + "-journal";
    DE.connection().Execute("PRAGMA cache_size=5");
    DE.connection().writeBatch([&] {
        for (int i = 0; i < 300; ++i)
            SetSetting(100 + i, QString(500, u'x'));
        QVERIFY(QFile::copy(journal, path + ".cut")); // as a power cut leaves it now
    });
    DE.close();
    QVERIFY(QFile::remove(path) && QFile::remove(journal));
    QVERIFY(QFile::rename(path + ".cut", journal));
    CreateDatabase();
    DE.open(path);
    QCOMPARE(GetSetting(16, QString()), "12");
    DE.close();

    QVERIFY(QFile::remove(path) && QDir().mkdir(path));
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, CreateDatabase());
    QCOMPARE(QDir(shop.folder()).entryList({"data.mdb.new*"}), QStringList());
}

void tst_store::requiredColumns()
{
    Shop shop;
    ado::Recordset jobs(DE.connection());
    const auto add = [&jobs](bool withRemark) {
        jobs.Open("Select * from JOBS");
        jobs.AddNew();
        for (const char* date : {"DATE", "DeliveryDate", "trialdate"})
            jobs[date] = QDate(2024, 2, 10);
        for (const char* number : {"ClintID", "AmountDue", "AmountPaid", "JOBFINISHED", "Status"})
            jobs[number] = 0;
        jobs["ClintName"] = QString();
        jobs["CancelReason"] = QString();
        if (withRemark)
            jobs["Remark"] = QString();
        jobs.Update();
    };
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, add(false));
    add(true);
    add(true);
    // Without a number of the program's own choice each card would get number 1: nothing in the file forbids
    // it.
    QCOMPARE(Shop::count("Select * from jobs where id=1"), 2);
}

void tst_store::versionIsChecked()
{
    Shop shop;
    QVERIFY(CheckDatabaseVersion());
    for (const char* version : {"11", "13", "", "twelve"}) {
        SetSetting(16, QString::fromLatin1(version));
        QVERIFY(!CheckDatabaseVersion());
    }
    DE.connection().Execute("Delete * from Settings");
    QVERIFY(!CheckDatabaseVersion());
}

void tst_store::settings()
{
    Shop shop;
    QCOMPARE(GetSetting(6, "as the reader says"), "as the reader says");
    QCOMPARE(Shop::count("Select * from settings"), 1);
    const QString tagLine = "The tailor's 100% choice \u2702 'since' 1985\r\nविशेष";
    SetSetting(6, "first");
    SetSetting(6, tagLine);
    shop.reopen();
    QCOMPARE(GetSetting(6, QString()), tagLine);
    QCOMPARE(Shop::count("Select * from settings where SETTING='6'"), 1);
    SetSetting(6, QString());
    QCOMPARE(GetSetting(6, "default"), QString());
}

void tst_store::sessionDefaults()
{
    Shop shop;
    LoadSessionDefaults();
    QCOMPARE(session.WorkingDate, QDate(2011, 4, 1));
    QCOMPARE(session.Language, "English");

    SetSetting(0, "Hindi");
    SetSetting(1, "2023-12-31");
    LoadSessionDefaults();
    QCOMPARE(session.WorkingDate, QDate(2023, 12, 31));
    QCOMPARE(session.Language, "Hindi");

    SetSetting(1, "no date at all");
    LoadSessionDefaults();
    QCOMPARE(session.WorkingDate, QDate(2011, 4, 1));

    SetSetting(22, "1");
    LoadSessionDefaults();
    QCOMPARE(session.WorkingDate, QDate::currentDate());
    QCOMPARE(GetSetting(1, QString()), "no date at all");
}

void tst_store::namesAndNumbers()
{
    Shop shop;
    const qint32 client = shop.addClient("Asha Rao");
    const qint32 shirt = shop.addItem("Men's Shirt", 450.5, 120);
    QCOMPARE(GetAccountID("asha rao"), client);
    QCOMPARE(GetAccountTitle(client), "Asha Rao");
    QCOMPARE(GetItemFees(shirt), 450.5);
    QCOMPARE(GetItemName(shirt), "Men's Shirt");
    QCOMPARE(GetItemID("Men's Shirt"), shirt);
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, GetItemWorkerFees("Men's Shirt"));
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, GetAccountID("D'Souza"));
    QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, GetAccountID("Nobody"));
    QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, GetItemName(999));

    const qint32 souza = shop.addClient("D'Souza");
    const auto find = [](const char* title, const char* field) {
        return FieldValueExists(QString::fromUtf8(title), "Title", QString::fromLatin1(field), "Accounts",
                                DE.rsaccounts);
    };
    QCOMPARE(find("d'souza", "ID").toInt(), souza);
    QVERIFY(DE.rsaccounts.State());
    QCOMPARE(find("D'Souza", "DOB").toInt(), -1);
    QCOMPARE(find("D_Souza", "ID").toInt(), -1);
    QVERIFY(!DE.rsaccounts.State());
}

void tst_store::lists()
{
    Shop shop;
    for (const char* name : {"ravi", "Anil", "zoya"})
        shop.addClient(QString::fromLatin1(name));
    shop.addWorker("Mohan");
    Texts list;
    FillList("Title", "Accounts", " where Type=0", list, DE.rsaccounts);
    QCOMPARE(list.all, QStringList({"Anil", "ravi", "zoya"}));
    FillCombo("Name", "Items", list, DE.rsITEMS);
    QVERIFY(list.all.isEmpty());
    QVERIFY(!DE.rsaccounts.State());
}

void tst_store::balances()
{
    Shop shop;
    const QDate day = session.WorkingDate;
    const qint16 account = static_cast<qint16>(shop.addClient("Asha"));
    QCOMPARE(GetBalance(account, day), 0.0);
    post(account, day, 0.10);
    post(account, day, 0.20);
    post(account, day, -0.30);
    QCOMPARE(GetBalance(account, day), 0.0);
    post(account, day, -500);
    post(account, day, -9999, 1);              // a cancelled card's
    post(account, day.addDays(1), -1);         // of tomorrow
    post(account, QDate(1985, 11, 16), -7777); // older than all time
    QCOMPARE(GetBalance(account, day), -500.0);
    QCOMPARE(GetPositiveTotal(account, day, day), 0.3);
    QCOMPARE(GetNegativeTotal(account, day, day.addDays(1)), -501.3);
    QCOMPARE(GetNegativeTotal(account, day.addDays(2), day.addDays(3)), 0.0);
}

QTEST_GUILESS_MAIN(tst_store)
#include "tst_store.moc"
