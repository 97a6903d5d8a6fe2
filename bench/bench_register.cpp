#include "FullShop.h"
#include "core/DE.h"
#include "core/Session.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Theme.h"
#include "registers/frmWorkerJobRegister.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <benchmark/benchmark.h>
#define SQLITE_HAS_CODEC
#include <sqlcipher/sqlite3.h>

// The job register in a full shop, from the key to the painted list: 60 lines are meant to cost less than 50
// ms, 1,500 lines less than 250 ms and at most 3 times the bare C API that fetches the same cells with one
// joined statement; marking a line, refresh included, less than 60 ms.

namespace {

/// Days, up to the last of the shop, that hold at least so many lines.
std::pair<QDate, QDate> daysOf(int lines)
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select Date, count(*) from JOBS_DETAIL group by Date order by Date desc"));
    const QDate last = rows[0].date();
    QDate first = last;
    for (int count = 0; !rows.AtEOF() && count < lines; rows.MoveNext()) {
        first = rows[0].date();
        count += rows[1].integer();
    }
    return {first, last};
}

/// Opens the register on so many lines and hands it to `work`.
template <typename Work>
void inRegister(int lines, Work work)
{
    frmWorkerJobRegister screen;
    QTimer::singleShot(300, &screen, [&] {
        const auto [first, last] = daysOf(lines);
        screen.findChild<forms::DatePicker*>(QStringLiteral("DateFrom"))->setValue(first);
        screen.findChild<forms::DatePicker*>(QStringLiteral("DateTo"))->setValue(last);
        work(screen);
        screen.unload();
    });
    screen.showModal();
}

void view(frmWorkerJobRegister& screen)
{
    screen.findChild<QPushButton*>(QStringLiteral("Command4"))->click();
    QApplication::sendPostedEvents();
    screen.repaint();
}

void registerView(benchmark::State& state)
{
    const int lines = int(state.range(0));
    inRegister(lines, [&](frmWorkerJobRegister& screen) {
        for (auto _ : state)
            view(screen);
        const int rows = screen.findChild<forms::ListView*>(QStringLiteral("lvSummary"))->rowCount() - 1;
        state.counters["lines"] = rows;
        if (rows < lines)
            state.SkipWithError("lines are missing");
    });
}

/// The cells of the same lines, and the counts of the item panel.
void bareFetch(benchmark::State& state)
{
    const auto [first, last] = daysOf(int(state.range(0)));
    const QByteArray from = first.toString(Qt::ISODate).toUtf8();
    const QByteArray to = last.toString(Qt::ISODate).toUtf8();
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(
            DE.connection().handle(),
            "SELECT d.Date, d.JobID, d.ItemSr, c.Title, c.Mobile, c.Address, c.City, i.Name, d.Remarks, "
            "d.JobDelDate, w.Title, w.Mobile, w.Address, w.City, d.CuttingStatus, d.DoneByWorker, d.Loc, "
            "d.Id, "
            "(SELECT sum(Amount) FROM postings p WHERE p.Status=0 AND p.AccID=d.ClintID AND p.Date BETWEEN "
            "'1985-11-17' AND ?2) FROM JOBS_DETAIL d JOIN Accounts c ON c.Id=d.ClintID JOIN ITEMS i ON "
            "i.Id=d.ItemID LEFT JOIN Accounts w ON w.Id=d.WorkerID WHERE d.Date BETWEEN ?1 AND ?2 ORDER BY "
            "d.JobID, d.Id, d.Date",
            -1, &statement, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(DE.connection().handle()));
    for (auto _ : state) {
        sqlite3_bind_text(statement, 1, from.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(statement, 2, to.constData(), -1, SQLITE_STATIC);
        int rows = 0;
        for (; sqlite3_step(statement) == SQLITE_ROW; ++rows)
            for (int column = 0; column < 19; ++column)
                benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
        sqlite3_reset(statement);
        state.counters["lines"] = rows;
    }
    sqlite3_finalize(statement);
}

/// F6 on a line of one day, and "Yes".
void markLine(benchmark::State& state)
{
    inRegister(60, [&](frmWorkerJobRegister& screen) {
        view(screen);
        auto* list = screen.findChild<forms::ListView*>(QStringLiteral("lvSummary"));
        list->setFocus();
        list->selectRow(5);
        for (auto _ : state) {
            QTimer::singleShot(0, &screen, [] {
                QApplication::activeModalWidget()->findChild<QPushButton*>(QStringLiteral("cmdYes"))->click();
            });
            QKeyEvent key(QEvent::KeyPress, Qt::Key_F6, Qt::NoModifier);
            QApplication::sendEvent(list, &key);
            QApplication::sendPostedEvents();
            screen.repaint();
        }
    });
}

} // namespace

BENCHMARK(bareFetch)->Arg(60)->Arg(1500)->Unit(benchmark::kMillisecond)->Iterations(10)->Repetitions(6);
BENCHMARK(registerView)->Arg(60)->Arg(1500)->Unit(benchmark::kMillisecond)->Iterations(10)->Repetitions(6);
BENCHMARK(markLine)->Unit(benchmark::kMillisecond)->Iterations(10)->Repetitions(6);

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    forms::applyTheme(application, QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/fonts"));
    benchmark::RunSpecifiedBenchmarks();
}
