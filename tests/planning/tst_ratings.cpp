#include "planning/Ratings.h"
#include "planning/Stars.h"
#include "planning/frmFeedBack.h"
#include "planning/frmRatings.h"
#include "planning/frmWorkerReport2.h"
#include "platform/values/Errors.h"
#include "support/ShopTest.h"
#include "ui/swTextBoxMultiLine.h"

static forms::ListView& summary(QWidget& screen) { return listView(screen, "lvSummary"); }

static QString rowText(QWidget& screen, int row)
{
    QStringList cells;
    for (int column = 0; column < 4; ++column)
        cells << summary(screen).cell(row, column);
    return cells.join(u'|');
}

/// Feedback on finished items, and what it makes of the workers.
class tst_ratings : public ShopTest
{
    Q_OBJECT

    /// A new worker with a line for each of the scores.
    qint32 addWorker(const QString& name, const QList<int>& scores)
    {
        const qint32 worker = shop->addWorker(name);
        for (const int score : scores)
            Shop::run(u"Update Jobs_Detail set Score=%1 where ID=%2"_s.arg(score).arg(
                shop->addJobLine(1, 1, worker)));
        return worker;
    }

private Q_SLOTS:
    void ratesByTheAverageOfAllLines_data()
    {
        QTest::addColumn<QList<int>>("scores");
        QTest::addColumn<int>("rating");
        QTest::newRow("no lines") << QList<int>() << 0;
        QTest::newRow("an average of 1 is none") << QList{1, 1, 1} << 0;
        QTest::newRow("just above 1") << QList{2, 1, 1} << 1;
        QTest::newRow("half to even, down") << QList{5, 0} << 2;
        QTest::newRow("half to even, up") << QList{5, 2} << 4;
        QTest::newRow("lines without a score count") << QList{5, 5, 0, 0, 0, 0} << 2;
        QTest::newRow("beyond the stars") << QList{7, 7} << 7;
    }
    void ratesByTheAverageOfAllLines()
    {
        QFETCH(QList<int>, scores);
        const qint32 worker = addWorker(u"Yusuf"_s, scores);
        QTEST(int(GetWorkerRating(worker)), "rating");
        QCOMPARE(int(GetWorkerScore(worker)), std::accumulate(scores.begin(), scores.end(), 0));
        const qint32 other = addWorker(u"Other"_s, {32767, 1});
        QVERIFY_THROWS_EXCEPTION(OverflowError, GetWorkerScore(other));
    }

    void ranksByTheSumOfScores()
    {
        inModal<frmRatings>([](frmRatings& screen) { QCOMPARE(summary(screen).rowCount(), 0); });
        addWorker(u"Many"_s, {1, 1, 1, 1, 1, 1, 1, 2});
        addWorker(u"Few"_s, {5});
        addWorker(u"Tied"_s, {3, 2});
        addWorker(u"Odd"_s, {6});
        for (int opening = 0; opening < 2; ++opening) {
            inModal<frmRatings>([](frmRatings& screen) {
                const QStringList expected{u"1|1|Many|9"_s, u"2|2|Odd|6"_s, u"3|3|Few|5"_s, u"4|4|Tied|5"_s};
                const QList<int> rating{1, -1, 5, 2};
                for (int row = 0; row < 4; ++row) {
                    QCOMPARE(rowText(screen, row), expected[row]);
                    QCOMPARE(summary(screen).look(row, 4).picture.toImage(),
                             stars(rating[row], 22).toImage());
                }
                press(Qt::Key_Escape);
                QVERIFY(!screen.isVisible());
            });
            QCOMPARE(Shop::count(u"Select * from Rank"_s), 4);
        }
    }

    void keepsTheClientsFeedback()
    {
        const qint32 line = shop->addJobLine(1, 1);
        const QString kept = u"Select Score, ClientFeedBack from Jobs_Detail"_s;
        QVariant result;
        session.RefreshLists = false;
        onNextModal<frmFeedBack>([&](frmFeedBack& screen) {
            auto& score = combo(screen, "cmbScore");
            const auto shows = [&](int count) {
                return control<QLabel>(screen, "imgStars").pixmap().toImage() == stars(count, 28).toImage();
            };
            QVERIFY(shows(0));
            for (int i = 0; i < 4; ++i)
                press(Qt::Key_Down);
            QVERIFY(shows(4));
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), u"txtFeedback"_s);
            typeText(u"Fits well"_s);
            prompts->expect(u"Feedback saved!"_s);
            save();
            QVERIFY(screen.isVisible());
            QCOMPARE(Shop::rows(kept), QStringList{u"4 Fits well"_s});
            QVERIFY(session.RefreshLists);
            score.setText(u"70000"_s);
            prompts->expect(u"Overflow: Score 70000 is too large. The highest possible is 32767."_s);
            save();
            score.setText(u"7 of 5"_s);
            QVERIFY(shows(4));
            prompts->expect(u"Feedback saved!"_s);
            save();
            QCOMPARE(Shop::rows(kept), QStringList{u"7 Fits well"_s});
            press(Qt::Key_Escape);
        });
        GiveFeedback(line, 0, result);
        QCOMPARE(result.toInt(), 7);

        onNextModal<frmFeedBack>([](frmFeedBack& screen) {
            QCOMPARE(combo(screen, "cmbScore").text(), u"7"_s);
            QCOMPARE(control<swTextBoxMultiLine>(screen, "txtFeedback").Text(), u"Fits well"_s);
            QVERIFY(!control<QWidget>(screen, "Command1").isEnabled());
        });
        GiveFeedback(line, 1, result);
    }

    void overviewCountsLinesAndGivesTheWorkerPicked()
    {
        const QString sql = u"Select * from JOBS_Detail where WorkerID=%id and Score<>-%id order by JobID"_s;
        addWorker(u"Yusuf"_s, QList<int>(20));
        addWorker(u"Mohan"_s, {});
        QString worker;
        onNextModal<frmWorkerReport2>([](frmWorkerReport2& screen) {
            QCOMPARE(rowText(screen, 0), u"1|Mohan|0|"_s);
            QCOMPARE(rowText(screen, 1), u"2|Yusuf|20|"_s);
            press(Qt::Key_Escape);
        });
        ShowWorkerOverView(sql, worker);
        QCOMPARE(worker, u"-1000"_s);
        onNextModal<frmWorkerReport2>([](frmWorkerReport2&) {
            press(Qt::Key_Down);
            press(Qt::Key_Return);
        });
        ShowWorkerOverView(sql, worker);
        QCOMPARE(worker, u"Yusuf"_s);
    }
};

QTEST_MAIN(tst_ratings)
#include "tst_ratings.moc"
