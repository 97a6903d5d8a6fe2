#include "FullShop.h"
#include "core/store/Copies.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "platform/devices/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <benchmark/benchmark.h>

// The day's copy of the full shop: meant to hold up the end of the program for less than 300 ms; its proof
// runs when the screens are gone.

namespace {

void copyPages(benchmark::State& state)
{
    for (auto _ : state) {
        copies::Making making(session.WorkingDate);
        constexpr int all = -1;
        while (!making.step(all)) {
        }
    }
}

/// The same bytes, not deciphered; the bench's connection is closed for it.
void copyPagesFloor(benchmark::State& state)
{
    DE.close();
    const QString copy = session.appFolder + QStringLiteral("/floor.mdb");
    for (auto _ : state)
        files::copyWhole(session.databasePath(), copy);
    DE.open(session.databasePath());
}

void copyProvedAndInPlace(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        QDir(copies::folder()).removeRecursively();
        state.ResumeTiming();
        copies::finishDay();
    }
}

} // namespace

BENCHMARK(copyPages)->Unit(benchmark::kMillisecond);
BENCHMARK(copyPagesFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(copyProvedAndInPlace)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    benchmark::RunSpecifiedBenchmarks();
}
