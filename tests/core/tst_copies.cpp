#include "core/shell/CopyAtStart.h"
#include "core/shell/Look.h"
#include "core/shell/frmDifferences.h"
#include "core/shell/frmMain.h"
#include "core/shell/frmSettings.h"
#include "core/store/Backup.h"
#include "core/store/Copies.h"
#include "core/store/Schema.h"
#include "core/store/Texts.h"
#include "masters/frmBringIn.h"
#include "masters/frmEditClients.h"
#include "planning/frmRatings.h"
#include "platform/devices/Files.h"
#include "support/Refusal.h"
#include "support/ShopTest.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QRandomGenerator>

namespace {

constexpr auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

QStringList names(const QString& folder) { return QDir(folder).entryList(all, QDir::Name); }

/// Gives a file of that name, and of noon on that day, to the folder of copies.
void layCopy(const QDate& day, const QByteArray& content = "a copy")
{
    QDir().mkpath(copies::folder());
    QFile file(writeFile(copies::folder() + '/' + copies::fileName(day, day), content));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(day.startOfDay().addSecs(43200), QFileDevice::FileModificationTime));
}

QStringList copiesThere()
{
    QStringList found;
    for (const copies::Copy& copy : copies::inFolder(copies::folder()))
        found << copy.path;
    return found;
}

/// The titles of a copy's clients.
QStringList clientsOf(const QString& copy)
{
    ado::Connection connection;
    connection.open(copy, databasePassword(), ado::Connection::Mode::ReadOnly);
    QStringList titles;
    ado::Recordset rows(connection);
    for (rows.Open("Select Title from Accounts where Type=0 order by Id"); !rows.AtEOF(); rows.MoveNext())
        titles << rows[0].text();
    return titles;
}

QStringList isoDays(const QSet<QDate>& days)
{
    QStringList texts;
    for (const QDate& day : days)
        texts << day.toString(Qt::ISODate);
    texts.sort();
    return texts;
}

/// The other life of this program: it changes the shop and copies it without end.
[[noreturn]] void copyUntilKilled(const QString& folder)
{
    session.appFolder = folder;
    DE.open(session.databasePath());
    for (int i = 1;; ++i) {
        Shop::run(QString("Update Accounts set City='%1' where Title='Asha'").arg(i));
        copies::finishDay();
        std::fputs("copied\n", stdout);
        std::fflush(stdout);
    }
}

} // namespace

class tst_copies : public ShopTest
{
    Q_OBJECT
    void lay() override
    {
        shop->addClient("Asha");
        for (int i = 0; i < 60; ++i)
            shop->addItem(QString("Shirt %1").arg(i), 100, 40, QString(4000, 'x'));
    }

    /// Lets the copy at a start run to its end.
    static void start()
    {
        CopyAtStart copy(nullptr);
        bool ended = false;
        QObject::connect(&copy, &CopyAtStart::ended, [&ended] { ended = true; });
        copy.begin();
        QTRY_VERIFY(ended);
    }

private Q_SLOTS:
    void whichDaysStay_data()
    {
        QTest::addColumn<QString>("there"); // "a..b": each day from a to b; "c": that day
        QTest::addColumn<QString>("stay");
        const auto row = QTest::newRow;
        row("none") << ""
                    << "";
        row("seven days") << "2026-11-17..2026-11-23"
                          << "2026-11-17..2026-11-23";
        // The week of the 16th is the seven days' own already.
        row("a month") << "2026-10-20..2026-11-23"
                       << "2026-10-25 2026-11-01 2026-11-08 2026-11-15 2026-11-17..2026-11-23";
        row("two years") << "2024-10-01..2026-11-23"
                         << "2025-10-31 2025-11-30 2025-12-31 2026-01-31 2026-02-28 2026-03-31 2026-04-30 "
                            "2026-05-31 2026-06-30 2026-07-31 2026-08-31 2026-09-30 2026-10-25 2026-11-01 "
                            "2026-11-08 2026-11-15 2026-11-17..2026-11-23";
        row("a year of rest") << "2025-09-01 2025-09-02..2025-09-08 2026-11-23"
                              << "2025-09-03..2025-09-08 2026-11-23";
        row("twice a year") << "2023-01-01 2023-07-01 2024-01-01 2024-07-01 2026-11-23"
                            << "2023-01-01 2023-07-01 2024-01-01 2024-07-01 2026-11-23";
        row("the clock was wrong") << "2026-11-17..2026-11-23 2031-01-01..2031-01-09"
                                   << "2026-11-17..2026-11-23 2031-01-03..2031-01-09";
    }
    void whichDaysStay()
    {
        const auto days = [](const QString& text) {
            QSet<QDate> found;
            for (const QString& span : text.split(' ', Qt::SkipEmptyParts)) {
                const QStringList ends = span.split("..");
                for (QDate day = QDate::fromString(ends.first(), Qt::ISODate);
                     day <= QDate::fromString(ends.last(), Qt::ISODate); day = day.addDays(1))
                    found << day;
            }
            return found;
        };
        QFETCH(QString, there);
        QFETCH(QString, stay);
        const QSet<QDate> kept = copies::kept(days(there).values(), QDate(2026, 11, 23));
        QCOMPARE(isoDays(kept), isoDays(days(stay)));
    }

