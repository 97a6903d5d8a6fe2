#include "Bare.h"
#include "FullShop.h"
#include "OnScreen.h"
#include "core/store/Session.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListSheet.h"
#include "platform/forms/ListView.h"
#include "platform/report/Workbook.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmWorkerJobRegister.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

// The job register in the full shop, from the key to the painted list. A day of 60 lines is meant to take
// less than 50 ms, a month of 1,500 less than 250 ms, and both at most 3 times the bare engine fetching the
// same cells with one joined statement; a status action with its refresh less than 60 ms. The delivery
// register of a month: less than 100 ms.

namespace {

constexpr int day = 1;
constexpr int month = 30;
constexpr int allYears = 7300;

template <typename Control>
Control& control(QWidget& screen, const char* name)
{
    return *screen.findChild<Control*>(QString::fromLatin1(name));
}

void chooseDays(QWidget& screen, int days)
{
    control<forms::DatePicker>(screen, "DateFrom").setValue(session.WorkingDate.addDays(1 - days));
    control<forms::DatePicker>(screen, "DateTo").setValue(session.WorkingDate);
}

/// Enter in the worker's box shows the lines of the days.
void showDays(QWidget& screen)
{
    pressKey(control<QWidget>(screen, "cmbClient"), Qt::Key_Return, u"\r"_s);
    paint();
}

template <typename Register>
void showRegister(benchmark::State& state)
{
    const int days = static_cast<int>(state.range(0));
    Register screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            chooseDays(screen, days);
            for (auto _ : state) {
                state.PauseTiming();
                FullShop::touch();
                state.ResumeTiming();
                showDays(screen);
            }
            state.counters["lines"] = control<forms::ListView>(screen, "lvSummary").rowCount() - 1;
        });
}

/// The same cells, tool tips' and balances' too, by one joined statement.
void registerFloor(benchmark::State& state)
{
    const QDate first = session.WorkingDate.addDays(1 - state.range(0));
    const QByteArray sql =
        u"SELECT d.Id, d.DATE, d.JobID || '/' || d.ItemSr, c.Title, c.MOBILE, c.ADDRESS, c.CITY, i.NAME, "
        "d.Remarks, d.JobDelDate, w.Title, w.MOBILE, w.ADDRESS, w.CITY, d.CuttingStatus, d.DoneByWorker, "
        "d.Loc, (SELECT total(Amount) FROM postings p WHERE p.AccID=d.ClintID AND p.Status=0 AND "
        "p.Date<='%2') FROM JOBS_DETAIL d JOIN Accounts c ON c.Id=d.ClintID JOIN ITEMS i ON "
        "i.Id=d.ItemID "
        "LEFT JOIN Accounts w ON w.Id=d.WorkerID WHERE d.DATE BETWEEN '%1' AND '%2' ORDER BY d.JobID, "
        "d.Id"_s.arg(first.toString(Qt::ISODate), session.WorkingDate.toString(Qt::ISODate))
            .toUtf8();
    for (auto _ : state)
        state.counters["lines"] = bare::run(sql.constData());
}

/// Without the balances and tool tips.
void deliveryFloor(benchmark::State& state)
{
    const QDate first = session.WorkingDate.addDays(1 - state.range(0));
    const QByteArray sql =
        u"SELECT d.Id, d.JobDelDate, d.DATE, d.JobID || '/' || d.ItemSr, c.Title, i.NAME, d.Remarks, "
        u"w.Title, "
        "d.DoneByWorker FROM JOBS_DETAIL d JOIN Accounts c ON c.Id=d.ClintID JOIN ITEMS i ON i.Id=d.ItemID "
        "LEFT JOIN Accounts w ON w.Id=d.WorkerID WHERE d.JobDelDate BETWEEN '%1' AND '%2' ORDER BY "
        "d.JobDelDate, d.Id"_s.arg(first.toString(Qt::ISODate), session.WorkingDate.toString(Qt::ISODate))
            .toUtf8();
    for (auto _ : state)
        state.counters["lines"] = bare::run(sql.constData());
}

/// F12 in the list of all years: every row made, and laid into a spreadsheet. Meant to take less than 2 s.
void spreadsheet(benchmark::State& state)
{
    frmWorkerJobRegister screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            chooseDays(screen, allYears);
            showDays(screen);
            for (auto _ : state)
                state.counters["bytes"] = double(
                    report::workbook(forms::sheetOf(control<forms::ListView>(screen, "lvSummary"))).size());
        });
}

/// Answers every question that comes: Yes, and a place where one is asked. The clock starts anew at each
/// answer, so that the operator's thinking is not counted.
class Answers : public QObject
{
public:
    Answers()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            QWidget* front = QApplication::activeModalWidget();
            if (!front || !front->isVisible() || qobject_cast<frmWorkerJobRegister*>(front))
                return;
            auto* place = front->findChild<QLineEdit*>();
            auto* yes = front->findChild<QWidget*>(u"cmdYes"_s);
            if (place)
                place->setText(u"Rack A1"_s);
            clock.start();
            pressKey(place ? *place : *yes, Qt::Key_Return, u"\r"_s);
        });
        m_timer.start(1);
    }
    QElapsedTimer clock;

private:
    QTimer m_timer;
};

void mark(benchmark::State& state, int key)
{
    frmWorkerJobRegister screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            Answers answers;
            auto& list = control<forms::ListView>(screen, "lvSummary");
            chooseDays(screen, day);
            showDays(screen);
            int row = 0;
            for (auto _ : state) {
                list.selectRow(row++ % (list.rowCount() - 1));
                paint();
                answers.clock.invalidate();
                pressKey(list, key);
                paint();
                if (!answers.clock.isValid())
                    state.SkipWithError("nothing was asked");
                state.SetIterationTime(static_cast<double>(answers.clock.nsecsElapsed()) / 1e9);
            }
        });
}

} // namespace

BENCHMARK(showRegister<frmWorkerJobRegister>)
    ->Name("showRegister")
    ->Arg(day)
    ->Arg(month)
    ->Arg(allYears)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(registerFloor)->Arg(day)->Arg(month)->Arg(allYears)->Unit(benchmark::kMillisecond);
BENCHMARK(showRegister<frmDeliveryRegister>)
    ->Name("showDeliveries")
    ->Arg(month)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(deliveryFloor)->Arg(month)->Unit(benchmark::kMillisecond);
BENCHMARK(spreadsheet)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(mark, F6, Qt::Key_F6)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(mark, F7, Qt::Key_F7)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(mark, F8, Qt::Key_F8)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);
