#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Errors.h"

#include <QTemporaryDir>
#include <QtTest>

using ado::Connection;
using ado::DatabaseError;
using ado::NoCurrentRecordError;
using ado::Recordset;

class tst_ado : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_connection = std::make_unique<Connection>(); // before its folder goes
        m_folder = std::make_unique<QTemporaryDir>();
        m_connection->create(path(), {});
        m_connection->writeBatch([this] {
            run("CREATE TABLE Postings (Id INTEGER PRIMARY KEY AUTOINCREMENT, VID INTEGER NOT NULL DEFAULT "
                "0, Date DATE NOT NULL, Remark LONGTEXT NOT NULL COLLATE NOCASE, Amount MONEY NOT NULL, "
                "Wages DOUBLE)");
            run("CREATE TABLE Jobs (Id INTEGER NOT NULL DEFAULT 1, Note LONGTEXT COLLATE NOCASE, Due DATE)");
        });
    }

    void orderOfInsertion()
    {
        run("Insert into Jobs (Id, Note) values (5, '95'), (3, '97'), (9, '91'), (1, '99')");
        addAmounts(40);
        // Indexes that the queries lean on must not change what comes first.
        run("CREATE INDEX Jobs_Id ON Jobs (Id)");
        run("CREATE INDEX Jobs_Note ON Jobs (Note, Id)");
        run("CREATE INDEX Postings_Date ON Postings (Date)");
        QCOMPARE(texts("Select * from jobs where ID>0"), QStringLiteral("5 3 9 1"));
        QCOMPARE(texts("Select Note from jobs where note<'99'"), QStringLiteral("95 97 91"));
        Recordset rows(*m_connection, QStringLiteral("Select * from jobs where ID>0"));
        rows.Open();
        rows.MoveLast();
        QCOMPARE(rows["ID"].integer(), 1);
        // So do equals in an order.
        rows.Open(QStringLiteral("Select * from Postings where Date>#1-1-2000# order by Amount desc"));
        for (int i = 1; i <= 40; ++i, rows.MoveNext())
            QCOMPARE(rows["VID"].integer(), i);
        rows.MoveFirst();
        rows.MoveLast();
        QCOMPARE(rows["VID"].integer(), 40);
    }

    void cursor()
    {
        for (int count : {1, 16, 17, 100}) { // 16 rows are read ahead
            run("Delete from Postings");
            addAmounts(count);
            Recordset rows(*m_connection);
            rows.Open(QStringLiteral("Select * from Postings where VID>0 order by VID desc"));
            QCOMPARE(rows.RecordCount(), count);
            for (int round = 0; round < 2; ++round) {
                for (int vid = count; vid > 0; --vid, rows.MoveNext())
                    QCOMPARE(rows["vid"].integer(), vid);
                QVERIFY(rows.AtEOF());
                QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows["vid"]);
                QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows.MoveNext());
                rows.MoveFirst();
            }
            rows.MoveLast();
            QCOMPARE(rows["vid"].integer(), 1);
            rows.MoveNext();
            QVERIFY(rows.AtEOF());
            rows.MoveFirst();
            QCOMPARE(rows["vid"].integer(), count);
            addPosting(rows, 0);
            QCOMPARE(rows.RecordCount(), count + 1);
            const int last = texts("Select max(Id) from Postings").toInt();
            rows.Update();
            QCOMPARE(rows["Id"].integer(), last + 1);
            QCOMPARE(rows.RecordCount(), count + 1);
        }
    }

    void addNewBeforeAnythingIsRead()
    {
        addAmounts(100);
        Recordset rows(*m_connection);
        rows.Open(QStringLiteral("Select * from Postings order by ID"));
        for (int vid : {101, 102}) {
            addPosting(rows, vid);
            if (vid == 101)
                rows.Update();
        }
        QCOMPARE(rows.RecordCount(), 102);
        rows.MoveFirst();
        for (int vid = 1; vid <= 102; ++vid, rows.MoveNext())
            QCOMPARE(rows["VID"].integer(), vid);
        QVERIFY(rows.AtEOF());
        // What is asked for stays what it was when the query was made.
        rows.Open(QStringLiteral("Select * from Postings where VID<=2"));
        run("Delete from Postings");
        QCOMPARE(texts(rows), QStringLiteral("1 2"));
    }

    void emptyResult()
    {
        Recordset rows(*m_connection);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.RecordCount());
        rows.Open(QStringLiteral("Select * from Postings where Id=77"));
        QVERIFY(rows.State() && rows.AtEOF());
        QCOMPARE(rows.RecordCount(), 0);
        rows.MoveFirst();
        rows.MoveLast();
        QVERIFY(rows.AtEOF());
        QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows["Amount"].number());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows["Amounts"]);
        QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows.Update());
        rows.Open(QStringLiteral("Select sum(Amount) from Postings"));
        QVERIFY(rows[0].isNull());
        QCOMPARE(rows[0].number(), 0.0);
    }

    void storedForms_data()
    {
        QTest::addColumn<QVariant>("given");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* field, const QVariant& given, const char* text) {
            QTest::newRow(field) << given << QString::fromUtf8(text);
        };
        row("Amount", 250, "250");
        row("Amount", 0.00005, "0");
        row("Amount", 1.00015, "1.0002");
        row("Amount", QStringLiteral(" 12.50 "), "12.5");
        row("Amount", QVariant::fromValue(Currency::fromUnits(-12345)), "-1.2345");
        row("VID", 2.5, "2");
        row("VID", QStringLiteral("3.5"), "4");
        row("VID", true, "1");
        row("VID", -2147483648.0, "-2147483648");
        row("Date", QDate(2024, 2, 9), "2024-02-09");
        row("Date", QStringLiteral("09-Feb-2024"), "2024-02-09");
        row("Date", QStringLiteral("9-Feb-2024 1:05:07 PM"), "2024-02-09 13:05:07");
        row("Remark", 0.1, "0.1");
        row("Remark", QDate(2024, 2, 9), "2024-02-09");
        row("Remark", QStringLiteral("007"), "007");
        row("Wages", QStringLiteral("1e3"), "1000");
        row("Wages", QVariant(), "");
        // Refused, and the field stays as it was.
        row("VID", QStringLiteral("twelve"), nullptr);
        row("VID", qint64(2147483648), nullptr);
        row("VID", QStringLiteral("2147483648"), nullptr);
        row("Amount", QStringLiteral(""), nullptr);
        row("Amount", 1e300, nullptr);
        row("Date", QStringLiteral("soon"), nullptr);
        row("Date", 5, nullptr);
    }

    void storedForms()
    {
        QFETCH(QVariant, given);
        QFETCH(QString, text);
        const char* field = QTest::currentDataTag();
        addAmounts(1);
        Recordset rows(*m_connection, QStringLiteral("Postings"));
        rows.Open();
        if (text.isNull()) {
            text = rows[field].text();
            QVERIFY_THROWS_EXCEPTION(OperatorError, rows[field] = given);
        } else {
            rows[field] = given;
        }
        QCOMPARE(rows[field].text(), text);
        rows.Update();
        rows.Open();
        QCOMPARE(rows[field].text(), text);
        QCOMPARE(rows[field].isNull(), !given.isValid());
    }

    void newRows()
    {
        Recordset rows(*m_connection, QStringLiteral("Jobs"));
        rows.Open();
        rows.AddNew();
        rows["Note"] = QStringLiteral("first");
        rows.Update();
        QCOMPARE(rows["Id"].integer(), 1); // the default of the table
        rows["Note"] = QStringLiteral("changed");
        rows.Update();
        rows.AddNew();
        rows["Note"] = QStringLiteral("begun and left");
        QCOMPARE(texts("Select Note from Jobs"), QStringLiteral("changed"));

        rows.Open(QStringLiteral("Select * from Postings order by ID"));
        rows.AddNew();
        rows["Date"] = QDate(2024, 1, 1);
        rows["Amount"] = 5;
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update()); // no remark
        rows["Remark"] = QStringLiteral("");
        rows.Update();
        QVERIFY(!rows["Remark"].isNull());
        rows["Remark"] = ado::Null;
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update());
        rows["Remark"] = QStringLiteral("deleted meanwhile");
        run("Delete from Postings");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update());
    }

    void writingWhileWalking()
    {
        addAmounts(40);
        run("CREATE INDEX Postings_Amount ON Postings (Amount, VID)");
        Recordset rows(*m_connection);
        Recordset others(*m_connection, QStringLiteral("Jobs"));
        // Written rows leave the first query, and move on in the order of the second.
        for (const char* sql :
             {"Select * from Postings where Amount=1", "Select * from Postings order by Amount,VID"}) {
            rows.Open(QString::fromLatin1(sql));
            int walked = 0;
            for (; !rows.AtEOF(); rows.MoveNext(), ++walked) {
                rows["Amount"] = rows["Amount"].number() + 1;
                rows.Update();
                others.Open();
                others.AddNew();
                others.Update();
            }
            QCOMPARE(walked, 40);
        }
        QCOMPARE(texts("Select sum(Amount) from Postings"), QStringLiteral("120"));
    }

    void anyTextSurvives()
    {
        const QString text =
            QStringLiteral("It's 100% \"quoted\" #1-1-2020# `x` [y] \\ ; -- /* \r\n\t\U0001F9F5 दर्ज़ी ") +
            QString(70000, u'x');
        Recordset rows(*m_connection, QStringLiteral("Jobs"));
        rows.Open();
        rows.AddNew();
        rows["Note"] = text;
        rows.Update();
        rows.Open(QStringLiteral("Select * from Jobs where Note='") +
                  QString(text).replace(u'\'', QLatin1String("''")) + u'\'');
        QCOMPARE(rows["Note"].text(), text);
    }

    void sumIsExact()
    {
        for (const char* amount : {"0.10", "0.20", "-0.30"})
            addAmounts(1, amount);
        QCOMPARE(texts("Select sum(Amount) from Postings"), QStringLiteral("0"));
        addAmounts(1000, "0.1");
        addAmounts(1000, "-0.0999");
        QCOMPARE(texts("Select Sum( Amount ) from Postings"), QStringLiteral("0.1"));
    }

    void textsCompareWithoutCase()
    {
        run("Insert into Jobs (Id, Note) values (1, 'Élan O''Neil'), (2, 'ÖZDEMİR')");
        run("Insert into Jobs (Id, Note) values (3, '50% off'), (4, 'रमेश'), (5, 'a\U0001F9F5b')");
        const auto where = [this](const char* condition) {
            return texts(QByteArray("Select * from Jobs where Note ").append(condition).constData());
        };
        QCOMPARE(where("='50% OFF'"), QStringLiteral("3"));
        QCOMPARE(where("like '%éLAN%'"), QStringLiteral("1"));
        QCOMPARE(where("like 'öz%'"), QStringLiteral("2"));
        QCOMPARE(where("like '%o''n%'"), QStringLiteral("1"));
        QCOMPARE(where("like '%मे%'"), QStringLiteral("4"));
        QCOMPARE(where("like 'a_b'"), QStringLiteral("5"));
        QCOMPARE(where("like '%'"), QStringLiteral("1 2 3 4 5"));
        QCOMPARE(where("like ''"), QString());
    }

    void closing()
    {
        addAmounts(100);
        Recordset rows(*m_connection, QStringLiteral("Postings"));
        rows.Open();
        QVERIFY(!rows.AtEOF());
        m_connection->close();
        QVERIFY(!rows.State() && !m_connection->isOpen());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Open());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, run("Delete from Jobs"));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->writeBatch([] {}));
        m_connection->open(path(), {});
        rows.Open();
        QCOMPARE(rows.RecordCount(), 100);
        m_connection.reset();
        QVERIFY(!rows.State());
    }

