#include "accounts/Payroll.h"
#include "core/shell/CopyAtStart.h"
#include "core/shell/Look.h"
#include "core/shell/frmDifferences.h"
#include "core/shell/frmMain.h"
#include "core/shell/frmSettings.h"
#include "core/store/Backup.h"
#include "core/store/Copies.h"
#include "core/store/Schema.h"
#include "core/store/Texts.h"
#include "jobcards/PictureBox.h"
#include "jobcards/PictureFiles.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "masters/frmBringIn.h"
#include "masters/frmEditClients.h"
#include "messaging/swSMS.h"
#include "planning/frmRatings.h"
#include "platform/devices/Files.h"
#include "support/DeadlyWrites.h"
#include "support/Refusal.h"
#include "support/ShopTest.h"

#include <QDir>
#include <QMessageBox>
#include <sys/resource.h>

namespace {

constexpr int itemsThere = 8;
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

differences::Returned bringBackCard(ado::Connection& then, differences::Change change, qint32 number)
{
    differences::Difference card;
    card.change = change;
    card.number = number;
    return differences::bringBack(differences::read(then, card));
}

void removeAll(const QStringList& paths)
{
    for (const QString& path : paths)
        QFile::remove(path);
}

QStringList locks() { return {copies::lockPath(), session.appFolder + "/data.backup.lock"}; }

/// Files of this process grow no larger for a while: what a full disk does to them.
class FullDisk
{
public:
    FullDisk()
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{64 << 10, m_before.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before = {};
};

} // namespace

class tst_copies : public ShopTest
{
    Q_OBJECT
    void lay() override
    {
        shop->addClient("Asha");
        for (int i = 0; i < itemsThere; ++i)
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
        const std::pair<const char*, const char*> rows[] = {
            {"", ""},
            {"2026-11-17..2026-11-23", "2026-11-17..2026-11-23"},
            // A month: the week of the 16th is the seven days' own already.
            {"2026-10-20..2026-11-23", "2026-10-25 2026-11-01 2026-11-08 2026-11-15 2026-11-17..2026-11-23"},
            // Two years.
            {"2024-10-01..2026-11-23",
             "2025-10-31 2025-11-30 2025-12-31 2026-01-31 2026-02-28 2026-03-31 2026-04-30 2026-05-31 "
             "2026-06-30 2026-07-31 2026-08-31 2026-09-30 2026-10-25 2026-11-01 2026-11-08 2026-11-15 "
             "2026-11-17..2026-11-23"},
            // A year of rest; two days a year; a clock that was wrong for a while.
            {"2025-09-01 2025-09-02..2025-09-08 2026-11-23", "2025-09-03..2025-09-08 2026-11-23"},
            {"2023-01-01 2023-07-01 2024-01-01 2024-07-01 2026-11-23",
             "2023-01-01 2023-07-01 2024-01-01 2024-07-01 2026-11-23"},
            {"2026-11-17..2026-11-23 2031-01-01..2031-01-09",
             "2026-11-17..2026-11-23 2031-01-03..2031-01-09"}};
        for (const auto& [there, stay] : rows)
            QCOMPARE(isoDays(copies::kept(days(there).values(), QDate(2026, 11, 23))), isoDays(days(stay)));
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

    /// What cannot be copied stops nothing, leaves the shop as it is, is said at the next start, and is
    /// done when it can be.
    void troubleIsSaidAtTheNextStart()
    {
        const QByteArray live = contents(session.databasePath());
        const QString place = copies::folder();
        struct Fault
        {
            std::function<void()> lay;
            const char* words;
        };
        std::unique_ptr<FullDisk> disk;
        const Fault faults[] = {
            {[&] { writeFile(place, "a letter"); }, "copies cannot be made"},
            {[&] { QVERIFY(QFile::link(shop->folder() + "/nowhere", place)); }, "copies cannot be made"},
            {[&] { QVERIFY(QFile::link("/proc", place)); }, "unfinished.mdb.new"}, // takes no file
            {[&] {
                 QDir().mkpath(place);
                 disk = std::make_unique<FullDisk>();
             },
             "disk"}};
        for (const Fault& fault : faults) {
            fault.lay();
            copies::finishDay();
            start();
            disk.reset();
            QVERIFY2(session.CopyTrouble.startsWith("The last day's copy of the shop could not be made.") &&
                         session.CopyTrouble.contains(fault.words),
                     qPrintable(session.CopyTrouble));
            if (!QFile::remove(place)) {
                QCOMPARE(names(place), QStringList());
            }
            QVERIFY(contents(session.databasePath()) == live);
        }
        inModal<frmMain>([](frmMain& main) {
            QVERIFY(control<QPushButton>(main, "cmdLastBackup").text().endsWith("No copy of the shop"));
            QVERIFY(control<QPushButton>(main, "cmdLastBackup").toolTip().contains("disk"));
        });

        for (const auto& [stick, words] :
             {std::pair(QString(shop->folder() + "/unplugged"), "unplugged: the copy of"),
              std::pair(QString("/proc"), "SEcopies cannot be made")}) {
            SetSetting(settings::BackupFolder, stick);
            start();
            QVERIFY2(session.CopyTrouble.contains(words), qPrintable(session.CopyTrouble));
            QCOMPARE(copiesThere().size(), 1);
        }
        SetSetting(settings::BackupFolder, shop->folder() + "/unplugged");
        QDir().mkdir(shop->folder() + "/unplugged");
        layCopy(QDate::currentDate().addYears(4)); // the clock was ahead once, and is set back
        start();
        QCOMPARE(session.CopyTrouble, QString());
        QCOMPARE(copiesThere().size(), 2);
        const QStringList brought = names(shop->folder() + "/unplugged/SEcopies");
        QCOMPARE(brought.size(), 1);
        QVERIFY(brought.first().contains(QDate::currentDate().toString(Qt::ISODate)));
    }

    /// A copy opens as the shop itself does, and takes nothing; then the living shop goes on.
    void shopOfACopyIsLookedAt()
    {
        shop->addJob(7);
        const QString picture = session.imagesFolder() + "/Asha.bmp";
        const QString gone = session.imagesFolder() + "/gone.bmp";
        QVERIFY(QImage(9, 9, QImage::Format_RGB32).save(picture));
        shop->addJobLine(5, 1, shop->addWorker("Ravi"),
                         QString("Score=4, Img1='%1', Img2='%2'").arg(picture, gone));
        SetSetting(settings::ModemPort, "1");
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
            QCOMPARE(label(main, "lblBand"),
                     "The shop as it was on " + dateText(QDate::currentDate()) +
                         ", only to be looked at: nothing can be changed. Pictures are as "
                         "they are today.");
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
                                                    },
                                                    [&] {
                                                        swSMS sms(&main);
                                                        SendSmsToNumber(sms, "98", "hello");
                                                    },
                                                    [] { picturefiles::newPath("Asha", {}, 1); },
                                                    [&] { picturefiles::copy(picture, gone); },
                                                    [&] { picturefiles::remove(picture); }};
            for (const auto& write : writes)
                QCOMPARE(refusal(write), sentence);
            RememberSetting(settings::WebcamDriver, "1");
            const qint32 line = Shop::value("Select Id from Jobs_Detail").toInt();
            onNextModal<frmEditWorkerAssign>([](frmEditWorkerAssign& garment) {
                QVERIFY(!control<PictureBox>(garment, "pic1").picture().isNull());
                QCOMPARE(control<PictureBox>(garment, "pic1").words(), QString());
                QCOMPARE(control<PictureBox>(garment, "pic2").words(), "The picture is gone");
            });
            frmEditWorkerAssign().ShowEdit(line);
            for (int i = 0; i < 5; ++i) // the camera twice, the note, a file, away with it
                prompts->expect(sentence);
            clsJobCardData rows;
            Shop::order(rows, "Shirt 1", 100);
            rows.SetImg1(1, picture);
            rows.SetImg2(1, gone);
            onNextModal<frmAddItem>([](frmAddItem& garment) {
                for (const char* way : {"Command3", "Command4", "Command7", "Command8", "Command6"})
                    click(garment, way);
                QCOMPARE(control<PictureBox>(garment, "pic2").words(), "The picture is gone");
            });
            frmAddItem().EditItemDetails(rows, 5, 1);
            QCOMPARE(names(session.imagesFolder()), QStringList({"Asha.bmp"}));
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

