#include "FullShop.h"
#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

// From the start of the process to the main screen shown: meant to be at most 1.5 times that of a bare Qt
// program that opens the same encrypted file and shows one empty window.

namespace {

QString shopFolder;

void race(benchmark::State& state, const QString& program, const QStringList& arguments)
{
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        const int result = QProcess::execute(QString::fromUtf8(PROGRAM_FOLDER "/") + program, arguments);
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        if (result != 0)
            state.SkipWithError("the program failed");
    }
}

void bareWindow(benchmark::State& state)
{
    race(state, u"start_bare"_s, {shopFolder + u"/data.mdb"_s, databasePassword()});
}

void mainScreen(benchmark::State& state)
{
    race(state, u"start_shop"_s, {shopFolder, QString::fromUtf8(PROGRAM_FOLDER "/../bin/fonts")});
}

/// With the job card ("card") open over the main screen, or the register with the lines of so many days.
void residentMemory(benchmark::State& state, const char* screen)
{
    for (auto _ : state) {
        QProcess program;
        program.start(
            QString::fromUtf8(PROGRAM_FOLDER "/start_shop"),
            {shopFolder, QString::fromUtf8(PROGRAM_FOLDER "/../bin/fonts"), QString::fromLatin1(screen)});
        program.waitForFinished();
        state.counters["resident_MB"] = program.readAllStandardOutput().trimmed().toDouble();
    }
}

} // namespace

BENCHMARK(bareWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(4)->Repetitions(8);
BENCHMARK(mainScreen)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(4)->Repetitions(8);
BENCHMARK_CAPTURE(residentMemory, card, "card")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(residentMemory, month, "30")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(residentMemory, allLines, "7300")->Iterations(1)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    shopFolder = shop.folder();
    DE.close(); // the file is whole; the programs open it themselves
    benchmark::RunSpecifiedBenchmarks();
}
