#include "platform/values/Currency.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

#include "support/Refusal.h"

#include <QtTest>
#include <limits>

using namespace values;

struct Reading
{
    const char* text;
    const char* read;
};

const Reading leadingNumbers[] = {{"", "0"},       {" 1 2", "12"},        {"-3.5 kg", "-3.5"},
                                  {"--8", "0"},    {"1.5.2", "1.5"},      {"-.5", "-0.5"},
                                  {".", "0"},      {"1 e 3", "1000"},     {"2E-2x", "0.02"},
                                  {"5 Eggs", "5"}, {"1,250.75", "1"},     {"Rs. 5", "0"},
                                  {"1e999", "0"},  {"१२", "0"},           {"inf", "0"},
                                  {"-0", "0"},     {"0.00001", "0.00001"}};

const Reading formats[] = {{"1.005 as 0.00", "1.01"},
                           {"-1.005 as 0.00", "-1.01"},
                           {"2.5 as 0", "3"},
                           {"9.995 as 0.00", "10.00"},
                           {"-0.001 as 0.00", "0.00"},
                           {"0.30000000000000004 as 0.00", "0.30"},
                           {"1e20 as 0.00", "100000000000000000000.00"},
                           {"7 as 000", "007"},
                           {"999.995 as #,##0.00", "1,000.00"},
                           {"-1234567.5 as #,##0.00;(#,##0.00)", "(1,234,567.50)"},
                           {"-0.004 as #,##0.00;(#,##0.00)", "0.00"},
                           {"0.5 as #.##", ".5"},
                           {"3 as 0.0##", "3.0"}};

const Reading datePatterns[] = {{"dd-MMM-yyyy", "03-Feb-2024"},     {"DD-MMM-YYYY", "03-Feb-2024"},
                                {"DD_MM_YYYY", "03_02_2024"},       {"dd-mmm-yy", "03-Feb-24"},
                                {"d-MMMM-yyyy", "3-February-2024"}, {"dddd, d/m", "Saturday, 3/2"}};

const Reading days[] = {{"2024-2-9", "2024-02-09"},
                        {" 2024-02-10 13:45:00", "2024-02-10"},
                        {"2024-02-10T13:45", "2024-02-10"},
                        {"10-FEB-2024", "2024-02-10"},
                        {"1-April-2011", "2011-04-01"},
                        {"01 may 2011", "2011-05-01"},
                        {"17-11-1985", "1985-11-17"},
                        {"03-04-2020", "2020-03-04"},
                        {"31/12/2020 10:00 PM", "2020-12-31"},
                        {"29-Feb-2024", "2024-02-29"}};

const char* const noDays[] = {"29-Feb-2023", "31-31-2020",  "2024-13-01", "10-Foo-2024",
                              "10-Feb-24",   "2024-02-10x", "",           "12"};

/// Typed where 28-Dec-2024 stands.
const Reading typedDays[] = {
    {"31032024", "2024-03-31"},      {"20250310", "2025-03-10"},   {"310324", "2024-03-31"},
    {"3103", "2024-03-31"},          {"1501", "2025-01-15"},       {"7", "2024-12-07"},
    {"10-3-2025", "2025-03-10"},     {"01/01/2025", "2025-01-01"}, {"1.2.25", "2025-02-01"},
    {"5 6 1999", "1999-06-05"},      {"2025-03-10", "2025-03-10"}, {"10 MARCH", "2024-03-10"},
    {"march 10, 25", "2025-03-10"},  {"10mar2025", "2025-03-10"},  {"3-Sept-24", "2024-09-03"},
    {" 29-feb-2024 ", "2024-02-29"}, {"12-11-2024", "2024-11-12"}, {"31-12-", "2024-12-31"}};
const char* const noTypedDays[] = {"31-02",  "29022023", "12-13-2024", "103",        "10325",   "1032025",
                                   "10-Foo", "10-ma-24", "10-03-024",  "10-03-3202", "1-2-3-4", "10:3:25",
                                   "0",      "",         "-",          "March 2025", "१०-३-२५"};

class tst_values : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts()
    {
        for (const auto& [text, number] : leadingNumbers)
            QCOMPARE(CStr(Val(text)), number);
        for (const auto& [given, text] : formats) {
            const QStringList parts = QString(given).split(" as ");
            QCOMPARE(Format(parts[0].toDouble(), parts[1]), text);
        }
        for (const auto& [pattern, text] : datePatterns)
            QCOMPARE(Format(QDate(2024, 2, 3), pattern), text);
        for (const auto& [text, date] : days)
            QCOMPARE(CStr(CDate(text)), date);
        for (const char* text : noDays) {
            QVERIFY2(!readDate(QString(text)).isValid(), text);
            QVERIFY_THROWS_EXCEPTION(TypeMismatchError, CDate(text));
        }
    }

    void typedDates()
    {
        const QDate stood(2024, 12, 28);
        for (const auto& [text, date] : typedDays)
            QCOMPARE(CStr(readTypedDate(text, stood)), date);
        for (const char* text : noTypedDays)
            QVERIFY2(!readTypedDate(QString::fromUtf8(text), stood).isValid(), text);
        QCOMPARE(readTypedDate("30-12", QDate(2025, 1, 2)), QDate(2024, 12, 30));
        const QDate today(2024, 2, 10); // births
        for (const auto& [text, date] : {std::pair("170585", "1985-05-17"), std::pair("1-2-24", "2024-02-01"),
                                         std::pair("11-2-24", "1924-02-11"), std::pair("11-2", "2023-02-11")})
            QCOMPARE(CStr(readTypedDate(text, today, today)), date);
    }

    void narrowing()
    {
        QCOMPARE(CInt(2.5), qint16(2));
        QCOMPARE(CInt(-3.5), qint16(-4));
        QCOMPARE(CInt(32767.49), qint16(32767));
        QVERIFY_THROWS_EXCEPTION(OverflowError, CInt(32767.5));
        QCOMPARE(refusal([] { CInt(-32768.51, "Quantity"); }),
                 "Overflow: Quantity -32769 is too small. The lowest possible is -32768.");
        QCOMPARE(CLng(2147483647.4), 2147483647);
        for (const double beyond : {2147483648.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
            QVERIFY_THROWS_EXCEPTION(OverflowError, CLng(beyond));
        QVERIFY_THROWS_EXCEPTION(OverflowError, toInt16(32768));
        QVERIFY_THROWS_EXCEPTION(OverflowError, toInt32(-2147483649LL));
    }

    void money()
    {
        Currency sum;
        for (int i = 0; i < 1000; ++i)
            sum += Currency::fromDouble(0.1);
        QVERIFY(sum - Currency::fromDouble(100) == Currency());
        QCOMPARE(Currency::fromDouble(0.00015).toString(), "0.0002");
        const Currency lowest = Currency::fromUnits(std::numeric_limits<qint64>::min());
        QCOMPARE(lowest.toString(), "-922337203685477.5808");
        QVERIFY_THROWS_EXCEPTION(OverflowError, lowest - Currency::fromUnits(1));
        QVERIFY_THROWS_EXCEPTION(OverflowError, -lowest);
        QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromDouble(1e15));
    }
};

QTEST_GUILESS_MAIN(tst_values)
#include "tst_values.moc"
