#include "Bare.h"
#include "FullShop.h"
#include "OnScreen.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Texts.h"
#include "registers/frmClientFolder.h"

#include <QElapsedTimer>
#include <QTimer>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

// The folder of a client who has ordered every other day for ten years, 2,000 cards, from the key to painted.

namespace {

QString oldFriend() { return FullShop::clients().front(); }

/// The last 2,000 cards, and their lines, become those of one client.
void bringTogether()
{
    const QString client = QString::number(GetAccountID(oldFriend()));
    DE.connection().Execute(
        u"Update Jobs set ClintID=%1, ClintName='%2' where ID>14000"_s.arg(client, sqlText(oldFriend())));
    DE.connection().Execute(u"Update Jobs_Detail set ClintID=%1, ClintName='%2' where JobID>14000"_s.arg(
        client, sqlText(oldFriend())));
}

void folder(benchmark::State& state)
{
    bringTogether();
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        frmClientFolder screen;
        QTimer::singleShot(0, &screen, [&] {
            paint();
            state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
            screen.unload();
        });
        screen.ShowClient(oldFriend());
    }
}

/// The client's cards and lines, every cell.
void folderFloor(benchmark::State& state)
{
    bringTogether();
    const QByteArray client = QByteArray::number(GetAccountID(oldFriend()));
    for (auto _ : state) {
        state.counters["cards"] = bare::run(QByteArray("SELECT * FROM JOBS WHERE ClintID=" + client));
        state.counters["lines"] = bare::run(QByteArray("SELECT * FROM JOBS_DETAIL WHERE ClintID=" + client));
    }
}

} // namespace

BENCHMARK(folder)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(folderFloor)->Unit(benchmark::kMillisecond);
