#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Errors.h"

#include <QTemporaryDir>
#include <QtTest>

using ado::Connection;
using ado::DatabaseError;
using ado::NoCurrentRecordError;
using ado::Recordset;

namespace {

const QString password = QStringLiteral("secret words");

QStringList texts(Recordset& rows, const char* field)
{
    QStringList result;
    for (; !rows.AtEOF(); rows.MoveNext())
        result << rows[field].text();
    return result;
}

} // namespace

class tst_ado : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void rowsComeInOrderOfInsertion();
    void equalsComeInOrderOfInsertion();
    void cursor_data();
    void cursor();
    void addNewBeforeAnythingIsRead();
    void emptyResult();
    void fieldsByName();
    void storedForms_data();
    void storedForms();
    void refusedValues_data();
    void refusedValues();
    void addNewReadsBackWhatTheFileAdds();
    void requiredFieldLeftOut();
    void batchOfRowsIsOneCommit();
    void writingWhileWalking_data();
    void writingWhileWalking();
    void deletedMeanwhile();
    void longTextSurvives();
    void sumIsExact();
    void textComparesWithoutCase();
    void likeFoldsEveryScript();
    void chapters();
    void groups();
    void executeCountsRows();
    void refusedStatements_data();
    void refusedStatements();
    void closing();

private:
    void addAmounts(int count, const char* amount = "1");

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Connection> m_connection;
};

void tst_ado::init()
{
    if (!m_connection) {
        m_folder = std::make_unique<QTemporaryDir>();
        m_connection = std::make_unique<Connection>();
        m_connection->create(m_folder->filePath(QStringLiteral("shop.mdb")), password);
    }
    m_connection->writeBatch([this] {
        m_connection->Execute(QStringLiteral(
            "CREATE TABLE Postings (Id INTEGER PRIMARY KEY AUTOINCREMENT, VID INTEGER NOT NULL DEFAULT 0, "
            "Date DATE NOT NULL, Remark LONGTEXT NOT NULL COLLATE NOCASE, Amount MONEY NOT NULL, Wages "
            "DOUBLE)"));
        m_connection->Execute(
            QStringLiteral("CREATE TABLE Jobs (Id INTEGER NOT NULL DEFAULT 1, Note LONGTEXT COLLATE "
                           "NOCASE, Due DATE)"));
    });
}

/// Proving a password takes its time: the connection serves the next function too.
void tst_ado::cleanup()
{
    if (!m_connection)
        return;
    m_connection->writeBatch([this] {
        m_connection->Execute(QStringLiteral("DROP TABLE Postings"));
        m_connection->Execute(QStringLiteral("DROP TABLE Jobs"));
    });
}

/// Adds postings with VID 1, 2, 3 ... and the same amount.
void tst_ado::addAmounts(int count, const char* amount)
{
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings"));
    for (int i = 1; i <= count; ++i) {
        rows.AddNew();
        rows["VID"] = i;
        rows["Date"] = QDate(2024, 1, 1).addDays(i % 7);
        rows["Remark"] = QStringLiteral("Remark %1").arg(i);
        rows["Amount"] = QString::fromLatin1(amount);
    }
    rows.UpdateBatch();
}

void tst_ado::rowsComeInOrderOfInsertion()
{
    Recordset rows(*m_connection, QStringLiteral("Jobs"));
    rows.Open();
    for (int id : {5, 3, 9, 1}) {
        rows.AddNew();
        rows["Id"] = id;
        rows["Note"] = QString::number(100 - id);
    }
    rows.UpdateBatch();
    // An index that a query leans on must not change what comes first.
    m_connection->Execute(QStringLiteral("CREATE INDEX IF NOT EXISTS Jobs_Id ON Jobs (Id)"));
    m_connection->Execute(QStringLiteral("CREATE INDEX IF NOT EXISTS Jobs_Note ON Jobs (Note, Id)"));
    rows.Open(QStringLiteral("Select * from jobs where ID>0"));
    QCOMPARE(texts(rows, "id"), QStringList({QStringLiteral("5"), QStringLiteral("3"), QStringLiteral("9"),
                                             QStringLiteral("1")}));
    rows.Open(QStringLiteral("Select Note from jobs where note<'99'"));
    QCOMPARE(texts(rows, "note"),
             QStringList({QStringLiteral("95"), QStringLiteral("97"), QStringLiteral("91")}));
    rows.Open(QStringLiteral("Select * from jobs where ID>0"));
    rows.MoveLast();
    QCOMPARE(rows["ID"].integer(), 1);
}

