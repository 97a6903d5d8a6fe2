#include "platform/ado/Connection.h"
#include "platform/ado/Reader.h"
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

    void run(const QString& sql) { m_connection->Execute(sql); }

    /// Adds postings with VID 1, 2, 3 ... and the same amount.
    void addAmounts(int count, const char* amount = "1")
    {
        Recordset rows(*m_connection, "Postings");
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
        rows["Remark"] = "Remark";
        rows["Amount"] = amount;
    }

    /// The first column of the rows from the current one on.
    static QString texts(Recordset& rows)
    {
        QStringList result;
        for (; !rows.AtEOF(); rows.MoveNext())
            result << rows[0].text();
        return result.join(u' ');
    }

    QString texts(const QString& sql)
    {
        Recordset rows(*m_connection);
        rows.Open(sql);
        return texts(rows);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Connection> m_connection;

private Q_SLOTS:
    void init()
    {
        m_connection = std::make_unique<Connection>(); // before its folder goes
        m_folder = std::make_unique<QTemporaryDir>();
        m_connection->create(m_folder->filePath("shop.mdb"), {});
        run("CREATE TABLE Postings (Id INTEGER PRIMARY KEY AUTOINCREMENT, VID INTEGER NOT NULL DEFAULT 0, "
            "Date DATE NOT NULL, Remark LONGTEXT NOT NULL COLLATE NOCASE, Amount MONEY NOT NULL, Wages "
            "DOUBLE)");
        run("CREATE TABLE Jobs (Id INTEGER NOT NULL DEFAULT 1, Note LONGTEXT COLLATE NOCASE, Due DATE)");
    }

    /// Of a long result only what is asked for is read; a column asked for late, after a change of the row or
    /// another's write, is still that of the row.
    void columnsAskedForLate()
    {
        addAmounts(40);
        Recordset rows(*m_connection);
        rows.Open("Select * from Postings order by VID");
        for (int vid = 1; vid <= 30; ++vid, rows.MoveNext())
            QCOMPARE(rows["VID"].integer(), vid);
        QCOMPARE(rows["Remark"].text(), QString("Remark"));
        rows.MoveNext();
        rows["Amount"] = 5;
        rows.MoveNext();
        run("Update Postings set Remark='Later'");
        QCOMPARE(rows["Date"].date(), QDate(2024, 1, 1).addDays(33 % 7));
        QCOMPARE(rows["Remark"].text(), QString("Remark"));
        rows.UpdateBatch();
        QCOMPARE(texts("Select VID from Postings where Amount=5 and Remark='Later'"), QString("32"));
    }

    /// A reader of some columns gives what a recordset's fields do, in the same order, whatever lies in the
    /// file.
    void readersAgreeWithRecordsets()
    {
        addAmounts(20);
        run("CREATE INDEX Postings_Date ON Postings (Date)");
        run("Update Postings set VID='12', Wages=0.1+0.2, Remark='' where Id=3");
        run("Update Postings set VID=7.5, Date='2024-02-30' where Id=4");
        run("Update Postings set Date='2024-01-05 10:30:00', Amount=1.25, Wages='many' where Id=5");
        run("Update Postings set Date='5/1/2024', VID=9999999999, Remark=4.5 where Id=6");
        const auto told = [](auto read) {
            try {
                return QVariant(read()).toString();
            } catch (const std::exception& fault) {
                return QString(fault.what());
            }
        };
        const auto values = [&told](const auto& vid, const auto& date, const auto& remark,
                                    const auto& wages) {
            return QStringList{told([&] { return vid.integer(); }), told([&] { return vid.text(); }),
                               told([&] { return date.date(); }),   told([&] { return date.text(); }),
                               told([&] { return remark.text(); }), told([&] { return wages.number(); }),
                               told([&] { return wages.isNull(); })};
        };
        for (const char* sql : {"Select * from Postings where VID>0 order by Date desc",
                                "Select Id, Wages, remark, DATE, Vid from Postings",
                                "Select * from (Select * from Postings)"}) {
            Recordset expected(*m_connection);
            expected.Open(sql);
            ado::Reader rows(*m_connection, sql);
            const auto date = rows["Date"], wages = rows["wages"], vid = rows["VID"], remark = rows["Remark"];
            for (; rows.next(); expected.MoveNext())
                QCOMPARE(values(vid, date, remark, wages),
                         values(expected["VID"], expected["Date"], expected["Remark"], expected["Wages"]));
            QVERIFY(expected.AtEOF());
            QVERIFY(!rows.next());
        }
        for (const char* sql :
             {"Select * from Postings", "Select Id from Postings", "Select * from Nowhere"}) {
            ado::Reader rows(*m_connection, sql);
            (void)rows["Bonus"];
            QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.next());
        }
        run("Delete from Postings where Id=1"); // nothing is locked
    }

    /// What was opened ahead is taken for that file and password alone; all else is as without it.
    void openedAhead()
    {
        const QString path = m_folder->filePath("keyed.mdb"), other = m_folder->filePath("other.mdb");
        for (const QString& made : {path, other}) {
            Connection shop;
            shop.create(made, "secret");
            shop.Execute("CREATE TABLE Notes (Note LONGTEXT)");
        }
        const auto opens = [](const QString& file, const QString& password) {
            Connection shop;
            try {
                shop.open(file, password);
                shop.Execute("Insert into Notes (Note) values ('x')");
            } catch (const DatabaseError& error) {
                return error.text();
            }
            return QString();
        };
        const QString refused = opens(path, "wrong");
        QVERIFY(refused.startsWith(path));
        for (const char* ahead : {"secret", "wrong"}) {
            ado::openAhead(path, ahead);
            QCOMPARE(opens(path, "secret"), QString());
            ado::openAhead(path, ahead);
            QCOMPARE(opens(path, "wrong"), refused);
            ado::openAhead(path, ahead);
            QCOMPARE(opens(other, "secret"), QString());
        }
        ado::openAhead(path, "secret");
        ado::openAhead(m_folder->filePath("gone.mdb"), "secret");
        QCOMPARE(opens(path, "secret"), QString());
        QVERIFY(!QFile::exists(m_folder->filePath("gone.mdb")));
    }

    void orderOfInsertion()
    {
        run("Insert into Jobs (Id, Note) values (5, '95'), (3, '97'), (9, '91'), (1, '99')");
        addAmounts(40);
        // Indexes that the queries lean on must not change what comes first.
        run("CREATE INDEX Jobs_Id ON Jobs (Id)");
        run("CREATE INDEX Jobs_Note ON Jobs (Note, Id)");
        run("CREATE INDEX Postings_Date ON Postings (Date)");
        QCOMPARE(texts("Select Note from jobs where note<'99'"), "95 97 91");
        Recordset rows(*m_connection, "Select * from jobs where ID>0");
        rows.Open();
        rows.MoveLast();
        QCOMPARE(rows["ID"].integer(), 1);
        // So do equals in an order.
        rows.Open("Select VID from Postings where Date>#1-1-2000# order by Amount desc");
        QVERIFY(texts(rows).startsWith("1 2 3 4"));
        rows.MoveLast();
        QCOMPARE(rows["VID"].integer(), 40);
    }

    void cursor()
    {
        for (const int count : {1, 16, 17, 100}) { // 16 rows are read ahead
            run("Delete from Postings");
            addAmounts(count);
            Recordset rows(*m_connection);
            rows.Open("Select * from Postings where VID>0 order by VID desc");
            for (int round = 0; round < 2; ++round) {
                for (int vid = count; vid > 0; --vid, rows.MoveNext())
                    QCOMPARE(rows["vid"].integer(), vid);
                QVERIFY(rows.AtEOF());
                QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows.MoveNext());
                rows.MoveFirst();
            }
            rows.MoveLast();
            QCOMPARE(rows["vid"].integer(), 1);

            rows.Open("Select * from Postings order by ID"); // rows are added before any is read
            for (const int vid : {count + 1, count + 2}) {
                addPosting(rows, vid);
                if (vid == count + 1)
                    rows.Update();
            }
            QCOMPARE(rows.RecordCount(), count + 2);
            rows.MoveFirst();
            for (int vid = 1; vid <= count + 2; ++vid, rows.MoveNext())
                QCOMPARE(rows["VID"].integer(), vid);
            QVERIFY(rows.AtEOF());
        }
        Recordset rows(*m_connection);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.RecordCount());
        rows.Open("Select * from Postings where Id=-1");
        rows.MoveFirst();
        rows.MoveLast();
        QCOMPARE(rows.RecordCount(), 0);
        QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows["Amount"].number());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows["Amounts"]);
        QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows.Update());
        // What is asked for stays what it was when the query was made.
        rows.Open("Select VID from Postings where VID<=2");
        run("Delete from Postings");
        QCOMPARE(texts(rows), "1 2");
    }

    void storedForms()
    {
        const struct
        {
            const char* field;
            QVariant given;
            const char* text; // null: refused, and the field stays as it was
        } forms[] = {{"Amount", 0.00005, "0"},
                     {"Amount", 1.00015, "1.0002"},
                     {"Amount", " 12.50 ", "12.5"},
                     {"Amount", QVariant::fromValue(Currency::fromUnits(-12345)), "-1.2345"},
                     {"VID", 2.5, "2"},
                     {"Date", QDate(2024, 2, 9), "2024-02-09"},
                     {"Date", "09-Feb-2024", "2024-02-09"},
                     {"Date", "9-Feb-2024 1:05:07 PM", "2024-02-09 13:05:07"},
                     {"Remark", "007", "007"},
                     {"Wages", {}, ""},
                     {"VID", "twelve", nullptr},
                     {"VID", qint64(2147483648), nullptr},
                     {"Amount", "", nullptr},
                     {"Amount", 1e300, nullptr},
                     {"Date", "soon", nullptr},
                     {"Date", 5, nullptr}};
        addAmounts(1);
        Recordset rows(*m_connection, "Postings");
        for (const auto& [field, given, stored] : forms) {
            rows.Open();
            const QString text = stored ? QString(stored) : rows[field].text();
            if (stored)
                rows[field] = given;
            else
                QVERIFY_THROWS_EXCEPTION(OperatorError, rows[field] = given);
            QCOMPARE(rows[field].text(), text);
            rows.Update();
            rows.Open();
            QCOMPARE(rows[field].text(), text);
            QCOMPARE(rows[field].isNull(), !given.isValid());
        }
    }

    void newRows()
    {
        Recordset rows(*m_connection, "Jobs");
        rows.Open();
        for (const char* note : {"first", "begun and left"}) {
            rows.AddNew();
            rows["Note"] = note;
            if (note[0] == 'f')
                rows.Update();
        }
        QCOMPARE(texts("Select Id from Jobs"), "1"); // the default of the table

        rows.Open("Select * from Postings order by ID");
        rows.AddNew();
        rows["Date"] = QDate(2024, 1, 1);
        rows["Amount"] = 5;
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update()); // no remark
        rows["Remark"] = "";
        rows.Update();
        QVERIFY(!rows["Remark"].isNull() && rows["Id"].integer() > 0);
        rows["Remark"] = ado::Null;
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update());
        rows["Remark"] = "deleted meanwhile";
        run("Delete from Postings");
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update());
    }

    void writingWhileWalking()
    {
        addAmounts(40);
        run("CREATE INDEX Postings_Amount ON Postings (Amount, VID)");
        Recordset rows(*m_connection);
        Recordset others(*m_connection, "Jobs");
        // Written rows leave the first query, and move on in the order of the second.
        for (const char* sql :
             {"Select * from Postings where Amount=1", "Select * from Postings order by Amount,VID"}) {
            int walked = 0;
            for (rows.Open(sql); !rows.AtEOF(); rows.MoveNext(), ++walked) {
                rows["Amount"] = rows["Amount"].number() + 1;
                rows.Update();
                others.Open();
                others.AddNew();
                others.Update();
            }
            QCOMPARE(walked, 40);
        }
        // A sum is exact.
        QCOMPARE(texts("Select sum(Amount) from Postings"), "120");
        for (const char* amount : {"0.10", "0.20", "-120.30"})
            addAmounts(1, amount);
        QCOMPARE(texts("Select Sum( Amount ) from Postings"), "0");
    }

    void anyTextSurvivesAndComparesWithoutCase()
    {
        const QString text = "It's 100% \"quoted\" #1-1-2020# `x` [y] \\ ; -- /* \r\n\t\U0001F9F5 दर्ज़ी " +
                             QString(70000, u'x');
        const QString quoted = QString(text).replace("'", "''");
        run("Insert into Jobs (Note) values ('" + quoted + "')");
        QCOMPARE(texts("Select Note from Jobs where Note='" + quoted + "'"), text);
        run("Delete from Jobs");
        run("Insert into Jobs (Id, Note) values (1, 'Élan O''Neil'), (2, 'ÖZDEMİR'), (3, '50% off'), (4, "
            "'रमेश'), "
            "(5, 'a\U0001F9F5b')");
        for (const auto& [condition, found] :
             {std::pair("='50% OFF'", "3"), std::pair("like '%éLAN%'", "1"), std::pair("like 'öz%'", "2"),
              std::pair("like '%o''n%'", "1"), std::pair("like '%मे%'", "4"), std::pair("like 'a_b'", "5"),
              std::pair("like '%'", "1 2 3 4 5"), std::pair("like ''", "")})
            QCOMPARE(texts(QString("Select * from Jobs where Note ") + condition), found);
    }

    void closing()
    {
        addAmounts(100);
        Recordset rows(*m_connection, "Postings");
        rows.Open();
        QVERIFY(!rows.AtEOF());
        m_connection->close();
        QVERIFY(!rows.State() && !m_connection->isOpen());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Open());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->writeBatch([] {}));
        m_connection->open(m_folder->filePath("shop.mdb"), {});
        rows.Open();
        QCOMPARE(rows.RecordCount(), 100);
        m_connection.reset();
        QVERIFY(!rows.State());
    }
};

QTEST_GUILESS_MAIN(tst_ado)
#include "tst_ado.moc"