private:
    QString path() const { return m_folder->filePath(QStringLiteral("shop.mdb")); }
    int run(const char* sql) { return m_connection->Execute(QString::fromUtf8(sql)); }

    /// Adds postings with VID 1, 2, 3 ... and the same amount.
    void addAmounts(int count, const char* amount = "1")
    {
        Recordset rows(*m_connection, QStringLiteral("Postings"));
        rows.Open();
        for (int vid = 1; vid <= count; ++vid)
            addPosting(rows, vid, amount);
        rows.UpdateBatch();
    }

    static void addPosting(Recordset& rows, int vid, const char* amount = "1")
    {
        rows.AddNew();
        rows["VID"] = vid;
        rows["Date"] = QDate(2024, 1, 1).addDays(vid % 7);
        rows["Remark"] = QStringLiteral("Remark %1").arg(vid);
        rows["Amount"] = QString::fromLatin1(amount);
    }

    /// The first column of the rows from the current one on.
    static QString texts(Recordset& rows)
    {
        QStringList result;
        for (; !rows.AtEOF(); rows.MoveNext())
            result << rows[0].text();
        return result.join(u' ');
    }

    QString texts(const char* sql)
    {
        Recordset rows(*m_connection);
        rows.Open(QString::fromUtf8(sql));
        return texts(rows);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Connection> m_connection;
};

QTEST_GUILESS_MAIN(tst_ado)
#include "tst_ado.moc"