void tst_ado::equalsComeInOrderOfInsertion()
{
    addAmounts(40);
    // Read through this index, the rows come by date.
    m_connection->Execute(QStringLiteral("CREATE INDEX Postings_Date ON Postings (Date)"));
    const QString sql =
        QStringLiteral("Select * from Postings where Date between #1-1-2024# and #31-1-2024# order by Amount desc");
    Recordset rows(*m_connection);
    rows.Open(sql);
    for (int i = 1; i <= 40; ++i, rows.MoveNext())
        QCOMPARE(rows["Id"].integer(), i);
    rows.Open(sql);
    rows.MoveLast();
    QCOMPARE(rows["Id"].integer(), 40);
}

void tst_ado::cursor_data()
{
    QTest::addColumn<int>("rowsInTable");
    QTest::newRow("one row") << 1;
    QTest::newRow("read ahead whole") << 15;
    QTest::newRow("on the edge") << 16;
    QTest::newRow("one behind the edge") << 17;
    QTest::newRow("long") << 100;
}

void tst_ado::cursor()
{
    QFETCH(int, rowsInTable);
    addAmounts(rowsInTable);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings where VID>0 order by VID desc"));
    QCOMPARE(rows.RecordCount(), rowsInTable);
    for (int round = 0; round < 2; ++round) {
        for (int vid = rowsInTable; vid > 0; --vid) {
            QVERIFY(!rows.AtEOF());
            QCOMPARE(rows["vid"].integer(), vid);
            rows.MoveNext();
        }
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
    QCOMPARE(rows["vid"].integer(), rowsInTable);
    QCOMPARE(rows.RecordCount(), rowsInTable);

    rows.AddNew();
    rows["VID"] = 0;
    rows["Date"] = QDate(2024, 1, 1);
    rows["Remark"] = QStringLiteral("added");
    rows["Amount"] = 0;
    QCOMPARE(rows.RecordCount(), rowsInTable + 1);
    rows.Update();
    QCOMPARE(rows["Id"].integer(), rowsInTable + 1);
    QCOMPARE(rows.RecordCount(), rowsInTable + 1);
    rows.MoveFirst();
    rows.MoveLast();
    QVERIFY(rows["Remark"].text() == QLatin1String(rowsInTable > 16 ? "Remark 1" : "added"));
}

void tst_ado::addNewBeforeAnythingIsRead()
{
    addAmounts(100);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings order by ID"));
    for (int vid : {101, 102}) {
        rows.AddNew();
        rows["VID"] = vid;
        rows["Date"] = QDate(2024, 1, 1);
        rows["Remark"] = QStringLiteral("added");
        rows["Amount"] = 1;
        if (vid == 101)
            rows.Update();
    }
    QCOMPARE(rows.RecordCount(), 102);
    rows.MoveFirst();
    for (int vid = 1; vid <= 102; ++vid, rows.MoveNext())
        QCOMPARE(rows["VID"].integer(), vid);
    QVERIFY(rows.AtEOF());
    rows.UpdateBatch();
    // What is asked for stays what it was when the query was made.
    rows.Open(QStringLiteral("Select * from Postings where VID<=2"));
    m_connection->Execute(QStringLiteral("Delete from Postings"));
    QCOMPARE(texts(rows, "VID"), QStringList({QStringLiteral("1"), QStringLiteral("2")}));
}

void tst_ado::emptyResult()
{
    Recordset rows(*m_connection);
    QVERIFY(!rows.State());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.RecordCount());
    rows.Open(QStringLiteral("Select * from Postings where Id=77"));
    QVERIFY(rows.State() && rows.AtEOF());
    QCOMPARE(rows.RecordCount(), 0);
    rows.MoveFirst();
    rows.MoveLast();
    QVERIFY(rows.AtEOF());
    QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows["Amount"].number());
    QVERIFY_THROWS_EXCEPTION(NoCurrentRecordError, rows.Update());
    rows.Open(QStringLiteral("Select sum(Amount) from Postings"));
    QCOMPARE(rows.RecordCount(), 1);
    QVERIFY(rows[0].isNull());
    QCOMPARE(rows[0].number(), 0.0);
}

