// What a shop's computer does to a database file: other files in its place, locks, full disks.
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "support/Files.h"
#include "support/Refusal.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <sqlcipher/sqlite3.h>

using ado::Connection;
using ado::DatabaseError;
using ado::Recordset;

const QString password = "secret words";

static void addRow(Connection& connection, int number, const QString& text = "x")
{
    Recordset rows(connection);
    rows.Open("Select * from Lines order by id");
    rows.AddNew();
    rows["Number"] = number;
    rows["Text"] = text;
    rows.Update();
}

static void addRows(Connection& connection, int count, const QString& text = "x")
{
    for (int i = 0; i < count; ++i)
        addRow(connection, i, text);
}

static int rowCount(Connection& connection)
{
    Recordset rows(connection);
    rows.Open("Select count(*) from Lines");
    return rows[0].integer();
}

constexpr char nothingSaved[] = "Nothing has been saved.\r\n";

class tst_faults : public QObject
{
    Q_OBJECT

    /// A fault of the file, which it names.
    QString fault(const char* text) const { return m_path + ": " + text; }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Connection> m_connection;
    QString m_path;

private Q_SLOTS:
    void init()
    {
        m_connection = std::make_unique<Connection>(); // before its folder goes
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath("data.mdb");
        m_connection->create(m_path, password);
        m_connection->Execute(
            "CREATE TABLE Lines (Id INTEGER PRIMARY KEY AUTOINCREMENT, Number INTEGER NOT NULL, "
            "Text LONGTEXT NOT NULL)");
    }

