#include "ui/DateDiff.h"

#include <QTest>

class tst_datediff : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void spanInWords()
    {
        struct
        {
            QDate from, to;
            const char* words;
        } const rows[] = {
            {{2024, 2, 10}, {2024, 2, 10}, "0 days"},
            {{2024, 2, 11}, {2024, 2, 10}, ""},
            {{2024, 2, 10}, {2024, 2, 11}, "1 day"},
            {{2000, 3, 10}, {2001, 3, 9}, "11 months, 27 days"},
            {{2000, 3, 10}, {2001, 3, 10}, "1 year, 0 months, 0 days"},
            {{2009, 12, 31}, {2024, 2, 10}, "14 years, 1 month, 10 days"},
            {{2023, 12, 20}, {2024, 1, 5}, "16 days"},
            {{2023, 1, 31}, {2023, 2, 28}, "1 month, 0 days"}, // from one month's end to another
            {{2023, 3, 31}, {2024, 2, 29}, "11 months, 0 days"},
            {{2024, 2, 29}, {2025, 2, 28}, "1 year, 0 months, 0 days"},
            {{2023, 1, 31}, {2023, 3, 30}, "1 month, 30 days"}, // from a day that the month before lacks
            {{2023, 1, 20}, {2023, 3, 19}, "1 month, 27 days"},
        };
        for (const auto& row : rows)
            QCOMPARE(DateDiffText(row.from, row.to, false, true), row.words);
        QCOMPARE(DateDiffText({2024, 1, 1}, {2024, 1, 2}, true, true), "0 years, 0 months, 1 day");
        QCOMPARE(DateDiffText({2024, 1, 1}, {2025, 2, 2}, false, false), "1 years, 1 months, 1 days");
    }
};

QTEST_APPLESS_MAIN(tst_datediff)
#include "tst_datediff.moc"