void tst_ado::fieldsByName()
{
    addAmounts(1);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from POSTINGS"));
    QCOMPARE(rows.FieldCount(), 6);
    QCOMPARE(rows.FieldName(0), QStringLiteral("Id"));
    QVERIFY(rows.HasField(QStringLiteral("aMoUnT")) && !rows.HasField(QStringLiteral("rowid")));
    QCOMPARE(rows["aMoUnT"].number(), 1.0);
    QCOMPARE(rows[4].number(), 1.0);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows["Amounts"]);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows[6]);
}

void tst_ado::storedForms_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* field, const QVariant& given, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(field) << given << QString::fromUtf8(text);
    };
    row("whole money", "Amount", 250, "250");
    row("money, half to even down", "Amount", 0.00005, "0");
    row("money, half to even up", "Amount", 1.00015, "1.0002");
    row("money from text", "Amount", QStringLiteral(" 12.50 "), "12.5");
    row("money from money", "Amount", QVariant::fromValue(Currency::fromUnits(-12345)), "-1.2345");
    row("integer from double", "VID", 2.5, "2");
    row("integer from text", "VID", QStringLiteral("3.5"), "4");
    row("integer from true", "VID", true, "1");
    row("integer from false", "VID", false, "0");
    row("lowest integer", "VID", -2147483648.0, "-2147483648");
    row("date", "Date", QDate(2024, 2, 9), "2024-02-09");
    row("date from text", "Date", QStringLiteral("09-Feb-2024"), "2024-02-09");
    row("date and time", "Date", QDateTime(QDate(2024, 2, 9), QTime(13, 5, 7)), "2024-02-09 13:05:07");
    row("midnight", "Date", QDateTime(QDate(2024, 2, 9), QTime(0, 0)), "2024-02-09");
    row("date and time from text", "Date", QStringLiteral("9-Feb-2024 1:05:07 PM"), "2024-02-09 13:05:07");
    row("text from integer", "Remark", 301, "301");
    row("text from double", "Remark", 0.1, "0.1");
    row("text from date", "Remark", QDate(2024, 2, 9), "2024-02-09");
    row("digits stay text", "Remark", QStringLiteral("007"), "007");
    row("double", "Wages", 0.1, "0.1");
    row("double from text", "Wages", QStringLiteral("1e3"), "1000");
    row("nothing", "Wages", QVariant(), "");
}

void tst_ado::storedForms()
{
    QFETCH(QString, field);
    QFETCH(QVariant, given);
    QFETCH(QString, text);
    addAmounts(1);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings"));
    rows[field] = given;
    QCOMPARE(rows[field].text(), text);
    rows.Update();
    rows.Open(QStringLiteral("Select * from Postings"));
    QCOMPARE(rows[field].text(), text);
    QCOMPARE(rows[field].isNull(), !given.isValid());
}

void tst_ado::refusedValues_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("given");
    QTest::newRow("text in a number") << QStringLiteral("VID") << QVariant(QStringLiteral("twelve"));
    QTest::newRow("empty text in money") << QStringLiteral("Amount") << QVariant(QStringLiteral(""));
    QTest::newRow("text in a date") << QStringLiteral("Date") << QVariant(QStringLiteral("soon"));
    QTest::newRow("number in a date") << QStringLiteral("Date") << QVariant(5);
    QTest::newRow("33 bits") << QStringLiteral("VID") << QVariant(qint64(2147483648));
    QTest::newRow("33 bits in text") << QStringLiteral("VID") << QVariant(QStringLiteral("2147483648"));
    QTest::newRow("endless money") << QStringLiteral("Amount") << QVariant(1e300);
}

