#include "FullShop.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/ShopCheck.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Integrity.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

// The whole check of the full shop: meant to take less than 2 s.

namespace {

void checkShop(benchmark::State& state)
{
    for (auto _ : state)
        state.counters["findings"] = double(shopcheck::run({}).findings.size());
}

/// The engine's own check of the file.
void checkShopFloor(benchmark::State& state)
{
    for (auto _ : state) {
        ado::Connection connection;
        connection.open(session.databasePath(), databasePassword(), ado::Connection::Mode::ReadOnly);
        benchmark::DoNotOptimize(ado::damage(connection));
    }
}

} // namespace

BENCHMARK(checkShop)->Unit(benchmark::kMillisecond);
BENCHMARK(checkShopFloor)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    benchmark::RunSpecifiedBenchmarks();
}
