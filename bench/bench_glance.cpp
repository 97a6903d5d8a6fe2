#include "Bare.h"
#include "OnScreen.h"
#include "core/shell/frmGlance.h"

#include <benchmark/benchmark.h>

// The shop's figures in the full shop, read and painted: meant to take less than 150 ms.

namespace {

void glance(benchmark::State& state)
{
    frmGlance screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            for (auto _ : state) {
                screen.fill();
                paint();
            }
        });
}

/// The two tables that are read whole.
void glanceFloor(benchmark::State& state)
{
    for (auto _ : state) {
        bare::run("SELECT DoneByWorker, count(*), count(CompletedDate) FROM JOBS_DETAIL NOT INDEXED GROUP BY "
                  "DoneByWorker");
        bare::run("SELECT AccID, sum(Amount) FROM postings WHERE Status=0 GROUP BY AccID");
    }
}

} // namespace

BENCHMARK(glance)->Unit(benchmark::kMillisecond);
BENCHMARK(glanceFloor)->Unit(benchmark::kMillisecond);
