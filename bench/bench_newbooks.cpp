#include "FullShop.h"
#include "core/store/NewBooks.h"
#include "core/store/Session.h"
#include "core/store/ShopCheck.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

// New books of the full shop, made and proved: meant to take less than 20 s, under a progress box.

namespace {

void makeNewBooks(benchmark::State& state)
{
    const newbooks::Plan plan = newbooks::plan(session.WorkingDate.addMonths(-1));
    for (auto _ : state)
        newbooks::Making(plan).make({});
    state.counters["lines"] = plan.lines;
    state.counters["lines that stay"] = plan.linesStay;
}

/// Both files are looked over: the old one before, the new one after.
void makeNewBooksFloor(benchmark::State& state)
{
    for (auto _ : state)
        for (int file = 0; file < 2; ++file)
            shopcheck::run({});
}

/// What the screen shows before anything is made.
void planNewBooks(benchmark::State& state)
{
    for (auto _ : state)
        newbooks::plan(session.WorkingDate.addMonths(-1));
}

} // namespace

BENCHMARK(makeNewBooks)->Unit(benchmark::kMillisecond);
BENCHMARK(makeNewBooksFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(planNewBooks)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    benchmark::RunSpecifiedBenchmarks();
}