    /// A garment's wage is paid once, whichever way its card comes back.
    void wagesArePaidOnce()
    {
        const qint32 ravi = shop->addWorker("Ravi");
        const auto unpaid = [&] {
            const wages::Scope all{ravi, {2024, 1, 1}, {2024, 12, 31}};
            return wages::read(wages::linesOf(all, wages::Which::Unpaid));
        };
        const auto pay = [&] {
            return payroll::Create({ravi, {2024, 1, 1}, {2024, 12, 31}}, unpaid(), {2024, 2, 10});
        };
        JobCard card;
        for (const char* item : {"Shirt 1", "Shirt 2", "Shirt 3"})
            Shop::order(card.JobRows, item, 300);
        card.SaveNew(Shop::head(1, "Asha", 900));
        Shop::run("Update Jobs_Detail set DoneByWorker=1, WorkerWagesDue=40, WorkerID=" +
                  QString::number(ravi));
        Shop::run("Update Jobs_Detail set MarkAsPaid=1 where ItemName='Shirt 3'"); // by hand
        copies::finishDay();
        ado::Connection then;
        then.open(copiesThere().first(), databasePassword(), ado::Connection::Mode::ReadOnly);
        const auto back = [&](differences::Change change) { return bringBackCard(then, change, 1); };
        const auto marks = [](qint32 number) {
            return Shop::rows("Select MarkAsPaid, PayrollID from Jobs_Detail where JobID=" +
                              QString::number(number) + " order by ItemSr");
        };

        // Paid since, and the card changed: two of its lines are known to be paid, the third by its own mark.
        const qint16 number = pay();
        const QString byPayroll = QString("1 %1").arg(number);
        Shop::run("Update Jobs set Remark='longer' where id=1");
        const int postings = Shop::count("Select * from Postings");
        differences::Returned returned = back(differences::Change::Changed);
        QCOMPARE(marks(returned.number), QStringList({"1 0", "1 0", "1 0"}));
        QCOMPARE(returned.paidSince, 2);
        QCOMPARE(Shop::count("Select * from Postings"), postings + 2); // the sale's alone
        QVERIFY(unpaid().empty());

        // Paid since, and deleted: the payroll has its garments again, once.
        card.CurrentJobID = 1;
        card.Delete();
        returned = back(differences::Change::Deleted);
        QCOMPARE(marks(returned.number), QStringList({byPayroll, byPayroll, "1 0"}));
        QCOMPARE(returned.paidSince, 2);
        QVERIFY(unpaid().empty());

        // The payroll is deleted: its garments are owed.
        payroll::Release(number);
        Shop::run("Delete * from Postings where isPayroll=1");
        Shop::run("Delete * from Jobs_Detail");
        returned = back(differences::Change::Deleted);
        QCOMPARE(marks(returned.number), QStringList({"0 0", "0 0", "1 0"}));
        QCOMPARE(returned.paidSince, 0);
        QCOMPARE(unpaid().size(), size_t(2));
        then.close();

        // Paid already on the day of the copy: as long as its living line has the payroll's place, the mark
        // alone.
        const qint16 earlier = pay();
        const qint32 paid = returned.number;
        copies::finishDay();
        then.open(copiesThere().first(), databasePassword(), ado::Connection::Mode::ReadOnly);
        const auto backOf = [&](differences::Change change) {
            return marks(bringBackCard(then, change, paid).number);
        };
        QCOMPARE(backOf(differences::Change::Changed), QStringList({"1 0", "1 0", "1 0"}));
        Shop::run("Delete * from Jobs_Detail");
        const QString again = QString("1 %1").arg(earlier);
        QCOMPARE(backOf(differences::Change::Deleted), QStringList({again, again, "1 0"}));
        QVERIFY(unpaid().empty());
    }