void tst_ado::refusedValues()
{
    QFETCH(QString, field);
    QFETCH(QVariant, given);
    addAmounts(1);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings"));
    const QString before = rows[field].text();
    QVERIFY_THROWS_EXCEPTION(OperatorError, rows[field] = given);
    QCOMPARE(rows[field].text(), before);
}

void tst_ado::addNewReadsBackWhatTheFileAdds()
{
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Jobs"));
    rows.AddNew();
    rows["Note"] = QStringLiteral("first");
    rows.Update();
    QCOMPARE(rows["Id"].integer(), 1);
    rows["Note"] = QStringLiteral("changed");
    rows.Update();
    rows.AddNew();
    rows.Update();
    QCOMPARE(rows["Id"].integer(), 1);
    QVERIFY(rows["Note"].isNull());
    rows.Open(QStringLiteral("Select * from Jobs"));
    QCOMPARE(rows.RecordCount(), 2);
    QCOMPARE(rows["Note"].text(), QStringLiteral("changed"));
    // A row begun and left is not written.
    rows.AddNew();
    rows["Note"] = QStringLiteral("left");
    rows.Open(QStringLiteral("Select * from Jobs"));
    QCOMPARE(rows.RecordCount(), 2);
}

void tst_ado::requiredFieldLeftOut()
{
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings order by ID"));
    rows.AddNew();
    rows["Date"] = QDate(2024, 1, 1);
    rows["Amount"] = 5;
    try {
        rows.Update();
        QFAIL("a required field was left out");
    } catch (const DatabaseError& error) {
        QVERIFY2(error.text().contains(QLatin1String("Postings.Remark")), qPrintable(error.text()));
        QVERIFY(!error.lostWrites());
    }
    rows["Remark"] = QStringLiteral("");
    rows.Update();
    rows.Open(QStringLiteral("Select * from Postings"));
    QCOMPARE(rows.RecordCount(), 1);
    QVERIFY(!rows["Remark"].isNull());
    rows["Remark"] = ado::Null;
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update());
}

void tst_ado::batchOfRowsIsOneCommit()
{
    addAmounts(30);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings"));
    for (; !rows.AtEOF(); rows.MoveNext()) {
        rows["Amount"] = 7;
        rows["Remark"] = rows["Remark"].text() + u'!';
    }
    Recordset other(*m_connection);
    other.Open(QStringLiteral("Select sum(Amount) from Postings"));
    QCOMPARE(other[0].number(), 30.0);
    rows.UpdateBatch();
    other.Open(QStringLiteral("Select sum(Amount) from Postings where Remark like '%!'"));
    QCOMPARE(other[0].number(), 210.0);
}

void tst_ado::writingWhileWalking_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("rows leave the query") << QStringLiteral("Select * from Postings where Amount=1");
    QTest::newRow("rows move forward in the order")
        << QStringLiteral("Select * from Postings order by Amount,VID");
}

void tst_ado::writingWhileWalking()
{
    QFETCH(QString, sql);
    constexpr int count = 40;
    addAmounts(count);
    m_connection->Execute(QStringLiteral("CREATE INDEX Postings_Amount ON Postings (Amount, VID)"));
    Recordset rows(*m_connection);
    rows.Open(sql);
    Recordset others(*m_connection);
    int walked = 0;
    for (; !rows.AtEOF(); rows.MoveNext()) {
        rows["Amount"] = rows["Amount"].number() + 1;
        rows.Update();
        others.Open(QStringLiteral("Select * from Jobs"));
        others.AddNew();
        others.Update();
        ++walked;
    }
    QCOMPARE(walked, count);
    others.Open(QStringLiteral("Select sum(Amount) from Postings"));
    QCOMPARE(others[0].number(), 2.0 * count);
}

