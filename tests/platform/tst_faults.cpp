// What a shop's computer does to a database file: other files in its place, locks, full disks.
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

#include <QTemporaryDir>
#include <QtTest>
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

/// What the work is refused with: text, and a word of lost writes. Empty when it is not refused.
QString refusal(const std::function<void()>& work)
{
    try {
        work();
    } catch (const DatabaseError& error) {
        return (error.lostWrites() ? QStringLiteral("lost: ") : QString()) + error.text();
    }
    return {};
}

} // namespace

class tst_faults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("data.mdb"));
        m_connection = std::make_unique<Connection>();
        m_connection->create(m_path, password);
        m_connection->Execute(QStringLiteral("CREATE TABLE Lines (Id INTEGER PRIMARY KEY AUTOINCREMENT, "
                                             "Number INTEGER NOT NULL, Text LONGTEXT NOT NULL)"));
    }

    void cleanup()
    {
        m_connection.reset();
        m_folder.reset();
    }

    void unfitFile()
    {
        m_connection->writeBatch([this] {
            for (int i = 0; i < 50; ++i)
                addRow(*m_connection, i, QString(500, u'z'));
        });
        m_connection->close();
        const QByteArray good = contents(m_path);
        QByteArray damaged = good;
        damaged[2000] = static_cast<char>(~damaged[2000]);
        const QString plain = m_folder->filePath(QStringLiteral("Lang.mdb"));
        Connection language;
        language.create(plain, {});
        language.Execute(QStringLiteral("CREATE TABLE messages (EngMessage LONGTEXT)"));
        language.open(plain, {}, Connection::Mode::ReadOnly); // a plain file opens without a password
        QVERIFY(!refusal([&] { language.create(plain, {}); }).isEmpty());

        const auto refused = [this](const QByteArray& bytes, const QString& usedPassword = password) {
            replace(m_path, bytes);
            const QStringList files = QDir(m_folder->path()).entryList();
            for (const auto mode : {Connection::Mode::ReadWrite, Connection::Mode::ReadOnly}) {
                const QString told = refusal([&] { m_connection->open(m_path, usedPassword, mode); });
                if (!told.startsWith(m_path + u':') || m_connection->isOpen())
                    return false;
            }
            return contents(m_path) == bytes && QDir(m_folder->path()).entryList() == files;
        };
        QVERIFY(refused({}));
        QVERIFY(refused(QByteArray(5000, 'a')));
        QVERIFY(refused(good, QStringLiteral("other words")));
        QVERIFY(refused(good, {}));
        QVERIFY(refused(good.left(100)));
        QVERIFY(refused(good.left(good.size() / 2)));
        QVERIFY(refused(damaged));
        QVERIFY(refused(contents(plain)));
        for (const QString& path : {m_folder->path(), m_folder->filePath(QStringLiteral("none.mdb"))})
            QVERIFY(refusal([&] { m_connection->open(path, password); }).startsWith(path + u':'));

        // Damage behind the first page shows when its rows are read.
        damaged = good;
        damaged[good.size() / 2] = static_cast<char>(~damaged[good.size() / 2]);
        replace(m_path, damaged);
        m_connection->open(m_path, password);
        Recordset rows(*m_connection);
        rows.Open(QStringLiteral("Lines"));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, while (!rows.AtEOF()) rows.MoveNext());
        QVERIFY(!rows.State());

        m_connection->close();
        replace(m_path, good);
        m_connection->open(m_path, password);
        QCOMPARE(rowCount(*m_connection), 50);
        QCOMPARE(pragma("journal_mode"), "truncate");
        QCOMPARE(pragma("synchronous"), "2");
        QCOMPARE(pragma("page_size"), "4096");
    }

    void readOnly()
    {
        addRow(*m_connection, 1);
        m_connection->open(m_path, password, Connection::Mode::ReadOnly);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, addRow(*m_connection, 2));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->writeBatch([] {}));
        QCOMPARE(rowCount(*m_connection), 1);
    }

    void lockedByAnother()
    {
        Connection other;
        other.open(m_path, password);
        other.Execute(QStringLiteral("BEGIN EXCLUSIVE"));
        sqlite3_busy_timeout(m_connection->handle(), 20);
        QCOMPARE(refusal([this] { m_connection->writeBatch([] { QFAIL("the file is locked"); }); }),
                 fault("database is locked"));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, addRow(*m_connection, 1));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rowCount(*m_connection));
        other.Execute(QStringLiteral("ROLLBACK"));
        addRow(*m_connection, 1);
        QCOMPARE(rowCount(other), 1);
    }

    void readerHoldsUpTheCommit()
    {
        m_connection->writeBatch([this] {
            for (int i = 0; i < 40; ++i)
                addRow(*m_connection, i);
        });
        Connection other;
        other.open(m_path, password);
        sqlite3_busy_timeout(m_connection->handle(), 20);
        const auto add = [this] { m_connection->writeBatch([this] { addRow(*m_connection, 99); }); };
        // A short result lets go of the file at once, a long one when it is closed.
        Recordset reading(other);
        reading.Open(QStringLiteral("Select * from Lines where Number=9"));
        QVERIFY(!reading.AtEOF());
        QCOMPARE(refusal(add), QString());
        reading.Open(QStringLiteral("Select * from Lines"));
        QVERIFY(!reading.AtEOF());
        QCOMPARE(refusal(add), QString(QStringLiteral("lost: ") + fault("database is locked")));
        QCOMPARE(rowCount(*m_connection), 41);
        reading.Close();
        QCOMPARE(refusal(add), QString());
        QCOMPARE(rowCount(other), 42);
    }

    void whatWasWrittenIsCommitted()
    {
        Connection other;
        other.open(m_path, password);
        const auto refusedStatement = [&] {
            addRow(*m_connection, 1);
            m_connection->writeBatch([this] { addRow(*m_connection, 2); }); // part of the outer one
            QCOMPARE(rowCount(other), 0);
            m_connection->Execute(QStringLiteral("Delete from Lines where Id=1,2"));
        };
        QCOMPARE(refusal([&] { m_connection->writeBatch(refusedStatement); }),
                 QStringLiteral("near \",\": syntax error"));
        QCOMPARE(rowCount(other), 2);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, m_connection->writeBatch([this] {
            addRow(*m_connection, 3);
            throw std::runtime_error("the screen");
        }));
        QCOMPARE(rowCount(other), 3);
    }

    void fullDisk()
    {
        addRow(*m_connection, 1);
        m_connection->Execute(QStringLiteral("PRAGMA max_page_count=20"));
        const auto overfill = [this] {
            for (int i = 0; i < 100; ++i)
                addRow(*m_connection, i, QString(2000, u'x'));
        };
        const QString lost = QStringLiteral("lost: ") + fault("database or disk is full");
        QCOMPARE(refusal([&] { m_connection->writeBatch(overfill); }), lost);
        // The engine has taken all back: a write behind a swallowed refusal would stand alone.
        QCOMPARE(refusal([&] {
                     m_connection->writeBatch([&] {
                         QCOMPARE(refusal(overfill), lost);
                         QCOMPARE(refusal([this] { addRow(*m_connection, 7); }), lost);
                     });
                 }),
                 lost);
        QCOMPARE(rowCount(*m_connection), 1);
        // Outside a batch each write stands for itself, and none stays open.
        QCOMPARE(refusal(overfill), lost.mid(6));
        QVERIFY(sqlite3_get_autocommit(m_connection->handle()));
        const int written = rowCount(*m_connection);
        m_connection->open(m_path, password);
        QCOMPARE(rowCount(*m_connection), written);
    }

private:
    /// A fault of the file, which it names.
    QString fault(const char* text) const { return m_path + QStringLiteral(": ") + QLatin1String(text); }

    /// What the engine answers to a pragma.
    QByteArray pragma(const char* name) const
    {
        QByteArray value;
        const auto keep = [](void* kept, int, char** values, char**) {
            *static_cast<QByteArray*>(kept) = values[0];
            return 0;
        };
        sqlite3_exec(m_connection->handle(), QByteArray("PRAGMA ").append(name).constData(), keep, &value,
                     nullptr);
        return value;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Connection> m_connection;
    QString m_path;
};

QTEST_GUILESS_MAIN(tst_faults)
#include "tst_faults.moc"
