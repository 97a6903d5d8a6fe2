#include "core/store/Backup.h"
#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "support/Files.h"
#include "support/Refusal.h"
#include "support/Shop.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <csignal>
#include <memory>
#include <thread>

namespace {

constexpr auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

QStringList names(const QString& folder) { return QDir(folder).entryList(all, QDir::Name); }

void backUp(const QString& folder, const Progress& progress = {})
{
    Backup backup(folder);
    backup.run(progress);
    backup.copyPictures(progress);
}

void restore(const QString& folder, const Progress& progress = {})
{
    Restore restore(archive::find(folder));
    restore.unpack(progress);
    restore.copyPictures(progress);
    restore.takePlace(progress);
}

/// The tables of an archive. Throws when it is not whole.
archive::Counts whole(const QString& folder)
{
    const QTemporaryDir temporary;
    const archive::Scratch unpacked(temporary.filePath("unpacked.mdb"));
    archive::unpack(archive::find(folder), unpacked.path(), {});
    return archive::prove(unpacked.path(), {});
}

QByteArray packed(const QByteArray& database)
{
    QProcess gzip;
    gzip.start("gzip", {"-9"});
    gzip.write(database);
    gzip.closeWriteChannel();
    gzip.waitForFinished();
    return gzip.readAllStandardOutput();
}

/// A database with all tables of a shop, the version and one more client.
QByteArray otherShop(const QString& password, const QString& version, const QString& without = {})
{
    const QTemporaryDir temporary;
    const QString path = temporary.filePath("other.mdb");
    ado::Connection other;
    other.create(path, password);
    for (const QString& table : tableNames())
        if (table != without)
            other.Execute(QString("CREATE TABLE `%1` (SETTING LONGTEXT, [value] LONGTEXT)").arg(table));
    other.Execute(QString("INSERT INTO Settings VALUES ('16', '%1')").arg(version));
    other.close();
    return contents(path);
}

/// The other lives of this program: one that dies at a step of its work, one that writes without end.
int live(const QString& what, const QString& folder, const QString& backups, int deadlyStep)
{
    session.appFolder = folder;
    DE.open(session.databasePath());
    const Progress progress{{}, [&deadlyStep](const QString&) {
                                if (--deadlyStep == 0)
                                    std::raise(SIGKILL);
                            }};
    if (what == "--back-up")
        backUp(backups, progress);
    else if (what == "--restore")
        restore(backups, progress);
    else
        for (;;)
            DE.connection().writeBatch([] {
                for (const int amount : {1, -1})
                    Shop::add("Postings", {{"VID", 1},
                                           {"vType", 2},
                                           {"Sr", 1},
                                           {"Date", QDate(2024, 2, 10)},
                                           {"particulars", ""},
                                           {"Remark", ""},
                                           {"accID", 1},
                                           {"refID", 2},
                                           {"Amount", amount}});
            });
    return 0;
}

} // namespace

class tst_backup : public QObject
{
    Q_OBJECT
    std::unique_ptr<Shop> shop;
    std::unique_ptr<QTemporaryDir> m_backups;
    QString folder;
    const QByteArray m_path = qgetenv("PATH");

    /// A program in place of gzip, before the real one.
    void putInPlaceOfGzip(const QByteArray& script)
    {
        const QString program = writeFile(m_backups->filePath("bin/gzip"), "#!/bin/sh\n" + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_backups->filePath("bin")) + ':' + m_path);
    }
    QString picture(const QString& name) const { return session.imagesFolder() + '/' + name; }
    QString inBackup(const QString& name) const { return folder + '/' + name; }

