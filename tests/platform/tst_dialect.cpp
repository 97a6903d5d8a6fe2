#include "platform/ado/DatabaseError.h"
#include "platform/ado/Dialect.h"

#include <QtTest>

using namespace ado::dialect;
using ado::DatabaseError;

class tst_dialect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void translated_data();
    void translated();
    void selects_data();
    void selects();
    void notCutIntoWords_data();
    void notCutIntoWords();
    void tableNames();
    void conditions_data();
    void conditions();
    void shapes();
    void brokenShapes_data();
    void brokenShapes();
};

void tst_dialect::translated_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("engine");
    const auto row = [](const char* name, const char* sql, const char* engine) {
        QTest::newRow(name) << QString::fromUtf8(sql) << QString::fromUtf8(engine);
    };
    row("delete with a star", "Delete * from tmpHead", "Delete from tmpHead");
    row("delete in any case", "dELETE  *  FROM x", "dELETE FROM x");
    row("star elsewhere stays", "Delete from x where a=2*3", "Delete from x where a=2*3");
    row("number runs into a word", "Delete from P where vid=5and vtype=1",
        "Delete from P where vid=5 and vtype=1");
    row("decimal runs into a word", "Delete from P where a=1.5or b=.5", "Delete from P where a=1.5 or b=.5");
    row("exponents", "Delete from P where a=1e5and b=2E-3or c=5else",
        "Delete from P where a=1e5 and b=2E-3 or c=5 else");
    row("digits in a name", "Delete from Report2 where a1=2", "Delete from Report2 where a1=2");
    row("date by name", "Delete from P where d=#10-Feb-2024#and x=1",
        "Delete from P where d='2024-02-10' and x=1");
    row("date by digits, day first", "Delete from P where d>#17-11-1985#",
        "Delete from P where d>'1985-11-17'");
    row("date by digits, month first", "Delete from P where d>#03-04-2024#",
        "Delete from P where d>'2024-03-04'");
    row("ISO date", "Delete from P where d=#2024-02-10#", "Delete from P where d='2024-02-10'");
    row("date and time", "Delete from P where d=#10-Feb-2024 13:05:00#",
        "Delete from P where d='2024-02-10 13:05:00'");
    row("text is left alone", "Delete from P where t='5and #1-1-2020# `x` {y} ''z'' -- *'",
        "Delete from P where t='5and #1-1-2020# `x` {y} ''z'' -- *'");
    row("line breaks in a text", "Delete from P where t='a\r\nb\U0001F9F5'",
        "Delete from P where t='a\r\nb\U0001F9F5'");
    row("minus of a minus", "Delete from P where a=1--5", "Delete from P where a=1- -5");
    row("closing semicolon", "Delete from P ; ", "Delete from P");
    row("index", "CREATE INDEX IF NOT EXISTS Jobs_Id ON JOBS (Id)",
        "CREATE INDEX IF NOT EXISTS Jobs_Id ON JOBS (Id)");
    row("quoted names", "Delete from `P` where [a b]=1 and \"c\"=2",
        "Delete from `P` where [a b]=1 and \"c\"=2");
}

void tst_dialect::translated()
{
    QFETCH(QString, sql);
    QFETCH(QString, engine);
    const Statement statement = translate(sql);
    QCOMPARE(statement.sql, engine);
    QVERIFY(!statement.isSelect && statement.table.isEmpty());
    QCOMPARE(translate(engine).sql, engine);
}