    /// Each day of use ends with one copy, of its last state; a day without a change makes none.
    void daysEndWithACopy()
    {
        QVERIFY(copies::isDue());
        copies::finishDay();
        QVERIFY(!copies::isDue());
        const QDate today = QDate::currentDate();
        const QString ofToday = copies::folder() + '/' + copies::fileName(today, QDate(2024, 2, 10));
        QCOMPARE(copiesThere(), QStringList({ofToday}));
        QCOMPARE(clientsOf(ofToday), QStringList({"Asha"}));
        QCOMPARE(archive::birthMark(ofToday), archive::birthMark(session.databasePath()));
        const QByteArray first = contents(ofToday);
        copies::finishDay();
        QVERIFY(contents(ofToday) == first);

        const QString stick = shop->folder() + "/stick";
        QDir().mkpath(stick + "/SEcopies");
        layCopy(today.addDays(-1));
        layCopy(today.addYears(-3));
        for (int ago = 2; ago < 30; ++ago)
            layCopy(today.addDays(-ago));
        writeFile(copies::folder() + "/Before Diwali.mdb", "mine");
        writeFile(stick + "/SEcopies/" + copies::fileName(today.addDays(-1), today), first);
        writeFile(stick + "/SEcopies/" + copies::fileName(today.addDays(-2), today), "of another shop");
        SetSetting(settings::BackupFolder, stick);
        shop->addClient("Bala");
        session.WorkingDate = QDate(2024, 2, 11);
        copies::finishDay();
        const QString newName = copies::fileName(today, QDate(2024, 2, 11));
        QCOMPARE(clientsOf(copies::folder() + '/' + newName), QStringList({"Asha", "Bala"}));
        QVERIFY(!QFile::exists(ofToday));
        const QStringList there = names(copies::folder());
        QVERIFY(there.contains("Before Diwali.mdb"));
        QVERIFY(there.contains(copies::fileName(today.addYears(-3), today.addYears(-3))));
        QVERIFY(there.size() >= 11 && there.size() <= 14); // seven days, four weeks, up to two months, "mine"
        QCOMPARE(names(stick + "/SEcopies"),
                 QStringList({copies::fileName(today.addDays(-2), today), newName}));
        QCOMPARE(clientsOf(stick + "/SEcopies/" + newName), QStringList({"Asha", "Bala"}));
    }

    /// A program that was killed has made no copy: the next start does, while the operator goes on.
    void startMakesTheCopyThatIsMissing()
    {
        SetSetting(settings::WorkingDate, "2024-02-12");
        start();
        QCOMPARE(session.CopyTrouble, QString());
        QCOMPARE(copiesThere().size(), 1);
        QVERIFY(copiesThere().first().endsWith("works-on-2024-02-12.mdb"));
        QVERIFY(!copies::isDue());
        {
            copies::Making making({});
            QVERIFY(!making.step(20));
            shop->addClient("Bala"); // reaches the copy, too
            while (!making.step(20)) {
            }
            making.takePlace();
        }
        QCOMPARE(copiesThere().size(), 1);
        QCOMPARE(clientsOf(copiesThere().first()), QStringList({"Asha", "Bala"}));

        // The shop's file is exchanged meanwhile: its handle is let go.
        copies::Making making({});
        QVERIFY(!making.step(1));
        DE.close();
        QVERIFY(refusal([&making] { making.step(1); }).contains("given up"));
        QVERIFY(refusal([] { copies::Making second({}); }).contains("Another program"));
        shop->reopen();
    }

