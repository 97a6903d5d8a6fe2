#include "ui/DateDiff.h"

#include <QTest>

class tst_datediff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spanInWords_data()
    {
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::addColumn<QString>("words");
        const auto row = [](const char* name, QDate from, QDate to, const char* words) {
            QTest::newRow(name) << from << to << words;
        };
        row("same day", {2024, 2, 10}, {2024, 2, 10}, "0 days");
        row("later first", {2024, 2, 11}, {2024, 2, 10}, "");
        row("one day", {2024, 2, 10}, {2024, 2, 11}, "1 day");
        row("weeks", {2024, 2, 10}, {2024, 2, 29}, "19 days");
        row("no whole year", {2000, 3, 10}, {2001, 3, 9}, "11 months, 27 days");
        row("whole year", {2000, 3, 10}, {2001, 3, 10}, "1 year, 0 months, 0 days");
        row("year of singles", {2000, 3, 10}, {2001, 4, 11}, "1 year, 1 month, 1 day");
        row("years", {2009, 12, 31}, {2024, 2, 10}, "14 years, 1 month, 10 days");
        row("over new year", {2023, 12, 20}, {2024, 1, 5}, "16 days");
        row("month's end", {2023, 1, 31}, {2023, 2, 28}, "1 month, 0 days");
        row("month's end of a leap year", {2024, 1, 30}, {2024, 2, 29}, "1 month, 0 days");
        row("month's end short of a year", {2023, 3, 31}, {2024, 2, 29}, "11 months, 0 days");
        row("month's end completes a year", {2024, 2, 29}, {2025, 2, 28}, "1 year, 0 months, 0 days");
        row("from a day that the month before lacks", {2023, 1, 31}, {2023, 3, 30}, "1 month, 30 days");
        row("from a day that it has", {2023, 1, 20}, {2023, 3, 19}, "1 month, 27 days");
    }
    void spanInWords()
    {
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        QTEST(DateDiffText(from, to, false, true), "words");
    }

    void allPartsAndPlurals()
    {
        const QDate from(2024, 1, 1);
        QCOMPARE(DateDiffText(from, {2024, 1, 2}, true, true), QStringLiteral("0 years, 0 months, 1 day"));
        QCOMPARE(DateDiffText(from, {2025, 2, 2}, false, false), QStringLiteral("1 years, 1 months, 1 days"));
        QCOMPARE(DateDiffText(from, {2024, 2, 2}, false, false), QStringLiteral("1 months, 1 days"));
    }
};

QTEST_APPLESS_MAIN(tst_datediff)
#include "tst_datediff.moc"