private Q_SLOTS:
    void init()
    {
        shop = std::make_unique<Shop>();
        shop->addClient("Asha");
        for (int i = 0; i < 30; ++i)
            shop->addItem(QString("Shirt %1").arg(i), 100, 40, QString(2000, 'x'));
        m_backups = std::make_unique<QTemporaryDir>();
        QDir(m_backups->path()).mkdir("bin");
        QDir(m_backups->path()).mkdir("stick");
        folder = m_backups->filePath("stick");
    }
    void cleanup()
    {
        qputenv("PATH", m_path);
        shop.reset();
    }

    /// A shop comes back on a new computer as it was when it was backed up, and again on its own.
    void shopComesBack()
    {
        writeFile(picture("Asha 1.bmp"), "first");
        writeFile(picture("Asha 2.bmp"), "second");
        for (const QString& inTheWay :
             {QString(session.appFolder + "/data.mdb.gz"), inBackup("SEbackup.gz.new"), inBackup("sebackup"),
              inBackup("sebackup.gz")})
            writeFile(inTheWay, "left over");
        backUp(folder);
        QCOMPARE(names(folder), QStringList({"SEbackup.gz", "SEimages", "sebackup"}));
        shop->addClient("Bala");
        writeFile(picture("Asha 2.bmp"), "second, drawn anew");
        backUp(folder);
        QCOMPARE(contents(inBackup("SEimages/Asha 1.bmp")), QByteArray("first"));
        QCOMPARE(contents(inBackup("SEimages/Asha 2.bmp")), QByteArray("second, drawn anew"));
        const QStringList clients = Shop::rows("Select * from Accounts");
        const QStringList items = Shop::rows("Select * from Items");

        QVERIFY(QFile::rename(inBackup("SEbackup.gz"), inBackup("sebackup.GZ")));
        shop = std::make_unique<Shop>();
        QVERIFY(QFile::remove(session.databasePath()));
        DE.close();
        CreateDatabase(); // of another birth
        shop->reopen();
        writeFile(picture("Asha 1.bmp"), "its own");
        restore(folder);
        QVERIFY(!DE.connection().isOpen());
        shop->reopen();
        QCOMPARE(Shop::rows("Select * from Accounts"), clients);
        QCOMPARE(Shop::rows("Select * from Items"), items);
        QCOMPARE(contents(picture("Asha 1.bmp")), QByteArray("its own"));
        QCOMPARE(contents(picture("Asha 2.bmp")), QByteArray("second, drawn anew"));

        shop->addClient("Chand");
        restore(folder);
        shop->reopen();
        QCOMPARE(Shop::rows("Select * from Accounts"), clients);
        QCOMPARE(names(shop->folder()).filter("before").join(' '),
                 "data.before-restore-2.mdb data.before-restore.mdb");
        QVERIFY(names(shop->folder()).filter("restoring").isEmpty());
        DE.open(shop->folder() + "/data.before-restore-2.mdb");
        QCOMPARE(Shop::count("Select * from Accounts where Title='Chand'"), 1);
    }

    void damagedArchivesAreRefused_data()
    {
        QTest::addColumn<int>("damage");
        QTest::newRow("cut off") << 0;
        QTest::newRow("a bit turned") << 1;
        QTest::newRow("something behind it") << 2;
    }
    void damagedArchivesAreRefused()
    {
        QFETCH(int, damage);
        backUp(folder);
        const QByteArray sound = contents(inBackup("SEbackup.gz"));
        const QByteArray live = contents(session.databasePath());
        const QStringList files = names(shop->folder());
        constexpr int header = 20; // its time and name say nothing of the shop
        QRandomGenerator random(7);
        for (int i = 0; i < 12; ++i) {
            QByteArray damaged = sound;
            const int place = random.bounded(header, int(sound.size()));
            if (damage == 0)
                damaged.truncate(place);
            else if (damage == 1)
                damaged[place] = char(damaged[place] ^ (1 << random.bounded(8)));
            else
                damaged += i % 2 ? QByteArray(1 + 3 * i, '\0') : sound.left(1 + i * 150);
            writeFile(inBackup("SEbackup.gz"), damaged);
            const QString told = refusal([this] { restore(folder); });
            QVERIFY2(told.startsWith("Nothing has been restored. The shop is as it was.\r\n"),
                     qPrintable(QString("%1 at %2: %3").arg(i).arg(place).arg(told)));
        }
        QCOMPARE(names(shop->folder()), files);
        QVERIFY(contents(session.databasePath()) == live);
        shop->addClient("Bala"); // and goes on
    }

    void foreignArchivesAreRefused()
    {
        const std::pair<QByteArray, const char*> foreign[] = {
            {"no archive", "gzip"},
            {packed({}), "empty"},
            {packed("a list of prices"), "no database of this program"},
            {packed(otherShop("another password", "12")), "another password"},
            {packed(otherShop(databasePassword(), "11")), "version 11"},
            {packed(otherShop(databasePassword(), "12", "JOBS")), "table JOBS"},
            {packed(otherShop(databasePassword(), "12")), "another shop"}};
        const QByteArray live = contents(session.databasePath());
        const QStringList files = names(shop->folder());
        for (const auto& [bytes, reason] : foreign) {
            writeFile(inBackup("SEbackup.gz"), bytes);
            const QString told = refusal([this] { restore(folder); });
            QVERIFY2(told.contains(reason), qPrintable(told));
            QCOMPARE(names(shop->folder()), files);
        }
        QVERIFY(contents(session.databasePath()) == live);
        QVERIFY(QFile::remove(inBackup("SEbackup.gz")) && QDir(folder).mkdir("SEbackup.gz"));
        QCOMPARE(archive::find(folder), QString());
        QVERIFY(refusal([this] { backUp(folder); }).contains("is in the way"));
    }

    void foldersThatTakeNoBackup()
    {
        const QString file = writeFile(m_backups->filePath("file"), "a letter");
        for (const QString& unfit : {file, m_backups->filePath("unplugged"), QString("/proc")}) {
            const QString told = refusal([&] { backUp(unfit); });
            QVERIFY2(told.startsWith("No backup has been made. An earlier one is as it was.\r\n"),
                     qPrintable(told));
        }
        backUp(shop->folder()); // its own is as good as any
        QCOMPARE(whole(shop->folder()).value("ITEMS"), 30);

        QProcess mount;
        const QString small = m_backups->filePath("small");
        QDir().mkdir(small);
        mount.start("mount", {"-t", "tmpfs", "-o", "size=16k", "tmpfs", small});
        if (!mount.waitForFinished() || mount.exitCode() != 0)
            return; // this machine lets nobody mount; gzip's words for a full disk are tried below
        const QString told = refusal([&] { backUp(small); });
        const QStringList left = names(small);
        QProcess::execute("umount", {small});
        QVERIFY2(told.contains("packing the database") && told.contains("No space left"), qPrintable(told));
        QCOMPARE(left, QStringList());
    }

    void gzipFails_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("reason");
        const QByteArray real = QStandardPaths::findExecutable("gzip").toLocal8Bit();
        const auto row = [](const char* name, const QByteArray& script, const char* reason) {
            QTest::newRow(name) << script << reason;
        };
        row("complains", "echo 'gzip: stdout: Input/output error' >&2; exit 1",
            "packing the database.\r\ngzip: stdout: Input/output error");
        row("full disk", "ulimit -f 1; exec " + real + " \"$@\"", "packing the database");
        row("is killed", real + " -c data.mdb; kill -9 $$", "packing the database");
        row("packs nothing", "exit 0", "unpacking it again");
        row("packs something else",
            "case $1 in -d) exec " + real + " -dc;; *) echo hello | " + real + ";; esac",
            "comparing it with the shop");
        row("packs the shop of yesterday",
            "case $1 in -d) exec " + real + " -dc;; *) " + real + " -c ../old.mdb || exec " + real +
                " -c \"$PWD/old.mdb\";; esac",
            "other records than the shop");
        row("hangs", "exec sleep 100", "It was given up.");
    }
    void gzipFails()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, reason);
        backUp(folder);
        const QByteArray earlier = contents(inBackup("SEbackup.gz"));
        writeFile(shop->folder() + "/old.mdb", contents(session.databasePath()));
        shop->addClient("Bala");
        const QStringList files = names(shop->folder());
        putInPlaceOfGzip(script);
        std::stop_source impatience;
        std::jthread operatorsHand([&] {
            if (script.contains("sleep")) {
                QDeadlineTimer moment(300);
                while (!moment.hasExpired())
                    std::this_thread::yield();
                impatience.request_stop();
            }
        });
        const QString told = refusal([&] { backUp(folder, {impatience.get_token(), {}}); });
        QVERIFY2(told.contains(reason) && told.contains("An earlier one is as it was."), qPrintable(told));
        QCOMPARE(names(folder), QStringList({"SEbackup.gz"}));
        QVERIFY(contents(inBackup("SEbackup.gz")) == earlier);
        QCOMPARE(names(shop->folder()), files);
        Shop::run("Delete * from Accounts where Title='Bala'"); // the file is held no longer

        qputenv("PATH", "");
        QCOMPARE(archive::gzip(), QString());
        QVERIFY(refusal([this] { restore(folder); }).contains("gZip is missing!"));
    }

    void anotherProgramWritesMeanwhile()
    {
        QProcess writer;
        writer.start(QCoreApplication::applicationFilePath(), {"--write", shop->folder(), folder, "0"});
        QTRY_VERIFY(Shop::count("Select * from Postings") > 0);
        qint64 lines = 0;
        for (int i = 0; i < 3; ++i) {
            backUp(folder);
            const archive::Counts counts = whole(folder);
            QCOMPARE(counts["postings"] % 2, 0);
            QVERIFY(counts["postings"] > lines);
            lines = counts["postings"];
        }
        writer.kill();
        writer.waitForFinished();
        restore(folder);
        shop->reopen();
        QCOMPARE(Shop::count("Select * from Postings"), lines);
    }

    /// The program dies at each step of its work; the operator gives it up there.
    void endsAtAnyStep_data()
    {
        QTest::addColumn<QString>("work");
        QTest::newRow("backup") << "--back-up";
        QTest::newRow("restore") << "--restore";
    }
    void endsAtAnyStep()
    {
        QFETCH(QString, work);
        writeFile(picture("Asha.bmp"), "a picture");
        backUp(folder);
        const archive::Counts records = whole(folder);
        shop->addClient("Bala");
        writeFile(picture("Bala.bmp"), "a picture");
        const QByteArray packedBefore = contents(inBackup("SEbackup.gz"));
        const QByteArray live = contents(session.databasePath());
        int step = 1;
        for (bool dies = true; dies; ++step) {
            QFile::remove(picture("Asha.bmp"));
            const QStringList beside = names(folder);
            std::stop_source impatience;
            int left = step;
            const Progress progress{impatience.get_token(), [&](const QString&) {
                                        if (--left == 0)
                                            impatience.request_stop();
                                    }};
            if (work == "--back-up") {
                const QString told = refusal([&] { backUp(folder, progress); });
                QVERIFY2(left > 0 || told.isEmpty() || told.contains("given up"), qPrintable(told));
                QVERIFY(!names(folder).contains("SEbackup.gz.new"));
            }
            DE.close();
            QProcess life;
            life.start(QCoreApplication::applicationFilePath(),
                       {work, shop->folder(), folder, QString::number(step)});
            QVERIFY(life.waitForFinished());
            dies = life.exitStatus() == QProcess::CrashExit;
            QVERIFY2(dies || life.exitCode() == 0, life.readAllStandardError().constData());
            if (contents(inBackup("SEbackup.gz")) != packedBefore) {
                archive::Counts left_ = whole(folder);
                QVERIFY(left_ == records ||
                        (work == "--back-up" && left_["Accounts"] == records["Accounts"] + 1));
            }
            if (contents(session.databasePath()) != live)
                archive::prove(session.databasePath(), {});
            shop->reopen();
            if (dies && work == "--restore" && Shop::count("Select * from Accounts where Title='Bala'") == 0)
                QFAIL("a restore that never ended has put its file in place");
        }
        QVERIFY(step > 4);
        work == "--restore" ? restore(folder) : backUp(folder);
        shop->reopen();
        QVERIFY(QFile::exists(inBackup(work == "--restore" ? "../bin" : "SEimages/Bala.bmp")));
        for (const QString& left : names(folder) + names(shop->folder()))
            QVERIFY2(!left.contains("new") && !left.contains("proof") && !left.contains("restoring"),
                     qPrintable(left));
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 5 && arguments[1].startsWith("--"))
        return live(arguments[1], arguments[2], arguments[3], arguments[4].toInt());
    tst_backup test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_backup.moc"