    void troubleIsSaidAtTheNextStart()
    {
        const QByteArray live = contents(session.databasePath());
        writeFile(copies::folder(), "a letter");
        copies::finishDay();
        start();
        QVERIFY2(session.CopyTrouble.startsWith("The last day's copy of the shop could not be made.") &&
                     session.CopyTrouble.contains("copies cannot be made"),
                 qPrintable(session.CopyTrouble));
        QVERIFY(QFile::remove(copies::folder()));
        QVERIFY(QFile::link(shop->folder() + "/nowhere", copies::folder()));
        start();
        QVERIFY(session.CopyTrouble.contains("copies cannot be made"));
        QVERIFY(QFile::remove(copies::folder()));
        QVERIFY(contents(session.databasePath()) == live);

        SetSetting(settings::BackupFolder, shop->folder() + "/unplugged");
        start();
        QVERIFY2(session.CopyTrouble.contains("unplugged: the copy of"), qPrintable(session.CopyTrouble));
        QCOMPARE(copiesThere().size(), 1);
        QDir().mkdir(shop->folder() + "/unplugged");
        start();
        QCOMPARE(session.CopyTrouble, QString());
        QCOMPARE(names(shop->folder() + "/unplugged/SEcopies").size(), 1);
    }

    /// A copy opens as the shop itself does, and takes nothing; then the living shop goes on.
    void shopOfACopyIsLookedAt()
    {
        shop->addJob(7);
        shop->addJobLine(5, 1, shop->addWorker("Ravi"), "Score=4");
        SetSetting(settings::WorkingDate, "2024-02-09");
        SetSetting(settings::SystemDateAtStart, "1");
        copies::finishDay();
        const QString copy = copiesThere().first();
        const QByteArray before = contents(copy);
        shop->addClient("Bala");
        Shop::run("Delete * from Jobs");
        const QByteArray living = contents(session.databasePath());
        const QString sentence = "This is the shop as it was on " + dateText(QDate::currentDate()) +
                                 ", only to be looked at: nothing in it can be changed.";
        const auto look = [&](frmMain& main) {
            QCOMPARE(label(main, "lblBand"), "The shop as it was on " + dateText(QDate::currentDate()) +
                                                 ", only to be looked at: nothing can be changed.");
            QVERIFY(control<QLabel>(main, "lblBand").isVisible());
            QCOMPARE(clientsOf(copy), Shop::rows("Select Title from Accounts where Type=0 order by Id"));
            QCOMPARE(Shop::count("Select * from Jobs where id=7"), 1);
            QCOMPARE(session.WorkingDate, QDate(2024, 2, 9));
            const std::function<void()> writes[] = {[] { Shop::run("Delete * from Jobs"); },
                                                    [] { Shop::run("Drop table Jobs"); },
                                                    [] { SetSetting(settings::TagLine, "new"); },
                                                    [this] { shop->addClient("Chand"); },
                                                    [] { frmBringIn::choose(nullptr, bringin::Kind::Items); },
                                                    [] { bringin::take({}, {}); },
                                                    [this] { shop->addVoucher(1, 1, 2, 5); },
                                                    [] {
                                                        JobCard card;
                                                        card.SaveNew(Shop::head(8, "Asha", 100));
                                                    },
                                                    [] {
                                                        JobCard card;
                                                        card.CurrentJobID = 7;
                                                        card.Delete();
                                                    }};
            for (const auto& write : writes)
                QCOMPARE(refusal(write), sentence);
            RememberSetting(settings::WebcamDriver, "1");
            prompts->expect(sentence);
            onNextModal<frmEditClients>([](frmEditClients& client) {
                save();
                QCOMPARE(field(client, "txtName").text(), "Chand");
            });
            QString added;
            frmEditClients().AddNewFromJobCard(added, "Chand");
            QCOMPARE(added, QString());
            inModal<frmRatings>([](frmRatings& ratings) { QVERIFY(rowText(ratings, 0).contains("Ravi")); });
            DE.connection().writeBatch([] { DE.connection().Execute("Delete * from accountbook"); });
            Shop::add("tmpHead", {{"JOBID", 7},
                                  {"Date", ""},
                                  {"NAME", ""},
                                  {"DELDATE", ""},
                                  {"TrialDate", ""},
                                  {"AMOUNTDUE", ""},
                                  {"AMOUNTPAID", ""},
                                  {"AMOUNT", ""}});
            press(Qt::Key_Escape);
        };
        onNextModal<frmSettings>([&](frmSettings& screen) {
            onNextModal<frmMain>(look);
            press(Qt::Key_I, Qt::AltModifier);
            QCOMPARE(focused(screen), "lvCopies");
            press(Qt::Key_Return);
            QCOMPARE(session.LookedAt, QString());
            writeFile(shop->folder() + "/data.before-restore.mdb", "no shop at all");
        });
        frmSettings().ShowBackup();
        QCOMPARE(Shop::count("Select * from Accounts where Title='Bala'"), 1);
        QCOMPARE(Shop::count("Select * from Jobs"), 0);
        QCOMPARE(Shop::count("Select * from tmpHead"), 0);
        QCOMPARE(session.WorkingDate, QDate(2024, 2, 10));
        QVERIFY(contents(copy) == before);
        QVERIFY(contents(session.databasePath()) == living);
        QVERIFY(refusal([this] {
                    lookInto(shop->folder() + "/data.before-restore.mdb");
                }).contains("data.before-restore.mdb"));
        QCOMPARE(session.LookedAt, QString());
        shop->addClient("Dina"); // and goes on
        inModal<frmMain>([](frmMain& main) { QVERIFY(!main.findChild<QLabel*>("lblBand")); });
    }

