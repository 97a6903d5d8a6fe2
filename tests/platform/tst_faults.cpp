// What a shop's computer does to a database file: other files in its place, locks, full disks, power cuts.
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>
#include <sqlcipher/sqlite3.h>

using ado::Connection;
using ado::DatabaseError;
using ado::Recordset;

namespace {

const QString password = QStringLiteral("secret words");

void addRow(Connection& connection, int number, const QString& text = QStringLiteral("x"))
{
    Recordset rows(connection);
    rows.Open(QStringLiteral("Select * from Lines order by id"));
    rows.AddNew();
    rows["Number"] = number;
    rows["Text"] = text;
    rows.Update();
}

int rowCount(Connection& connection)
{
    Recordset rows(connection);
    rows.Open(QStringLiteral("Select count(*) from Lines"));
    return rows[0].integer();
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void replace(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

constexpr int pairsInBatch = 300;

/// Writes batch after batch, of pairs that sum to zero; tells its parent what it is about, and never ends by
/// itself.
int writeUntilKilled(const QString& path)
{
    Connection connection;
    connection.open(path, password);
    // Pages of an open batch reach the file early, as they do when a batch is large.
    connection.Execute(QStringLiteral("PRAGMA cache_size=5"));
    for (int batch = 1;; ++batch) {
        connection.writeBatch([&] {
            for (int i = 1; i <= pairsInBatch; ++i) {
                addRow(connection, i, QString(200, u'x'));
                addRow(connection, -i, QString(200, u'y'));
                if (i == pairsInBatch / 2) {
                    std::puts("half");
                    std::fflush(stdout);
                }
            }
        });
        std::printf("committed %d\n", batch);
        std::fflush(stdout);
    }
}

} // namespace

class tst_faults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void createRefusesWhatExists();
    void unfitFile_data();
    void unfitFile();
    void damagedPage();
    void plainFileOpensWithoutPassword();
    void readOnly();
    void settingsAreSafe();
    void lockedByAnother();
    void readerHoldsUpTheCommit();
    void refusedStatementKeepsTheBatch();
    void batchesNest();
    void fullDisk_data();
    void fullDisk();
    void fullDiskOutsideABatch();
    void killedInTheMiddle_data();
    void killedInTheMiddle();

private:
    QByteArray pragma(const char* name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Connection> m_connection;
    QString m_path;
};

void tst_faults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("data.mdb"));
    m_connection = std::make_unique<Connection>();
    m_connection->create(m_path, password);
    m_connection->Execute(QStringLiteral("CREATE TABLE Lines (Id INTEGER PRIMARY KEY AUTOINCREMENT, "
                                         "Number INTEGER NOT NULL, Text LONGTEXT NOT NULL)"));
}

void tst_faults::cleanup()
{
    m_connection.reset();
    m_folder.reset();
}

/// What the engine answers to a pragma.
QByteArray tst_faults::pragma(const char* name) const
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(m_connection->handle(), QByteArray("PRAGMA ").append(name).constData(), -1, &statement,
                       nullptr);
    sqlite3_step(statement);
    const QByteArray value(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
    sqlite3_finalize(statement);
    return value;
}

void tst_faults::createRefusesWhatExists()
{
    const QByteArray before = contents(m_path);
    Connection other;
    QVERIFY_THROWS_EXCEPTION(DatabaseError, other.create(m_path, password));
    QVERIFY_THROWS_EXCEPTION(DatabaseError,
                             other.create(m_folder->filePath(QStringLiteral("no/such/f.mdb")), password));
    QVERIFY(!other.isOpen());
    QCOMPARE(contents(m_path), before);
}

void tst_faults::unfitFile_data()
{
    QTest::addColumn<QString>("fault");
    for (const char* fault : {"missing", "folder", "empty", "text", "plain database", "other password",
                              "no password", "first bytes only", "half", "first page damaged"})
        QTest::newRow(fault) << QString::fromLatin1(fault);
}

void tst_faults::unfitFile()
{
    QFETCH(QString, fault);
    m_connection->writeBatch([this] {
        for (int i = 0; i < 50; ++i)
            addRow(*m_connection, i, QString(500, u'z'));
    });
    m_connection->close();
    const QByteArray good = contents(m_path);
    QString usedPassword = password;
    if (fault == u"missing" || fault == u"folder" || fault == u"plain database")
        QVERIFY(QFile::remove(m_path));
    if (fault == u"folder")
        QVERIFY(QDir().mkdir(m_path));
    else if (fault == u"empty")
        replace(m_path, {});
    else if (fault == u"text")
        replace(m_path, QByteArray(5000, 'a'));
    else if (fault == u"other password")
        usedPassword = QStringLiteral("other words");
    else if (fault == u"no password")
        usedPassword.clear();
    else if (fault == u"first bytes only")
        replace(m_path, good.left(100));
    else if (fault == u"half")
        replace(m_path, good.left(good.size() / 2));
    else if (fault == u"first page damaged")
        replace(m_path, QByteArray(good).replace(2000, 1, good[2000] == 'a' ? "b" : "a"));
    else if (fault == u"plain database") {
        Connection plain;
        plain.create(m_path, {});
        plain.Execute(QStringLiteral("CREATE TABLE Lines (Id INTEGER)"));
    }

    const QByteArray before = contents(m_path);
    const auto files = [this] {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    };
    const QStringList filesBefore = files();
    for (const auto mode : {Connection::Mode::ReadWrite, Connection::Mode::ReadOnly}) {
        try {
            m_connection->open(m_path, usedPassword, mode);
            QFAIL("an unfit file was opened");
        } catch (const DatabaseError& error) {
            QVERIFY2(error.text().startsWith(m_path + u':'), qPrintable(error.text()));
        }
        QVERIFY(!m_connection->isOpen());
    }
    QCOMPARE(contents(m_path), before);
    QCOMPARE(files(), filesBefore);

    if (fault == u"other password" || fault == u"no password") {
        m_connection->open(m_path, password);
        QCOMPARE(rowCount(*m_connection), 50);
    }
}

