#include "BigShop.h"
#include "core/DE.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Theme.h"
#include "registers/frmSearchClient.h"
#include "ui/swTextBox.h"

#include <QApplication>
#include <QTimer>
#include <array>
#include <benchmark/benchmark.h>
#define SQLITE_HAS_CODEC
#include <sqlcipher/sqlite3.h>

// The client search in a shop of 8,000 clients: a keystroke that finds all of them, from the key to the
// painted list, is meant to cost less than 30 ms. Its floor: the bare C API fetching the same cells.

namespace {

void bareFetch(benchmark::State& state)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(
            DE.connection().handle(),
            "SELECT Title, Address, City, Mobile FROM Accounts WHERE Type=0 AND Title LIKE '%a%'", -1,
            &statement, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(DE.connection().handle()));
    for (auto _ : state) {
        int rows = 0;
        for (; sqlite3_step(statement) == SQLITE_ROW; ++rows)
            for (int column = 0; column < 4; ++column)
                benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
        sqlite3_reset(statement);
        if (rows != BigShop::clients)
            state.SkipWithError("not all clients found");
    }
    sqlite3_finalize(statement);
}

/// Types one letter more and one less, each of which finds every client.
void keystroke(benchmark::State& state)
{
    frmSearchClient screen;
    QTimer::singleShot(300, &screen, [&] {
        auto* name = screen.findChild<swTextBox*>(QStringLiteral("txtName"));
        auto* results = screen.findChild<forms::ListView*>(QStringLiteral("lvResults"));
        const std::array texts{QStringLiteral("sha"), QStringLiteral("sh")};
        for (size_t i = 0; auto _ : state) {
            name->setText(texts[++i % texts.size()]);
            QApplication::sendPostedEvents();
            screen.repaint();
        }
        if (results->rowCount() != BigShop::clients)
            state.SkipWithError("not all clients found");
        screen.unload();
    });
    screen.showModal();
}

} // namespace

BENCHMARK(bareFetch)->Unit(benchmark::kMillisecond)->Iterations(10)->Repetitions(6);
BENCHMARK(keystroke)->Unit(benchmark::kMillisecond)->Iterations(10)->Repetitions(6);

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const BigShop shop;
    forms::applyTheme(application, QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/fonts"));
    benchmark::RunSpecifiedBenchmarks();
}