    /// A card that was deleted is found in the newest copy and comes back by keys alone, with all that hangs
    /// on it; a voucher too.
    void whatIsGoneComesBack()
    {
        shop->addWorker("Ravi");
        const qint32 gone = shop->addClient("Gopal");
        JobCard card;
        Shop::order(card.JobRows, "Shirt 1", 300);
        Shop::order(card.JobRows, "Shirt 2", 200);
        card.SaveNew(Shop::head(1, "Gopal", 500, 150));
        Shop::run("Update Jobs_Detail set DoneByWorker=1, WorkerID=" + QString::number(GetAccountID("Ravi")));
        JobCard stays;
        Shop::order(stays.JobRows, "Shirt 1", 70);
        stays.SaveNew(Shop::head(2, "Asha", 70));
        shop->addVoucher(1, 4, 5, 90);
        shop->addVoucher(2, 4, 5, 80);
        const QString lines(
            "Select ItemName, QNT, Amount, WorkerName, DoneByWorker from Jobs_Detail where JobID=");
        const QStringList before = Shop::rows(lines + '1');
        copies::finishDay();
        card.Delete();
        Shop::run("Delete * from Accounts where Title='Gopal'");
        Shop::run("Delete * from Items where Name='Shirt 2'");
        Shop::run("Update Jobs set Remark='in haste' where id=2");
        Shop::run("Delete * from Postings where vid=1 and vtype=2");
        shop->addClient("Bala");
        shop->addVoucher(3, 4, 5, 60);

        prompts->expect("Bring back Job card 1 (Gopal) into the living shop, as a new one?", Answer::Yes);
        prompts->expect("It is Job card 3 of the living shop now.");
        prompts->expect("Bring back Voucher 1 (Receipt: Cash, Asha) into the living shop, as a new one?",
                        Answer::Yes);
        prompts->expect("It is Voucher 4 of the living shop now.");
        prompts->expect("Voucher 3 was not there on that day: it is in the living shop.");
        onNextModal<frmSettings>([](frmSettings& screen) {
            onNextModal<frmMain>([](frmMain&) {
                onNextModal<frmDifferences>([](frmDifferences& list) {
                    QStringList told;
                    for (int row = 0; row < listView(list, "lvSummary").rowCount(); ++row)
                        told << rowText(list, row);
                    QCOMPARE(told,
                             QStringList({"deleted since|Job card 1|10-Feb-2024|Gopal|500.00",
                                          "deleted since|Voucher 1|10-Feb-2024|Receipt: Cash, Asha|90.00",
                                          "changed since|Job card 2|10-Feb-2024|Asha|70.00",
                                          "added since|Voucher 3|10-Feb-2024|Receipt: Cash, Asha|60.00"}));
                    press(Qt::Key_Return);
                    press(Qt::Key_Down);
                    press(Qt::Key_Return);
                    press(Qt::Key_End);
                    press(Qt::Key_Return);
                });
                press(Qt::Key_B, Qt::AltModifier);
                QCOMPARE(Shop::count("Select * from Jobs"), 2); // the look goes on
            });
            press(Qt::Key_I, Qt::AltModifier);
            QCOMPARE(focused(screen), "lvCopies");
            press(Qt::Key_Return);
        });
        frmSettings().ShowBackup();
        QCOMPARE(Shop::rows("Select Id, ClintName from Jobs order by Id"),
                 QStringList({"2 Asha", "3 Gopal"}));
        QCOMPARE(Shop::rows(lines + '3'), before);
        QVERIFY(GetAccountID("Gopal") != gone);
        QCOMPARE(GetBalance(qint16(GetAccountID("Gopal")), session.WorkingDate), -350.0);
        QCOMPARE(Shop::rows("Select Remark, Amount from Postings where vid=3 and vtype=1 and sr=1"),
                 QStringList({"Job Card # :3 -500"}));
        QCOMPARE(Shop::rows("Select vid from Postings where vtype=2 and sr=1 order by vid"),
                 QStringList({"2", "3", "4"}));
        QCOMPARE(Shop::value("Select sum(Amount) from Postings").toDouble(), 0.0);
        QCOMPARE(Shop::count("Select * from Items where Name='Shirt 2'"), 1);
    }