void tst_faults::damagedPage()
{
    m_connection->writeBatch([this] {
        for (int i = 0; i < 200; ++i)
            addRow(*m_connection, i, QString(500, u'z'));
    });
    m_connection->close();
    QByteArray bytes = contents(m_path);
    bytes[bytes.size() / 2] = static_cast<char>(~bytes[bytes.size() / 2]);
    replace(m_path, bytes);
    m_connection->open(m_path, password);
    Recordset rows(*m_connection);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, {
        rows.Open(QStringLiteral("Lines"));
        while (!rows.AtEOF())
            rows.MoveNext();
    });
    QVERIFY(!rows.State());
    QCOMPARE(contents(m_path), bytes);
}

void tst_faults::plainFileOpensWithoutPassword()
{
    const QString path = m_folder->filePath(QStringLiteral("Lang.mdb"));
    Connection plain;
    plain.create(path, {});
    plain.Execute(QStringLiteral("CREATE TABLE messages (EngMessage LONGTEXT)"));
    plain.Execute(QStringLiteral("INSERT INTO messages VALUES ('Deleted.')"));
    plain.open(path, {}, Connection::Mode::ReadOnly);
    Recordset rows(plain);
    rows.Open(QStringLiteral("Select * from messages where EngMessage='Deleted.'"));
    QCOMPARE(rows.RecordCount(), 1);
    QVERIFY(contents(path).startsWith("SQLite format 3"));
    QVERIFY(!contents(m_path).contains("Lines"));
}

void tst_faults::readOnly()
{
    addRow(*m_connection, 1);
    m_connection->open(m_path, password, Connection::Mode::ReadOnly);
    const QByteArray before = contents(m_path);
    QCOMPARE(rowCount(*m_connection), 1);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, addRow(*m_connection, 2));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->Execute(QStringLiteral("Delete from Lines")));
    try {
        m_connection->writeBatch([this] { addRow(*m_connection, 3); });
        QFAIL("a file opened for reading was written");
    } catch (const DatabaseError& error) {
        QVERIFY2(error.text().contains(QLatin1String("readonly")), qPrintable(error.text()));
    }
    QCOMPARE(rowCount(*m_connection), 1);
    QCOMPARE(contents(m_path), before);
}

void tst_faults::settingsAreSafe()
{
    m_connection->open(m_path, password);
    QCOMPARE(pragma("journal_mode"), "truncate");
    QCOMPARE(pragma("synchronous"), "2");
    QCOMPARE(pragma("page_size"), "4096");
}

void tst_faults::lockedByAnother()
{
    Connection other;
    other.open(m_path, password);
    other.Execute(QStringLiteral("BEGIN EXCLUSIVE"));
    sqlite3_busy_timeout(m_connection->handle(), 20);
    bool ran = false;
    try {
        m_connection->writeBatch([&] { ran = true; });
        QFAIL("the file is locked");
    } catch (const DatabaseError& error) {
        QVERIFY2(error.text().contains(QLatin1String("locked")), qPrintable(error.text()));
        QVERIFY(!error.lostWrites());
    }
    QVERIFY(!ran);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, addRow(*m_connection, 1));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rowCount(*m_connection));
    other.Execute(QStringLiteral("ROLLBACK"));
    addRow(*m_connection, 1);
    QCOMPARE(rowCount(other), 1);
}

void tst_faults::readerHoldsUpTheCommit()
{
    for (int i = 0; i < 40; ++i)
        addRow(*m_connection, i);
    Connection other;
    other.open(m_path, password);
    other.Execute(QStringLiteral("BEGIN"));
    QCOMPARE(rowCount(other), 40);
    sqlite3_busy_timeout(m_connection->handle(), 20);
    bool lost = false;
    try {
        m_connection->writeBatch([this] { addRow(*m_connection, 99); });
    } catch (const DatabaseError& error) {
        lost = error.lostWrites();
    }
    QVERIFY(lost);
    QCOMPARE(rowCount(*m_connection), 40);
    other.Execute(QStringLiteral("COMMIT"));
    m_connection->writeBatch([this] { addRow(*m_connection, 99); });
    QCOMPARE(rowCount(other), 41);

    // A short result lets go of the file at once, a long one when it is closed.
    Recordset reading(other);
    reading.Open(QStringLiteral("Select * from Lines where Number=99"));
    addRow(*m_connection, 100);
    reading.Open(QStringLiteral("Select * from Lines"));
    reading.MoveNext();
    QVERIFY_THROWS_EXCEPTION(DatabaseError, addRow(*m_connection, 101));
    reading.Close();
    addRow(*m_connection, 101);
}