void tst_dialect::selects_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("engine");
    QTest::addColumn<QString>("reversed");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("table");
    const auto row = [](const char* sql, const char* engine, const char* reversed, const char* count,
                        const char* table) {
        QTest::newRow(sql) << QString::fromUtf8(sql) << QString::fromUtf8(engine)
                           << QString::fromUtf8(reversed) << QString::fromUtf8(count)
                           << QString::fromUtf8(table);
    };
    row("Select * from Jobs", "SELECT rowid, * from Jobs ORDER BY rowid",
        "SELECT rowid, * from Jobs ORDER BY rowid DESC LIMIT 1", "SELECT count(*) from Jobs", "Jobs");
    row("sELeCT * FROM TMPHEAD", "SELECT rowid, * FROM TMPHEAD ORDER BY rowid",
        "SELECT rowid, * FROM TMPHEAD ORDER BY rowid DESC LIMIT 1", "SELECT count(*) FROM TMPHEAD",
        "TMPHEAD");
    row("Select * from `P` where a=1 order by date,vid desc ",
        "SELECT rowid, * from `P` where a=1 order by date,vid desc, rowid",
        "SELECT rowid, * from `P` where a=1 ORDER BY date DESC, vid, rowid DESC LIMIT 1",
        "SELECT count(*) from `P` where a=1", "P");
    row("Select Title from Accounts where Type=0 order by Title asc",
        "Select Title from Accounts where Type=0 order by Title asc, rowid",
        "Select Title from Accounts where Type=0 ORDER BY Title DESC, rowid DESC LIMIT 1",
        "SELECT count(*) from Accounts where Type=0", "");
    row("Select * from P order by f(a,b), c", "SELECT rowid, * from P order by f(a,b), c, rowid",
        "SELECT rowid, * from P ORDER BY f(a,b) DESC, c DESC, rowid DESC LIMIT 1", "SELECT count(*) from P",
        "P");
    row("Select * from P limit 3", "SELECT rowid, * from P ORDER BY rowid limit 3", "",
        "SELECT count(*) FROM (SELECT rowid, * from P ORDER BY rowid limit 3)", "P");
    row("Select sum(Amount) from P where a=1", "Select sum(Amount) from P where a=1", "",
        "SELECT count(*) FROM (Select sum(Amount) from P where a=1)", "");
    row("Select count( * ) from P", "Select count( * ) from P", "",
        "SELECT count(*) FROM (Select count( * ) from P)", "");
    row("Select distinct a from P", "Select distinct a from P", "",
        "SELECT count(*) FROM (Select distinct a from P)", "");
    row("Select a from P group by a", "Select a from P group by a", "",
        "SELECT count(*) FROM (Select a from P group by a)", "");
    row("Select * from P, Q where P.a=Q.a", "Select * from P, Q where P.a=Q.a", "",
        "SELECT count(*) FROM (Select * from P, Q where P.a=Q.a)", "");
    row("Select * from P where a in (select b from Q order by b)",
        "SELECT rowid, * from P where a in (select b from Q order by b) ORDER BY rowid",
        "SELECT rowid, * from P where a in (select b from Q order by b) ORDER BY rowid DESC LIMIT 1",
        "SELECT count(*) from P where a in (select b from Q order by b)", "P");
    row("Select month(dob) from P", "Select month(dob) from P ORDER BY rowid",
        "Select month(dob) from P ORDER BY rowid DESC LIMIT 1", "SELECT count(*) from P", "");
}

void tst_dialect::selects()
{
    QFETCH(QString, sql);
    QFETCH(QString, engine);
    QFETCH(QString, reversed);
    QFETCH(QString, count);
    QFETCH(QString, table);
    const Statement statement = translate(sql);
    QVERIFY(statement.isSelect);
    QCOMPARE(statement.sql, engine);
    QCOMPARE(statement.reversed, reversed);
    QCOMPARE(statement.countSql, count);
    QCOMPARE(statement.table, table);
}

void tst_dialect::notCutIntoWords_data()
{
    QTest::addColumn<QString>("sql");
    for (const char* sql :
         {"", " ; ", "Select * from P where t='O'Brien'", "Select * from P where d=#31-31-2024#",
          "Select * from P where d=##", "Select * from P where d=#2024-02-10",
          "Select * from P where d=#10-Feb-2024 noon:00#", "Select * from `P"})
        QTest::newRow(sql) << QString::fromLatin1(sql);
}

void tst_dialect::notCutIntoWords()
{
    QFETCH(QString, sql);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, translate(sql));
}

