#include "FullShop.h"
#include "core/store/Backup.h"
#include "core/store/Copies.h"
#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "jobcards/Differences.h"
#include "platform/devices/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
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

/// A copy opened to be looked at, and the living shop again.
void look(benchmark::State& state)
{
    copies::finishDay();
    const QString copy = copies::inFolder(copies::folder()).first().path;
    for (auto _ : state) {
        DE.openToLook(copy, QStringLiteral("No."));
        DE.open(session.databasePath());
    }
}

/// Two openings of a file with its key.
void lookFloor(benchmark::State& state)
{
    for (auto _ : state)
        for (int i = 0; i < 2; ++i)
            DE.open(session.databasePath());
}

/// A backup into a folder: packed, unpacked again, compared.
void backup(benchmark::State& state)
{
    const QString folder = session.appFolder + QStringLiteral("/backups");
    QDir().mkpath(folder);
    for (auto _ : state)
        Backup(folder).run({});
}

/// The same bytes through the packing program, and back.
void backupFloor(benchmark::State& state)
{
    const QString packed = session.appFolder + QStringLiteral("/floor.gz");
    for (auto _ : state) {
        QProcess program;
        program.setStandardInputFile(session.databasePath());
        program.setStandardOutputFile(packed);
        program.start(QStringLiteral("gzip"), {QStringLiteral("-c")});
        program.waitForFinished(-1);
        QProcess::execute(QStringLiteral("gzip"), {QStringLiteral("-t"), packed});
    }
}

/// All cards and vouchers of two full shops compared.
void compareShops(benchmark::State& state)
{
    copies::finishDay();
    ado::Connection then;
    then.open(copies::inFolder(copies::folder()).first().path, databasePassword(),
              ado::Connection::Mode::ReadOnly);
    for (auto _ : state)
        state.counters["differences"] = double(differences::between(then, DE.connection()).size());
}

} // namespace

BENCHMARK(copyPages)->Unit(benchmark::kMillisecond);
BENCHMARK(copyPagesFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(copyProvedAndInPlace)->Unit(benchmark::kMillisecond);
BENCHMARK(look)->Unit(benchmark::kMillisecond);
BENCHMARK(lookFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(backup)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(backupFloor)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(compareShops)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    benchmark::RunSpecifiedBenchmarks();
}