    /// The program dies at each change of a file while it copies, and while it restores a copy: what stood
    /// stands, or the new is there, whole.
    void copiesAreWholeOrNotThere()
    {
        const QString live = session.databasePath();
        copies::finishDay();
        const QString old = shop->folder() + "/old.mdb";
        QVERIFY(QFile::rename(copiesThere().first(), old));
        shop->addClient("Bala");
        const QByteArray before = contents(old);
        const QByteArray living = contents(live);
        const QString name = copies::folder() + '/' + copies::fileName(QDate::currentDate(), {2024, 2, 10});
        DE.close();
        const auto copy = [&] {
            DE.open(live);
            copies::finishDay();
        };
        const auto again = [&](const std::function<void()>& work, int deadly) {
            QFile::remove(name);
            QFile::copy(old, name);
            removeAll(locks());
            return deadlywrites::live(work, deadly);
        };
        const QByteArray changes = again(copy, -1);
        QVERIFY2(changes.count('r') == 1 && changes.count('p') > 20, changes);
        int newOnes = 0;
        for (const int deadly : deadlywrites::places(changes)) {
            QCOMPARE(again(copy, deadly).size(), deadly);
            QCOMPARE(copiesThere(), QStringList({name}));
            if (contents(name) != before) {
                QVERIFY(++newOnes > 0 && archive::prove(name, {}).value("ITEMS") == itemsThere);
                QCOMPARE(clientsOf(name), QStringList({"Asha", "Bala"}));
            }
            QVERIFY(contents(live) == living && QFileInfo(live + "-journal").size() == 0);
        }
        QVERIFY(newOnes > 0);

        // The lock of one that died before it had written its number holds nobody up for long.
        again(copy, 0);
        QFile lock(copies::lockPath());
        QCOMPARE(lock.size(), 0);
        QVERIFY(lock.open(QIODevice::ReadWrite) && lock.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                                                    QFileDevice::FileModificationTime));
        lock.close();
        copy();
        QCOMPARE(clientsOf(name), QStringList({"Asha", "Bala"}));
        DE.close();

