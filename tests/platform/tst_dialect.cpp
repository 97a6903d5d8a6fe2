#include "platform/ado/DatabaseError.h"
#include "platform/ado/Dialect.h"

#include <QtTest>

using namespace ado::dialect;
using ado::DatabaseError;

class tst_dialect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void translated()
    {
        const std::pair<const char*, const char*> statements[] = {
            {"dELETE  *  FROM x", "dELETE FROM x"},
            {"Delete from x where a=2*3;", "Delete from x where a=2*3"},
            {"Delete from P where vid=5and a1=1.5or b=2E-3else",
             "Delete from P where vid=5 and a1=1.5 or b=2E-3 else"},
            {"Delete from P where d=#10-Feb-2024#and x=1", "Delete from P where d='2024-02-10' and x=1"},
            {"Delete from P where d>#17-11-1985#", "Delete from P where d>'1985-11-17'"},
            {"Delete from P where d>#10-Feb-2024 13:05:00#", "Delete from P where d>'2024-02-10 13:05:00'"},
            {"Delete from P where t='5and #1-1-2020# {y} ''z'' -- *\r\n'",
             "Delete from P where t='5and #1-1-2020# {y} ''z'' -- *\r\n'"},
            {"Delete from `P` where [a b]=1--5", "Delete from `P` where [a b]=1- -5"},
            {"Select month(dob) from P", "Select month(dob) from P ORDER BY rowid"},
            {"Select * from P, Q where P.a=Q.a", "Select * from P, Q where P.a=Q.a"},
            {"Select distinct a from P", "Select distinct a from P"},
            {"Select count( * ) from P", "Select count( * ) from P"},
        };
        for (const auto& [sql, engine] : statements)
            QCOMPARE(translate(sql).sql, engine);

        QCOMPARE(translate("Select * from Jobs").reversed,
                 "SELECT rowid, * from Jobs ORDER BY rowid DESC LIMIT 1");
        QCOMPARE(
            translate("Select a from P where a in (select b from Q order by b) order by f(a,b), vid desc")
                .reversed,
            "Select a from P where a in (select b from Q order by b) ORDER BY f(a,b) DESC, vid, rowid DESC "
            "LIMIT 1");

        const std::pair<const char*, const char*> withX[] = {
            {"Select * from P order by a", "Select * from P WHERE x=1 order by a"},
            {"Select * from P where a=1 or b=2 order by a",
             "Select * from P WHERE x=1 AND (a=1 or b=2) order by a"},
            {"Select a from P group by a", "SELECT * FROM (Select a from P group by a) WHERE x=1"},
        };
        for (const auto& [sql, engine] : withX)
            QCOMPARE(withCondition(sql, "x=1"), engine);
    }

    void refused()
    {
        for (const char* text :
             {"", " ; ", "Select * from P where t='O'Brien'", "Select * from P where d=#31-31-2024#",
              "Select * from P where d=#2024-02-10", "Select * from P where d=#10-Feb-2024 noon:00#",
              "Select * from `P"})
            QVERIFY_THROWS_EXCEPTION(DatabaseError, translate(text));
        for (const char* text :
             {"SHAPE", "SHAPE {Select 1", "SHAPE {Select 1} APPEND ({Select 2} RELATE a b)",
              "SHAPE {Select 1} AS a COMPUTE b", "SHAPE {Select 1} APPEND ({Select 2} RELATE a TO b) AS c d"})
            QVERIFY_THROWS_EXCEPTION(DatabaseError, parseShape(text));
    }
};

QTEST_GUILESS_MAIN(tst_dialect)
#include "tst_dialect.moc"