    void unfitFile()
    {
        m_connection->writeBatch([this] { addRows(*m_connection, 50, QString(500, u'z')); });
        m_connection->close();
        const QByteArray good = contents(m_path);
        QByteArray damaged = good;
        damaged[2000] = static_cast<char>(~damaged[2000]);
        const QString plain = m_folder->filePath("Lang.mdb");
        Connection language;
        language.create(plain, {});
        language.Execute("CREATE TABLE messages (EngMessage LONGTEXT)");
        language.open(plain, {}, Connection::Mode::ReadOnly); // a plain file opens without a password
        QVERIFY(!refusal([&] { language.create(plain, {}); }).isEmpty());

        const std::pair<QByteArray, QString> unfit[] = {
            {{}, password},      {QByteArray(5000, 'a'), password}, {good, "other words"},
            {good, {}},          {good.left(100), password},        {good.left(good.size() / 2), password},
            {damaged, password}, {contents(plain), password}};
        for (const auto& [bytes, usedPassword] : unfit) {
            writeFile(m_path, bytes);
            const QStringList files = QDir(m_folder->path()).entryList();
            for (const auto mode : {Connection::Mode::ReadWrite, Connection::Mode::ReadOnly}) {
                const QString told =
                    refusal([&, word = usedPassword] { m_connection->open(m_path, word, mode); });
                QVERIFY2(told.startsWith(fault("")) && !m_connection->isOpen(), qPrintable(told));
            }
            QVERIFY(contents(m_path) == bytes && QDir(m_folder->path()).entryList() == files);
        }
        for (const QString& path : {m_folder->path(), m_folder->filePath("none.mdb")})
            QVERIFY(refusal([&] { m_connection->open(path, password); }).startsWith(path + u':'));

        // Damage behind the first page shows when its rows are read.
        damaged = good;
        damaged[good.size() / 2] = static_cast<char>(~damaged[good.size() / 2]);
        writeFile(m_path, damaged);
        m_connection->open(m_path, password);
        Recordset rows(*m_connection);
        rows.Open("Lines");
        const QString told = refusal([&] {
            while (!rows.AtEOF())
                rows.MoveNext();
        });
        QVERIFY2(told.startsWith(fault("")), qPrintable(told));
        QVERIFY(!rows.State());

        m_connection->close();
        writeFile(m_path, good);
        m_connection->open(m_path, password);
        QCOMPARE(rowCount(*m_connection), 50);

        m_connection->open(m_path, password, Connection::Mode::ReadOnly);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, addRow(*m_connection, 2));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->writeBatch([] {}));
        QCOMPARE(rowCount(*m_connection), 50);
    }

    void anotherProgramHoldsTheFile()
    {
        m_connection->writeBatch([this] { addRows(*m_connection, 40); });
        Connection other;
        other.open(m_path, password);
        other.Execute("BEGIN EXCLUSIVE");
        QStringList notices;
        ado::setBusyNotice([&](bool waiting) {
            notices << (waiting ? "begins" : "ends");
            if (waiting)
                other.Execute("ROLLBACK");
        });
        QCOMPARE(rowCount(*m_connection), 40); // once the other program is done
        ado::setBusyNotice({});
        QCOMPARE(notices, QStringList({"begins", "ends"}));
        other.Execute("BEGIN EXCLUSIVE");
        sqlite3_busy_timeout(m_connection->handle(), 20);
        QCOMPARE(refusal([this] { m_connection->writeBatch([] { QFAIL("the file is locked"); }); }),
                 nothingSaved + fault("database is locked"));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, addRow(*m_connection, 1));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rowCount(*m_connection));
        other.Execute("ROLLBACK");

        // A short result lets go of the file at once, a long one when it is closed.
        const auto add = [this] { m_connection->writeBatch([this] { addRow(*m_connection, 99); }); };
        Recordset reading(other);
        reading.Open("Select * from Lines where Number=9");
        QVERIFY(!reading.AtEOF());
        QCOMPARE(refusal(add), QString());
        reading.Open("Select * from Lines");
        QVERIFY(!reading.AtEOF());
        QCOMPARE(refusal(add), nothingSaved + fault("database is locked"));
        QCOMPARE(rowCount(*m_connection), 41);
        reading.Close();
        QCOMPARE(refusal(add), QString());
        QCOMPARE(rowCount(other), 42);
    }

    void aBatchIsWholeOrNotAtAll()
    {
        Connection other;
        other.open(m_path, password);
        const auto refusedStatement = [&] {
            addRow(*m_connection, 1);
            m_connection->writeBatch([this] { addRow(*m_connection, 2); }); // part of the outer one
            QCOMPARE(rowCount(other), 0);
            m_connection->Execute("Delete from Lines where Id=1,2");
        };
        QCOMPARE(refusal([&] { m_connection->writeBatch(refusedStatement); }),
                 nothingSaved + QString("near \",\": syntax error"));
        Recordset buffered(*m_connection);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, m_connection->writeBatch([&] {
            addRow(*m_connection, 3);
            buffered.Open("Select * from Lines");
            buffered.AddNew(); // never written: it must not come into the file later
            throw std::runtime_error("the screen");
        }));
        QVERIFY(!buffered.State());
        m_connection->writeBatch([this] { addRow(*m_connection, 4); });
        QCOMPARE(rowCount(other), 1);
    }

    /// What has taken the place of the open file is not written to, and nothing is said to be saved.
    void anotherFileInItsPlace()
    {
        addRow(*m_connection, 1);
        const QString kept = m_path + ".kept";
        QVERIFY(QFile::rename(m_path, kept));
        const auto write = [this] { m_connection->writeBatch([this] { addRow(*m_connection, 2); }); };
        QVERIFY(refusal(write).contains("no longer the file that was opened")); // gone
        writeFile(m_path, contents(kept));
        QVERIFY(refusal(write).contains("no longer the file that was opened")); // a copy
        QVERIFY(contents(m_path) == contents(kept));
        QVERIFY(QFile::remove(m_path) && QFile::rename(kept, m_path));
        QCOMPARE(refusal(write), QString());
    }

    void fullDisk()
    {
        addRow(*m_connection, 1);
        m_connection->Execute("PRAGMA max_page_count=20");
        const auto overfill = [this] { addRows(*m_connection, 100, QString(2000, u'x')); };
        const QString full = fault("database or disk is full");
        QCOMPARE(refusal([&] { m_connection->writeBatch(overfill); }), nothingSaved + full);
        // The engine has taken all back: a write behind a swallowed refusal would stand alone.
        const auto goOn = [&] {
            QCOMPARE(refusal(overfill), full);
            QCOMPARE(refusal([this] { addRow(*m_connection, 7); }), full);
        };
        QCOMPARE(refusal([&] { m_connection->writeBatch(goOn); }), nothingSaved + full);
        QCOMPARE(rowCount(*m_connection), 1);
        // Outside a batch each write stands for itself, and none stays open.
        QCOMPARE(refusal(overfill), full);
        QVERIFY(sqlite3_get_autocommit(m_connection->handle()));
        const int written = rowCount(*m_connection);
        m_connection->open(m_path, password);
        QCOMPARE(rowCount(*m_connection), written);
    }
};

QTEST_GUILESS_MAIN(tst_faults)
#include "tst_faults.moc"
