#include "platform/values/Currency.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"
#include "platform/values/TypedDate.h"

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

/// A date as it is typed, and what it is in a box that looks each way; "no" is no date.
struct TypedDay
{
    const char* typed;
    const char* around;
    const char* ahead;
    const char* back;
    const char* birth;
};

/// Typed on 25-Nov-2026.
const TypedDay typedDays[] = {
    // day, month and year
    {"31032024", "2024-03-31", "2024-03-31", "2024-03-31", "2024-03-31"},
    {"20250310", "2025-03-10", "2025-03-10", "2025-03-10", "2025-03-10"},
    {"20111112", "2011-11-12", "2011-11-12", "2011-11-12", "2011-11-12"},
    {"310324", "2024-03-31", "2024-03-31", "2024-03-31", "2024-03-31"},
    {"10-3-2027", "2027-03-10", "2027-03-10", "2027-03-10", "2027-03-10"},
    {"01/01/2025", "2025-01-01", "2025-01-01", "2025-01-01", "2025-01-01"},
    {"1.2.25", "2025-02-01", "2025-02-01", "2025-02-01", "2025-02-01"},
    {"5 6 1999", "1999-06-05", "1999-06-05", "1999-06-05", "1999-06-05"},
    {"2025-03-10", "2025-03-10", "2025-03-10", "2025-03-10", "2025-03-10"},
    {"march 10, 25", "2025-03-10", "2025-03-10", "2025-03-10", "2025-03-10"},
    {"10mar2025", "2025-03-10", "2025-03-10", "2025-03-10", "2025-03-10"},
    {"3-Sept-24", "2024-09-03", "2024-09-03", "2024-09-03", "2024-09-03"},
    {" 29-feb-2024 ", "2024-02-29", "2024-02-29", "2024-02-29", "2024-02-29"},
    {"12-11-2024", "2024-11-12", "2024-11-12", "2024-11-12", "2024-11-12"},
    {"24-11-26", "2026-11-24", "2026-11-24", "2026-11-24", "2026-11-24"}, // a whole date stands
    // a year of two digits
    {"5/11/99", "1999-11-05", "1999-11-05", "1999-11-05", "1999-11-05"},
    {"26-11-26", "2026-11-26", "2026-11-26", "2026-11-26", "1926-11-26"},
    {"170535", "2035-05-17", "2035-05-17", "2035-05-17", "1935-05-17"},
    {"26-11-05", "2026-11-05", "2026-11-05", "2026-11-05", "2005-11-26"}, // the year first, but for births
    {"261105", "2026-11-05", "2026-11-05", "2026-11-05", "2005-11-26"},
    {"26.12.07", "2026-12-07", "2026-12-07", "2026-12-07", "2007-12-26"},
    {"26-Nov-05", "2005-11-26", "2005-11-26", "2005-11-26", "2005-11-26"},
    {"20-11-12", "2012-11-20", "2012-11-20", "2012-11-20", "2012-11-20"}, // fourteen years are not too many
    {"31-11-05", "no", "no", "no", "no"},                                 // a slip is no other date
    // the year left out
    {"15/2", "2026-02-15", "2027-02-15", "2026-02-15", "2026-02-15"},
    {"1502", "2026-02-15", "2027-02-15", "2026-02-15", "2026-02-15"},
    {"15 feb", "2026-02-15", "2027-02-15", "2026-02-15", "2026-02-15"},
    {"Feb 15", "2026-02-15", "2027-02-15", "2026-02-15", "2026-02-15"},
    {"24-11", "2026-11-24", "2027-11-24", "2026-11-24", "2026-11-24"},
    {"25-11-", "2026-11-25", "2026-11-25", "2026-11-25", "2026-11-25"},
    {"1-12", "2026-12-01", "2026-12-01", "2025-12-01", "2025-12-01"},
    {"10-1", "2027-01-10", "2027-01-10", "2026-01-10", "2026-01-10"},
    {"29/2", "no", "no", "no", "no"},
    // the month left out
    {"5", "2026-11-05", "2026-12-05", "2026-11-05", "2026-11-05"},
    {"28", "2026-11-28", "2026-11-28", "2026-10-28", "2026-10-28"},
    {"25", "2026-11-25", "2026-11-25", "2026-11-25", "2026-11-25"},
    {"31", "no", "2026-12-31", "2026-10-31", "2026-10-31"},
    // a year alone is nothing else
    {"2012", "no", "no", "no", "no"},
    {"1912", "no", "no", "no", "no"},
    {"20.12", "2026-12-20", "2026-12-20", "2025-12-20", "2025-12-20"},
};
const char* const noTypedDays[] = {"31-02",  "29022023", "12-13-2024", "103",        "10325",   "1032025",
                                   "10-Foo", "10-ma-24", "10-03-024",  "10-03-3202", "1-2-3-4", "10:3:25",
                                   "0",      "",         "-",          "March 2025", "१०-३-२५"};

/// The part of a typed date that stands where the caret is.
struct CaretPlace
{
    const char* typed; // the caret is "|"
    DatePart part;
};

const CaretPlace caretPlaces[] = {
    {"25-11|", DatePart::Month},      {"25|-11", DatePart::Day},       {"|25-11", DatePart::Day},
    {"251126|", DatePart::Year},      {"25|1126", DatePart::Day},      {"2511|", DatePart::Month},
    {"2026-11|-05", DatePart::Month}, {"2026|-11-05", DatePart::Year}, {"26-11-05|", DatePart::Day},
    {"nov|", DatePart::Day},          {"nov| 5", DatePart::Month},     {"5|", DatePart::Day},
};

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
        const QDate day(2026, 11, 25);
        const std::pair<Looks, const char * TypedDay::*> ways[] = {{Looks::Around, &TypedDay::around},
                                                                   {Looks::Ahead, &TypedDay::ahead},
                                                                   {Looks::Back, &TypedDay::back},
                                                                   {Looks::Birth, &TypedDay::birth}};
        for (const auto& [looks, meant] : ways) {
            for (const TypedDay& each : typedDays) {
                const QDate read = readTypedDate(each.typed, day, looks);
                QCOMPARE(QString("%1: %2").arg(each.typed, read.isValid() ? CStr(read) : "no"),
                         QString("%1: %2").arg(each.typed, each.*meant));
            }
            for (const char* text : noTypedDays)
                QVERIFY2(!readTypedDate(QString::fromUtf8(text), day, looks).isValid(), text);
        }
        for (const auto& [text, date] : {std::pair("15/2", "2027-02-15"), std::pair("10/11", "2026-11-10"),
                                         std::pair("28", "2026-11-28"), std::pair("5", "2026-12-05")})
            QCOMPARE(CStr(readTypedDate(text, day, Looks::Onward)), date);
        QCOMPARE(readTypedDate("30-12", QDate(2025, 1, 2)), QDate(2024, 12, 30));
        QCOMPARE(readTypedDate("15-10", QDate(2025, 1, 2)), QDate(2024, 10, 15));
        QCOMPARE(readTypedDate("29-2", QDate(2027, 11, 25), Looks::Ahead), QDate(2028, 2, 29));
        QCOMPARE(readTypedDate("30", QDate(2026, 1, 31), Looks::Ahead), QDate(2026, 3, 30));
        for (const auto& [typed, part] : caretPlaces) {
            const QString text(typed);
            QVERIFY2(typedPartAt(QString(text).remove('|'), text.indexOf('|'), day, Looks::Around) == part,
                     typed);
        }
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