void tst_dialect::tableNames()
{
    QCOMPARE(expandTableName(QStringLiteral("Accounts")), QStringLiteral("SELECT * FROM Accounts"));
    QCOMPARE(expandTableName(QStringLiteral("`JOBS`")), QStringLiteral("SELECT * FROM `JOBS`"));
    QCOMPARE(expandTableName(QStringLiteral("Select 1")), QStringLiteral("Select 1"));
}

void tst_dialect::conditions_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("narrowed");
    QTest::newRow("no condition") << QStringLiteral("Select * from P")
                                  << QStringLiteral("Select * from P WHERE x=1 ");
    QTest::newRow("ordered") << QStringLiteral("Select * from P order by a")
                             << QStringLiteral("Select * from P WHERE x=1 order by a");
    QTest::newRow("a condition with or")
        << QStringLiteral("Select * from P where a=1 or b=2 order by a")
        << QStringLiteral("Select * from P WHERE x=1 AND (a=1 or b=2) order by a");
    QTest::newRow("grouped") << QStringLiteral("Select a from P group by a")
                             << QStringLiteral("SELECT * FROM (Select a from P group by a) WHERE x=1");
}

void tst_dialect::conditions()
{
    QFETCH(QString, sql);
    QFETCH(QString, narrowed);
    QCOMPARE(withCondition(sql, QStringLiteral("x=1")), narrowed);
}

void tst_dialect::shapes()
{
    QVERIFY(!parseShape(QStringLiteral("Select * from Shapes")));
    const auto whole =
        parseShape(QStringLiteral("SHAPE {SELECT * FROM `JOBS`}  AS JOBS APPEND ({SELECT * FROM "
                                  "`JOBS_DETAIL`}  AS PD RELATE 'Id' TO 'JobID') AS PD"));
    QVERIFY(whole);
    QCOMPARE(whole->parentSql, QStringLiteral("SELECT * FROM `JOBS`"));
    QCOMPARE(whole->childSql, QStringLiteral("SELECT * FROM `JOBS_DETAIL`"));
    QCOMPARE(whole->chapter, QStringLiteral("PD"));
    QCOMPARE(whole->parentField, QStringLiteral("Id"));
    QCOMPARE(whole->childField, QStringLiteral("JobID"));

    const auto pieces =
        parseShape(QStringLiteral("SHAPE {SELECT * FROM tmpHead where JobID=7 }  APPEND ({SELECT * FROM "
                                  "tmpBody  order by id} AS Body RELATE JOBID to JOBID)"));
    QVERIFY(pieces);
    QCOMPARE(pieces->parentSql, QStringLiteral("SELECT * FROM tmpHead where JobID=7"));
    QCOMPARE(pieces->chapter, QStringLiteral("Body"));

    const auto groups =
        parseShape(QStringLiteral("SHAPE {SELECT * FROM `JOBS_DETAIL`}  AS Report2 COMPUTE Report2, "
                                  "SUM(Report2.'WorkerID') AS jtotal BY 'WorkerID'"));
    QVERIFY(groups);
    QCOMPARE(groups->chapter, QStringLiteral("Report2"));
    QCOMPARE(groups->parentSql,
             QStringLiteral("SELECT sum(`WorkerID`) AS `jtotal`, `WorkerID` FROM (SELECT * FROM "
                            "`JOBS_DETAIL`) GROUP BY `WorkerID` ORDER BY `WorkerID`"));
}

void tst_dialect::brokenShapes_data()
{
    QTest::addColumn<QString>("sql");
    for (const char* sql :
         {"SHAPE", "SHAPE {Select 1", "SHAPE {Select 1} APPEND {Select 2}",
          "SHAPE {Select 1} APPEND ({Select 2} RELATE a b)", "SHAPE {Select 1} AS a COMPUTE b",
          "SHAPE {Select 1} APPEND ({Select 2} RELATE a TO b) AS c d"})
        QTest::newRow(sql) << QString::fromLatin1(sql);
}

void tst_dialect::brokenShapes()
{
    QFETCH(QString, sql);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, parseShape(sql));
}

QTEST_GUILESS_MAIN(tst_dialect)
#include "tst_dialect.moc"