void tst_ado::deletedMeanwhile()
{
    addAmounts(2);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings"));
    rows["Amount"] = 2;
    Connection other;
    other.open(m_connection->path(), password);
    other.Execute(QStringLiteral("Delete from Postings where vid=1"));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update());
}

void tst_ado::longTextSurvives()
{
    const QString text =
        QStringLiteral("It's 100% \"quoted\" #1-1-2020# `x` [y] \\ ; -- /* \r\n\ttab \U0001F9F5 दर्ज़ी ") +
        QString(70000, u'x');
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Jobs"));
    rows.AddNew();
    rows["Note"] = text;
    rows.Update();
    rows.Open(QStringLiteral("Select * from Jobs where Note='") +
              QString(text).replace(u'\'', QLatin1String("''")) + u'\'');
    QCOMPARE(rows.RecordCount(), 1);
    QCOMPARE(rows["Note"].text(), text);
    QCOMPARE(rows["Note"].value().toString(), text);
}

void tst_ado::sumIsExact()
{
    addAmounts(1, "0.10");
    addAmounts(1, "0.20");
    addAmounts(1, "-0.30");
    addAmounts(1000, "0.1");
    addAmounts(1000, "-0.0999");
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select sum(Amount) from Postings where Id<4"));
    QCOMPARE(rows[0].number(), 0.0);
    QVERIFY(!rows[0].isNull());
    rows.Open(QStringLiteral("Select Sum( Amount ) from Postings"));
    QCOMPARE(rows[0].money(), Currency::fromUnits(1000));
    rows.Open(QStringLiteral("Select sum(Amount) from Postings where Id>5000"));
    QVERIFY(rows[0].isNull());
}

void tst_ado::textComparesWithoutCase()
{
    addAmounts(3);
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Select * from Postings where Remark='rEMARK 2'"));
    QCOMPARE(rows.RecordCount(), 1);
    QCOMPARE(rows["VID"].integer(), 2);
}

void tst_ado::likeFoldsEveryScript()
{
    Recordset rows(*m_connection);
    rows.Open(QStringLiteral("Jobs"));
    for (const QString& note :
         {QStringLiteral("Élan O'Neil"), QStringLiteral("ÖZDEMİR"), QStringLiteral("50% off"),
          QStringLiteral("रमेश"), QStringLiteral("a\U0001F9F5b")}) {
        rows.AddNew();
        rows["Note"] = note;
    }
    rows.UpdateBatch();
    const auto count = [&rows](const char* pattern) {
        rows.Open(QStringLiteral("Select * from Jobs where Note like '") + QString::fromUtf8(pattern) +
                  u'\'');
        return rows.RecordCount();
    };
    QCOMPARE(count("%éLAN%"), 1);
    QCOMPARE(count("öz%"), 1);
    QCOMPARE(count("%o''n%"), 1);
    QCOMPARE(count("%मे%"), 1);
    QCOMPARE(count("a_b"), 1);
    QCOMPARE(count("%"), 5);
    QCOMPARE(count(""), 0);
    QCOMPARE(count("%xyz%"), 0);
    rows.Open(QStringLiteral("Select * from Jobs where Note like '50!%%' escape '!'"));
    QCOMPARE(rows.RecordCount(), 1);
}

