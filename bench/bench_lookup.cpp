#include "FullShop.h"
#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Session.h"
#include "core/Settings.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

// Look-ups in a shop of 32,000 lines and 8,000 clients: meant to stay under 0.1 ms each.

namespace {

constexpr int clients = 8000;

int next(int& i, int count) { return i = (i + 4001) % count; }

const QString& nextClient(int& i) { return FullShop::clients()[next(i, clients)]; }

void accountByName(benchmark::State& state)
{
    for (int i = 0; auto _ : state)
        benchmark::DoNotOptimize(GetAccountID(nextClient(i)));
}

void accountByNumber(benchmark::State& state)
{
    for (int i = 0; auto _ : state)
        benchmark::DoNotOptimize(GetAccountTitle(5 + next(i, clients)));
}

void itemByName(benchmark::State& state)
{
    for (int i = 0; auto _ : state)
        benchmark::DoNotOptimize(GetItemID(FullShop::garments()[next(i, 20)]));
}

void nameIsTaken(benchmark::State& state)
{
    for (int i = 0; auto _ : state)
        benchmark::DoNotOptimize(FieldValueExists(nextClient(i), QStringLiteral("Title"),
                                                  QStringLiteral("ID"), QStringLiteral("Accounts"),
                                                  DE.rsaccounts));
}

void setting(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(GetSetting(13, QStringLiteral("0")));
}

void balance(benchmark::State& state)
{
    for (int i = 0; auto _ : state)
        benchmark::DoNotOptimize(GetBalance(static_cast<qint16>(5 + next(i, clients)), session.WorkingDate));
}

} // namespace

BENCHMARK(accountByName)->Unit(benchmark::kMicrosecond);
BENCHMARK(accountByNumber)->Unit(benchmark::kMicrosecond);
BENCHMARK(itemByName)->Unit(benchmark::kMicrosecond);
BENCHMARK(nameIsTaken)->Unit(benchmark::kMicrosecond);
BENCHMARK(setting)->Unit(benchmark::kMicrosecond);
BENCHMARK(balance)->Unit(benchmark::kMicrosecond);

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    benchmark::RunSpecifiedBenchmarks();
}
