#include "Bare.h"
#include "OnScreen.h"
#include "core/store/Session.h"
#include "planning/frmDDP.h"
#include "planning/frmRatings.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

// The ranking of 200 workers over 32,000 lines, rebuilt and painted, is meant to take less than 150 ms; what
// waits on each garment of the catalogue, counted and painted, less than 60 ms.

namespace {

void ratings(benchmark::State& state)
{
    frmRatings screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            for (auto _ : state) {
                screen.GetRank();
                paint();
            }
        });
}

void ratingsFloor(benchmark::State& state)
{
    for (auto _ : state)
        bare::run(
            "SELECT Title, count(*), total(Score) FROM Accounts, JOBS_DETAIL WHERE WorkerID=Accounts.Id AND "
            "Type=1 GROUP BY Accounts.Id ORDER BY 3 DESC");
}

void pendingOrders(benchmark::State& state)
{
    frmDDP screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            for (auto _ : state) {
                screen.Prddict();
                paint();
            }
        });
}

void pendingOrdersFloor(benchmark::State& state)
{
    const QByteArray sql =
        u"SELECT i.NAME, i.ProdcutionCap, i.OpPendingOrders, count(QNT), total(DATE='%1') FROM ITEMS i LEFT "
        "JOIN JOBS_DETAIL ON ItemID=i.Id AND DoneByWorker=0 GROUP BY i.Id ORDER BY i.NAME"_s
            .arg(session.WorkingDate.toString(Qt::ISODate))
            .toUtf8();
    for (auto _ : state)
        bare::run(sql.constData());
}

} // namespace

BENCHMARK(ratings)->Unit(benchmark::kMillisecond);
BENCHMARK(ratingsFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(pendingOrders)->Unit(benchmark::kMillisecond);
BENCHMARK(pendingOrdersFloor)->Unit(benchmark::kMillisecond);