void tst_faults::refusedStatementKeepsTheBatch()
{
    bool afterwards = false;
    try {
        m_connection->writeBatch([&] {
            addRow(*m_connection, 1);
            m_connection->Execute(QStringLiteral("Delete from Lines where Id=1,2"));
            afterwards = true;
        });
        QFAIL("the refusal goes on to the caller");
    } catch (const DatabaseError& error) {
        QVERIFY(!error.lostWrites());
    }
    QVERIFY(!afterwards);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, m_connection->writeBatch([this] {
        addRow(*m_connection, 2);
        throw std::runtime_error("the screen");
    }));
    m_connection->open(m_path, password);
    QCOMPARE(rowCount(*m_connection), 2);
}

void tst_faults::batchesNest()
{
    Connection other;
    other.open(m_path, password);
    m_connection->writeBatch([&] {
        addRow(*m_connection, 1);
        m_connection->writeBatch([this] { addRow(*m_connection, 2); });
        QCOMPARE(rowCount(other), 0);
        Recordset rows(*m_connection);
        rows.Open(QStringLiteral("Lines"));
        QCOMPARE(rows.RecordCount(), 2);
        rows["Number"] = 5;
        rows.MoveNext();
        rows["Number"] = 6;
        rows.UpdateBatch();
    });
    QCOMPARE(rowCount(other), 2);
}

void tst_faults::fullDisk_data()
{
    QTest::addColumn<bool>("swallowed");
    QTest::newRow("the refusal goes on") << false;
    QTest::newRow("the refusal is swallowed") << true;
}

void tst_faults::fullDisk()
{
    QFETCH(bool, swallowed);
    addRow(*m_connection, 1);
    m_connection->Execute(QStringLiteral("PRAGMA max_page_count=20"));
    bool wroteBehind = false;
    try {
        m_connection->writeBatch([&] {
            try {
                for (int i = 0; i < 100; ++i)
                    addRow(*m_connection, i, QString(2000, u'x'));
            } catch (const DatabaseError&) {
                if (!swallowed)
                    throw;
            }
            // The engine has taken all back: a write now would stand alone.
            try {
                addRow(*m_connection, 7);
                wroteBehind = true;
            } catch (const DatabaseError& error) {
                QVERIFY(error.lostWrites());
            }
        });
        QFAIL("the disk is full");
    } catch (const DatabaseError& error) {
        QVERIFY(error.lostWrites());
        QVERIFY2(error.text().contains(QLatin1String("full")), qPrintable(error.text()));
    }
    QVERIFY(!wroteBehind);
    QCOMPARE(rowCount(*m_connection), 1);
    m_connection->Execute(QStringLiteral("PRAGMA max_page_count=100000"));
    m_connection->writeBatch([this] { addRow(*m_connection, 2); });
    m_connection->open(m_path, password);
    QCOMPARE(rowCount(*m_connection), 2);
}

void tst_faults::fullDiskOutsideABatch()
{
    m_connection->Execute(QStringLiteral("PRAGMA max_page_count=20"));
    int written = 0;
    QVERIFY_THROWS_EXCEPTION(DatabaseError, for (;; ++written) addRow(*m_connection, 1, QString(3000, u'x')));
    QVERIFY(sqlite3_get_autocommit(m_connection->handle()));
    m_connection->open(m_path, password);
    QCOMPARE(rowCount(*m_connection), written);
}

void tst_faults::killedInTheMiddle_data()
{
    QTest::addColumn<int>("lines");
    QTest::newRow("in the first batch") << 1;
    QTest::newRow("behind the first commit") << 2;
    QTest::newRow("in the second batch") << 3;
    QTest::newRow("in the third batch") << 5;
}

void tst_faults::killedInTheMiddle()
{
    QFETCH(int, lines);
    m_connection->close();
    QProcess writer;
    writer.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--write-until-killed"), m_path});
    QByteArray heard;
    while (heard.count('\n') < lines) {
        QVERIFY2(writer.waitForReadyRead(15000), writer.readAllStandardError().constData());
        heard += writer.readAllStandardOutput();
    }
    writer.kill();
    QVERIFY(writer.waitForFinished());
    heard += writer.readAllStandardOutput();

    m_connection->open(m_path, password);
    const int batches = rowCount(*m_connection) / (2 * pairsInBatch);
    QCOMPARE(rowCount(*m_connection), batches * 2 * pairsInBatch);
    // Told or not: the last commit may have come just before the end.
    const auto told = heard.count("committed");
    QVERIFY(batches == told || batches == told + 1);
    QCOMPARE(pragma("integrity_check"), "ok");
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == u"--write-until-killed")
        return writeUntilKilled(arguments[2]);
    tst_faults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_faults.moc"