void tst_ado::chapters()
{
    addAmounts(4);
    m_connection->Execute(QStringLiteral("Insert into Jobs (Id, Note) values (2, 'two')"));
    m_connection->Execute(QStringLiteral("Insert into Jobs (Id, Note) values (9, 'none')"));
    m_connection->Execute(QStringLiteral("Insert into Postings (VID, Date, Remark, Amount) "
                                         "values (2, '2024-01-01', 'again', 3)"));
    Recordset rows(*m_connection,
                   QStringLiteral("SHAPE {SELECT * FROM `JOBS`}  AS JOBS APPEND ({SELECT * FROM "
                                  "`POSTINGS`}  AS PD RELATE 'Id' TO 'VID') AS PD"));
    rows.Open();
    QCOMPARE(rows.RecordCount(), 2);
    Recordset& lines = rows.Chapter(QStringLiteral("pd"));
    QCOMPARE(texts(lines, "Id"), QStringList({QStringLiteral("2"), QStringLiteral("5")}));
    rows.MoveNext();
    QCOMPARE(rows["Note"].text(), QStringLiteral("none"));
    QCOMPARE(rows.Chapter(QStringLiteral("PD")).RecordCount(), 0);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Chapter(QStringLiteral("other")));

    rows.Open(QStringLiteral(
        "SHAPE {SELECT * FROM Jobs where Id=2 }  APPEND ({SELECT * FROM Postings where Amount>0 or "
        "Amount<0 order by id desc} AS Body RELATE ID to VID)"));
    QCOMPARE(texts(rows.Chapter(QStringLiteral("Body")), "Id"),
             QStringList({QStringLiteral("5"), QStringLiteral("2")}));
}

void tst_ado::groups()
{
    addAmounts(3, "1.5");
    addAmounts(2, "2");
    Recordset rows(
        *m_connection,
        QStringLiteral("SHAPE {SELECT * FROM `POSTINGS`}  AS Report2 COMPUTE Report2, SUM(Report2.'Amount') "
                       "AS jtotal BY 'VID'"));
    rows.Open();
    QCOMPARE(rows.RecordCount(), 3);
    QCOMPARE(rows["jtotal"].number(), 3.5);
    QCOMPARE(rows["VID"].integer(), 1);
    QCOMPARE(rows.Chapter(QStringLiteral("Report2")).RecordCount(), 2);
    rows.MoveLast();
    QCOMPARE(rows["jtotal"].number(), 1.5);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows["jtotal"] = 1);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.AddNew());
}

void tst_ado::executeCountsRows()
{
    addAmounts(5);
    QCOMPARE(m_connection->Execute(QStringLiteral("Delete from Postings where vid>3and amount=1")), 2);
    QCOMPARE(m_connection->Execute(QStringLiteral("Select * from Postings")), 0);
    QCOMPARE(m_connection->Execute(QStringLiteral("Delete * from Postings")), 3);
    QCOMPARE(m_connection->Execute(QStringLiteral("Delete * from Postings")), 0);
}

void tst_ado::refusedStatements_data()
{
    QTest::addColumn<QString>("sql");
    QTest::newRow("list behind equals") << QStringLiteral("Delete from Postings where Id=1,2");
    QTest::newRow("bare apostrophe") << QStringLiteral("Select * from Postings where Remark='O'Brien'");
    QTest::newRow("no such table") << QStringLiteral("Select * from Nothing");
    QTest::newRow("two statements") << QStringLiteral("Delete from Postings; Delete from Jobs");
    QTest::newRow("empty") << QStringLiteral("  ");
    QTest::newRow("no date") << QStringLiteral("Select * from Postings where Date=#31-31-2020#");
    QTest::newRow("broken shape") << QStringLiteral("SHAPE {SELECT * FROM Jobs} APPEND");
}

void tst_ado::refusedStatements()
{
    QFETCH(QString, sql);
    addAmounts(2);
    Recordset rows(*m_connection);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->Execute(sql));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Open(sql));
    QVERIFY(!rows.State());
    rows.Open(QStringLiteral("Postings"));
    QCOMPARE(rows.RecordCount(), 2);
}

void tst_ado::closing()
{
    addAmounts(100);
    const QString path = m_connection->path();
    Recordset rows(*m_connection, QStringLiteral("Postings"));
    rows.Open();
    m_connection->close();
    QVERIFY(!rows.State() && !m_connection->isOpen());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Open());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->Execute(QStringLiteral("Delete from Jobs")));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, m_connection->writeBatch([] {}));
    m_connection->open(path, password);
    rows.Open();
    QCOMPARE(rows.RecordCount(), 100);
    m_connection.reset();
    QVERIFY(!rows.State());
}

QTEST_GUILESS_MAIN(tst_ado)
#include "tst_ado.moc"