    /// The program dies in the middle of its copies, again and again: each copy that has its name is whole,
    /// and what is unfinished goes at the next start.
    void copiesAreWholeOrNotThere()
    {
        for (int life = 1; life <= 12; ++life) {
            DE.close();
            QProcess other;
            other.start(QCoreApplication::applicationFilePath(), {"--copy", shop->folder()});
            QVERIFY(other.waitForReadyRead(30000));
            const QDeadlineTimer end(QRandomGenerator::global()->bounded(1, 150));
            while (!end.hasExpired())
                other.waitForReadyRead(1);
            other.kill();
            other.waitForFinished();
            const QStringList there = copiesThere();
            QCOMPARE(there.size(), 1);
            QVERIFY(archive::prove(there.first(), {}).value("ITEMS") == 60);
            shop->reopen(); // takes back what the dead program was in the middle of
            archive::prove(session.databasePath(), {});
        }
        const QString stick = shop->folder() + "/stick";
        QDir().mkdir(stick);
        const QString live = session.databasePath();
        const QStringList leftovers{
            shop->folder() + "/data.restoring.mdb", shop->folder() + "/data.backup-proof.mdb",
            shop->folder() + "/data.backup-proof.mdb-journal", stick + "/SEbackup.gz.new",
            copies::folder() + '/' + archive::unfinishedCopy};
        for (const QString& left : leftovers)
            writeFile(left, "left over");
        QVERIFY(QFile::rename(live, live + ".x") && files::addName(live + ".x", live));
        QVERIFY(QFile::rename(live + ".x", shop->folder() + "/data.before-restore.mdb"));
        writeFile(shop->folder() + "/data.before-restore-2.mdb", "an earlier shop");
        {
            copies::Making making({}); // its own is not left over
            clearLeftovers(stick);
            QVERIFY(names(copies::folder()).contains(archive::unfinishedCopy));
        }
        QCOMPARE(names(stick), QStringList());
        QCOMPARE(names(shop->folder()).filter("data.").join(' '),
                 "data.before-restore-2.mdb data.mdb data.mdb-journal");
        QCOMPARE(names(copies::folder()).size(), 1);
    }

    /// The backup page lists what holds the shop as it was, and puts it back. The last one: the restore ends
    /// the program, and no screen waits after that.
    void copyIsRestored()
    {
        copies::finishDay();
        QVERIFY(QFile::rename(copiesThere().first(),
                              copies::folder() + '/' + copies::fileName({2024, 2, 1}, {2024, 2, 2})));
        QByteArray cut = contents(copiesThere().first());
        cut.truncate(cut.size() / 2);
        layCopy({2024, 1, 31}, cut);
        shop->addClient("Bala");
        shop->addJob(1);
        writeFile(shop->folder() + "/data.before-restore.mdb", "no shop");
        inModal<frmSettings>([this](frmSettings& screen) {
            QTRY_COMPARE(listView(screen, "lvCopies").cell(2, 2), "damaged");
            QVERIFY(rowText(screen, 0, "lvCopies").startsWith("01-Feb-2024|02-Feb-2024|0|0|"));
            QVERIFY(rowText(screen, 1, "lvCopies").startsWith("31-Jan-2024|31-Jan-2024|damaged|"));
            QVERIFY(rowText(screen, 2, "lvCopies").startsWith("data.before-restore ("));
            prompts.reset(); // the engine's words differ by fault
            for (const int damaged : {1, 2}) {
                listView(screen, "lvCopies").selectRow(damaged);
                onNextModal<QMessageBox>([](QMessageBox& box) {
                    QVERIFY(box.text().startsWith("Nothing has been restored. The shop is as it was."));
                });
                click(screen, "cmdRestoreCopy");
            }
            prompts = std::make_unique<Prompts>();
            prompts->expect("Database restored.\r\nPlease restart application.");
            listView(screen, "lvCopies").selectRow(0);
            click(screen, "cmdRestoreCopy");
        });
        shop->reopen();
        QCOMPARE(Shop::rows("Select Title from Accounts where Type=0"), QStringList({"Asha"}));
        QCOMPARE(clientsOf(shop->folder() + "/data.before-restore-2.mdb"), QStringList({"Asha", "Bala"}));
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--copy")
        copyUntilKilled(arguments.value(2));
    tst_copies test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_copies.moc"
