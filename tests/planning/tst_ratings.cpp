#include "planning/Ratings.h"
#include "planning/Stars.h"
#include "planning/frmFeedBack.h"
#include "planning/frmRatings.h"
#include "planning/frmWorkerReport2.h"
#include "platform/values/Errors.h"
#include "support/ShopTest.h"
#include "ui/swTextBoxMultiLine.h"

static forms::ListView& summary(QWidget& screen) { return listView(screen, "lvSummary"); }

/// Feedback on finished items, and what it makes of the workers.
class tst_ratings : public ShopTest
{
    Q_OBJECT

    /// A new worker with a line for each of the scores.
    qint32 addWorker(const QString& name, const QList<int>& scores)
    {
        const qint32 worker = shop->addWorker(name);
        for (const int score : scores)
            shop->addJobLine(1, 1, worker, u"Score=%1"_s.arg(score));
        return worker;
    }

private Q_SLOTS:
    void ratesByTheAverageOfAllLines()
    {
        for (const auto& [scores, rating] : {std::pair(QList<int>(), 0),   // no lines
                                             std::pair(QList{1, 1, 1}, 0), // an average of 1 is none
                                             std::pair(QList{2, 1, 1}, 1), // just above
                                             std::pair(QList{5, 0}, 2),    // half to even; no score counts
                                             std::pair(QList{5, 2}, 4), std::pair(QList{7, 7}, 7)}) {
            const qint32 worker = addWorker("Yusuf", scores);
            QCOMPARE(int(GetWorkerRating(worker)), rating);
            QCOMPARE(int(GetWorkerScore(worker)), std::accumulate(scores.begin(), scores.end(), 0));
        }
        const qint32 other = addWorker("Other", {32767, 1});
        QVERIFY_THROWS_EXCEPTION(OverflowError, GetWorkerScore(other));
    }

    void ranksByTheSumOfScores()
    {
        inModal<frmRatings>([](frmRatings& screen) { QCOMPARE(summary(screen).rowCount(), 0); });
        addWorker("Many", {1, 1, 1, 1, 1, 1, 1, 2});
        addWorker("Few", {5});
        addWorker("Tied", {3, 2});
        addWorker("Odd", {6});
        for (int opening = 0; opening < 2; ++opening) {
            inModal<frmRatings>([](frmRatings& screen) {
                const QStringList expected{"1|1|Many|9|", "2|2|Odd|6|", "3|3|Few|5|", "4|4|Tied|5|"};
                const QList<int> rating{1, -1, 5, 2};
                for (int row = 0; row < 4; ++row) {
                    QCOMPARE(rowText(screen, row), expected[row]);
                    QCOMPARE(summary(screen).look(row, 4).picture.toImage(),
                             stars(rating[row], 22).toImage());
                }
                press(Qt::Key_Escape);
                QVERIFY(!screen.isVisible());
            });
            QCOMPARE(Shop::count("Select * from Rank"), 4);
        }
    }

    void keepsTheClientsFeedback()
    {
        const qint32 line = shop->addJobLine(1, 1);
        const QString kept = "Select Score, ClientFeedBack from Jobs_Detail";
        QVariant result;
        session.RefreshLists = false;
        onNextModal<frmFeedBack>([&](frmFeedBack& screen) {
            for (int i = 0; i < 4; ++i)
                press(Qt::Key_Down);
            QCOMPARE(control<QLabel>(screen, "imgStars").pixmap().toImage(), stars(4, 28).toImage());
            typeFields({{}});
            typeText("Fits well");
            prompts->expect("Feedback saved!");
            save();
            QCOMPARE(Shop::rows(kept), QStringList{"4 Fits well"});
            QVERIFY(session.RefreshLists && screen.isVisible());
            combo(screen, "cmbScore").setText("70000");
            prompts->expect("Overflow: Score 70000 is too large. The highest possible is 32767.");
            save();
            combo(screen, "cmbScore").setText("7 of 5");
            prompts->expect("Feedback saved!");
            save();
            QCOMPARE(Shop::rows(kept), QStringList{"7 Fits well"});
        });
        GiveFeedback(line, 0, result);
        QCOMPARE(result.toInt(), 7);

        onNextModal<frmFeedBack>([](frmFeedBack& screen) {
            QCOMPARE(combo(screen, "cmbScore").text(), "7");
            QCOMPARE(control<swTextBoxMultiLine>(screen, "txtFeedback").Text(), "Fits well");
            QVERIFY(!control<QWidget>(screen, "Command1").isEnabled());
        });
        GiveFeedback(line, 1, result);
    }

    void overviewCountsLinesAndGivesTheWorkerPicked()
    {
        const QString sql = "Select * from JOBS_Detail where WorkerID=%id and Score<>-%id order by JobID";
        addWorker("Yusuf", QList<int>(20));
        addWorker("Mohan", {});
        for (const bool picked : {false, true}) {
            QString worker;
            onNextModal<frmWorkerReport2>([picked](frmWorkerReport2& screen) {
                QCOMPARE(rowText(screen, 0) + rowText(screen, 1), "1|Mohan|02|Yusuf|20");
                press(Qt::Key_Down);
                press(picked ? Qt::Key_Return : Qt::Key_Escape);
            });
            ShowWorkerOverView(sql, worker);
            QCOMPARE(worker, picked ? "Yusuf" : "-1000");
        }
    }
};

QTEST_MAIN(tst_ratings)
#include "tst_ratings.moc"
