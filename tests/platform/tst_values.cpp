#include "platform/values/Currency.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

#include <QtTest>
#include <limits>

using namespace values;

class tst_values : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void val_data();
    void val();
    void format_data();
    void format();
    void plainNumbers_data();
    void plainNumbers();
    void narrowing();
    void money_data();
    void money();
    void moneyArithmeticIsExact();
    void moneyOverflows();
    void dates_data();
    void dates();
    void datePatterns_data();
    void datePatterns();
};

void tst_values::val_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    const auto row = [](const char* text, double number) {
        QTest::newRow(text) << QString::fromUtf8(text) << number;
    };
    row("", 0);
    row("abc", 0);
    row("12abc", 12);
    row(" 1 2", 12);
    row("-3.5 kg", -3.5);
    row("- 7", -7);
    row("+8", 8);
    row("--8", 0);
    row("1.5.2", 1.5);
    row(".5", .5);
    row("-.5", -.5);
    row(".", 0);
    row("5.", 5);
    row("1e3", 1000);
    row("1 e 3", 1000);
    row("2E-2x", 0.02);
    row("5 Eggs", 5);
    row("5e+", 5);
    row("1,250.75", 1);
    row("Rs. 5", 0);
    row("1e999", 0);
    row("\t42\r\n7", 427);
    row("१२", 0);
    row("0x1F", 0);
    row("inf", 0);
    row("nan", 0);
}

void tst_values::val()
{
    QFETCH(QString, text);
    QFETCH(double, number);
    QCOMPARE(Val(text), number);
}

void tst_values::format_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    const auto row = [](double number, const char* pattern, const char* text) {
        QTest::addRow("%.17g as %s", number, pattern)
            << number << QString::fromLatin1(pattern) << QString::fromLatin1(text);
    };
    row(1.005, "0.00", "1.01");
    row(-1.005, "0.00", "-1.01");
    row(0.125, "0.00", "0.13");
    row(2.5, "0", "3");
    row(-2.5, "0", "-3");
    row(0.5, "0", "1");
    row(0.4999999, "0", "0");
    row(9.995, "0.00", "10.00");
    row(99999.999, "0.00", "100000.00");
    row(0, "0.00", "0.00");
    row(-0.0, "0.00", "0.00");
    row(-0.001, "0.00", "0.00");
    row(0.1 + 0.2, "0.00", "0.30");
    row(1e-9, "0.00", "0.00");
    row(123456789012.345, "0.00", "123456789012.35");
    row(1e20, "0.00", "100000000000000000000.00");
    row(7, "000", "007");
    row(1234567.5, "#,##0.00", "1,234,567.50");
    row(999.995, "#,##0.00", "1,000.00");
    row(12, "#,##0.00", "12.00");
    row(-1234.5, "#,##0.00;(#,##0.00)", "(1,234.50)");
    row(-0.004, "#,##0.00;(#,##0.00)", "0.00");
    row(1234.5, "#,##0.00;(#,##0.00)", "1,234.50");
    row(0.5, "#.##", ".5");
    row(3.14159, "0.0##", "3.142");
    row(3, "0.0##", "3.0");
    row(45, "Rs. 0.00/-", "Rs. 45.00/-");
}

void tst_values::format()
{
    QFETCH(double, number);
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QCOMPARE(Format(number, pattern), text);
}

void tst_values::plainNumbers_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 301.0 << "301";
    QTest::newRow("tenth") << 0.1 << "0.1";
    QTest::newRow("negative zero") << -0.0 << "0";
    QTest::newRow("large") << 123456789012345.0 << "123456789012345";
    QTest::newRow("hundred thousand") << 100000.0 << "100000";
    QTest::newRow("small") << 0.00001 << "0.00001";
    QTest::newRow("negative") << -12.75 << "-12.75";
}

void tst_values::plainNumbers()
{
    QFETCH(double, number);
    QFETCH(QString, text);
    QCOMPARE(CStr(number), text);
    QCOMPARE(Val(text), number);
}

void tst_values::narrowing()
{
    QCOMPARE(CInt(2.5), qint16(2));
    QCOMPARE(CInt(3.5), qint16(4));
    QCOMPARE(CInt(-2.5), qint16(-2));
    QCOMPARE(CInt(32767.49), qint16(32767));
    QVERIFY_THROWS_EXCEPTION(OverflowError, CInt(32767.5));
    QVERIFY_THROWS_EXCEPTION(OverflowError, CInt(-32768.51));
    QCOMPARE(CLng(2147483647.4), 2147483647);
    QVERIFY_THROWS_EXCEPTION(OverflowError, CLng(2147483648.0));
    QVERIFY_THROWS_EXCEPTION(OverflowError, CLng(1e300));
    QVERIFY_THROWS_EXCEPTION(OverflowError, CLng(std::numeric_limits<double>::quiet_NaN()));
    QCOMPARE(toInt16(-32768), qint16(-32768));
    QVERIFY_THROWS_EXCEPTION(OverflowError, toInt16(32768));
    QVERIFY_THROWS_EXCEPTION(OverflowError, toInt32(2147483648LL));
    QCOMPARE(formatMoneyText(QStringLiteral("1250")), QStringLiteral("1250.00"));
    QCOMPARE(formatMoneyText(QStringLiteral("abc")), QStringLiteral("0.00"));
}

