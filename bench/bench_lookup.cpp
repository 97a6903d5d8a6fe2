#include "FullShop.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

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
        benchmark::DoNotOptimize(
            FieldValueExists(nextClient(i), u"Title"_s, u"ID"_s, u"Accounts"_s, DE.rsaccounts));
}

void setting(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(GetSetting(13, u"0"_s));
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