        QFile::remove(name);
        QFile::copy(old, name);
        const auto restoreCopy = [&] {
            DE.open(live);
            Restore restore(name);
            restore.unpack({});
            restore.takePlace({});
        };
        const auto restoreAgain = [&](int deadly) {
            QFile::remove(live);
            writeFile(live, living);
            removeAll(locks());
            for (const copies::Copy& aside : copies::putAside())
                QFile::remove(aside.path);
            return deadlywrites::live(restoreCopy, deadly);
        };
        const QByteArray ofRestore = restoreAgain(-1);
        QVERIFY2(ofRestore.count('r') >= 1, ofRestore);
        QVERIFY(contents(live) == before);
        newOnes = 0;
        for (const int deadly : deadlywrites::places(ofRestore)) {
            QCOMPARE(restoreAgain(deadly).size(), deadly);
            const QByteArray now = contents(live);
            newOnes += int(now == before);
            QVERIFY(now == living || (now == before && copies::putAside().size() == 1 &&
                                      contents(copies::putAside().first().path) == living));
            QVERIFY(contents(name) == before);
        }
        QVERIFY(newOnes > 0);
        QFile::remove(live);
        writeFile(live, living);
        shop->reopen();
    }

    /// A copy that is cut or has a bit turned is refused by Restore, wherever that is; one of another shop
    /// is looked at, and nothing more.
    void damagedAndForeignCopies()
    {
        copies::finishDay();
        const QByteArray sound = contents(copiesThere().first());
        const QByteArray live = contents(session.databasePath());
        const auto restore = [](const QByteArray& content) {
            layCopy({2024, 2, 1}, content);
            return refusal([] {
                Restore work(copies::folder() + '/' + copies::fileName({2024, 2, 1}, {2024, 2, 1}));
                work.unpack({});
            });
        };
        constexpr int page = 4096;
        for (const qsizetype place : {qsizetype(3), qsizetype(5 * page + 7), sound.size() - 20}) {
            QByteArray turned = sound;
            turned[place] = char(turned[place] ^ 4);
            for (const QByteArray& damaged : {turned, sound.left(place)})
                QVERIFY2(restore(damaged).startsWith("Nothing has been restored."),
                         qPrintable(QString::number(place)));
        }
        const QTemporaryDir other;
        const QString folder = std::exchange(session.appFolder, other.path());
        DE.close();
        CreateDatabase();
        const QByteArray foreign = contents(session.databasePath());
        session.appFolder = folder;
        shop->reopen();
        QVERIFY(restore(foreign).contains("another shop"));
        prompts->expect(
            "This is a copy of another shop: it cannot be compared with this one, and nothing of it "
            "comes back into it.");
        onNextModal<frmMain>([](frmMain&) {
            QCOMPARE(Shop::count("Select * from Items"), 0);
            press(Qt::Key_B, Qt::AltModifier);
        });
        lookInto(copies::folder() + '/' + copies::fileName({2024, 2, 1}, {2024, 2, 1}));
        QVERIFY(contents(session.databasePath()) == live);
        shop->addClient("Bala"); // and goes on
    }

    /// What a program that died has left goes at the next start.
    void leftoversGo()
    {
        copies::finishDay();
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
        QStringList stay = names(shop->folder()).filter("data.");
        stay.removeOne("data.mdb-journal");
        QCOMPARE(stay.join(' '), "data.before-restore-2.mdb data.mdb");
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

QTEST_MAIN(tst_copies)
#include "tst_copies.moc"