void tst_values::money_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<qint64>("units");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 100.0 << qint64(1000000) << "100";
    QTest::newRow("half to even, down") << 0.00005 << qint64(0) << "0";
    QTest::newRow("half to even, up") << 0.00015 << qint64(2) << "0.0002";
    QTest::newRow("just above the half") << 0.000051 << qint64(1) << "0.0001";
    QTest::newRow("negative") << -0.25 << qint64(-2500) << "-0.25";
    QTest::newRow("binary noise") << 0.1 + 0.2 << qint64(3000) << "0.3";
    QTest::newRow("largest cents") << 922337203685477.5 << 9223372036854775000LL << "922337203685477.5";
}

void tst_values::money()
{
    QFETCH(double, number);
    QFETCH(qint64, units);
    QFETCH(QString, text);
    const Currency money = Currency::fromDouble(number);
    QCOMPARE(money.units(), units);
    QCOMPARE(money.toString(), text);
}

void tst_values::moneyArithmeticIsExact()
{
    Currency sum;
    for (int i = 0; i < 1000; ++i)
        sum += Currency::fromDouble(0.1);
    QCOMPARE(sum.toString(), QStringLiteral("100"));
    QVERIFY(Currency::fromDouble(0.1) + Currency::fromDouble(0.2) - Currency::fromDouble(0.3) == Currency());
    QVERIFY(Currency::fromDouble(-1) < Currency());
    QCOMPARE(Currency::fromUnits(std::numeric_limits<qint64>::min()).toString(),
             QStringLiteral("-922337203685477.5808"));
}

void tst_values::moneyOverflows()
{
    const Currency largest = Currency::fromUnits(std::numeric_limits<qint64>::max());
    QVERIFY_THROWS_EXCEPTION(OverflowError, largest + Currency::fromUnits(1));
    QVERIFY_THROWS_EXCEPTION(OverflowError, -largest - Currency::fromUnits(2));
    QVERIFY_THROWS_EXCEPTION(OverflowError, -Currency::fromUnits(std::numeric_limits<qint64>::min()));
    QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromDouble(1e15));
    QVERIFY_THROWS_EXCEPTION(OverflowError, Currency::fromDouble(std::numeric_limits<double>::infinity()));
}

void tst_values::dates_data()
{
    QTest::addColumn<QDate>("date");
    const auto row = [](const char* text, const QDate& date) { QTest::newRow(text) << date; };
    row("2024-02-10", QDate(2024, 2, 10));
    row("2024-2-9", QDate(2024, 2, 9));
    row(" 2024-02-10 13:45:00", QDate(2024, 2, 10));
    row("2024-02-10T13:45", QDate(2024, 2, 10));
    row("10-Feb-2024", QDate(2024, 2, 10));
    row("10-FEB-2024", QDate(2024, 2, 10));
    row("1-April-2011", QDate(2011, 4, 1));
    row("01 may 2011", QDate(2011, 5, 1));
    row("17-11-1985", QDate(1985, 11, 17));
    row("03-04-2020", QDate(2020, 3, 4));
    row("12-31-2020", QDate(2020, 12, 31));
    row("31/12/2020 10:00 PM", QDate(2020, 12, 31));
    row("29-Feb-2024", QDate(2024, 2, 29));
    row("29-Feb-2023", QDate());
    row("31-31-2020", QDate());
    row("2024-13-01", QDate());
    row("10-Foo-2024", QDate());
    row("10-Feb-24", QDate());
    row("2024-02-10x", QDate());
    row("", QDate());
    row("12", QDate());
}

void tst_values::dates()
{
    QFETCH(QDate, date);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(readDate(text), date);
    if (date.isValid())
        QCOMPARE(CDate(CStr(CDate(text))), date);
    else
        QVERIFY_THROWS_EXCEPTION(TypeMismatchError, CDate(text));
}

void tst_values::datePatterns_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("text");
    const QDate date(2024, 2, 3);
    QTest::newRow("dd-MMM-yyyy") << date << "03-Feb-2024";
    QTest::newRow("DD-MMM-YYYY") << date << "03-Feb-2024";
    QTest::newRow("DD_MM_YYYY") << date << "03_02_2024";
    QTest::newRow("dd-mmm-yy") << date << "03-Feb-24";
    QTest::newRow("d-MMMM-yyyy") << date << "3-February-2024";
    QTest::newRow("dddd, d/m") << date << "Saturday, 3/2";
    QTest::newRow("ddd yyyy") << QDate() << "";
}

void tst_values::datePatterns()
{
    QFETCH(QDate, date);
    QFETCH(QString, text);
    QCOMPARE(Format(date, QString::fromLatin1(QTest::currentDataTag())), text);
}

QTEST_GUILESS_MAIN(tst_values)
#include "tst_values.moc"
