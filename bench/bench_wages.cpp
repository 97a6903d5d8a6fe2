#include "Bare.h"
#include "OnScreen.h"
#include "accounts/Payroll.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Voucher.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListView.h"

#include <QPushButton>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

// The wages register in the full shop, from the key to the painted list. A year of the worker with the most
// lines, with the counts of items, is meant to take less than 60 ms; a payroll over 300 lines, stored, less
// than 100 ms.

namespace {

constexpr int year = 365;
constexpr int paidLines = 300;

template <typename Control>
Control& control(QWidget& screen, const char* name)
{
    return *screen.findChild<Control*>(QString::fromLatin1(name));
}

/// The worker with the most lines of the last year.
qint32 busiest()
{
    ado::Recordset& lines = DE.rsJOBS_DETAIL;
    lines.Open(u"Select WorkerID, count(*) from Jobs_Detail where WorkerID>0 and DoneByWorker>0 and "
               "date>'%1' group by WorkerID order by count(*) desc"_s.arg(
                   session.WorkingDate.addDays(-year).toString(Qt::ISODate)));
    const qint32 worker = lines[0].integer();
    lines.Close();
    return worker;
}

void showYear(benchmark::State& state)
{
    const QString worker = GetAccountTitle(busiest());
    frmWorkerWagesRegister screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            control<forms::ComboBox>(screen, "cmbClient").setText(worker);
            control<forms::DatePicker>(screen, "DateFrom").setValue(session.WorkingDate.addDays(1 - year));
            for (auto _ : state) {
                control<QPushButton>(screen, "Command4").click();
                paint();
            }
            state.counters["lines"] = control<forms::ListView>(screen, "lvSummary").rowCount();
        });
}

/// The same cells and counts by two joined statements.
void yearFloor(benchmark::State& state)
{
    const QString where = u"d.WorkerID=%1 AND d.DATE BETWEEN '%2' AND '%3' AND d.DoneByWorker>0"_s.arg(
        QString::number(busiest()), session.WorkingDate.addDays(1 - year).toString(Qt::ISODate),
        session.WorkingDate.toString(Qt::ISODate));
    const QByteArray lines =
        u"SELECT d.Id, d.DATE, d.JobID || ' / ' || d.ItemSr, d.ClintName, i.NAME, d.WorkerWagesDue, "
        "d.CompletedDate, d.MarkAsPaid FROM JOBS_DETAIL d JOIN ITEMS i ON i.Id=d.ItemID WHERE %1 ORDER BY "
        "d.DATE, d.Id"_s.arg(where)
            .toUtf8();
    const QByteArray counts =
        u"SELECT i.NAME, count(*) FROM JOBS_DETAIL d JOIN ITEMS i ON i.Id=d.ItemID WHERE %1 GROUP BY i.Id "
        "ORDER BY i.NAME"_s.arg(where)
            .toUtf8();
    for (auto _ : state) {
        state.counters["lines"] = bare::run(lines.constData());
        bare::run(counts.constData());
    }
}

/// 300 lines that the worker is owed.
wages::Scope owe()
{
    const qint32 worker = busiest();
    DE.connection().Execute(u"Update Jobs_Detail set MarkAsPaid=0, PayrollID=0, DoneByWorker=2, WorkerID=%1 "
                            "where Id in (Select Id from Jobs_Detail order by Id desc limit %2)"_s.arg(worker)
                                .arg(paidLines));
    return {worker, QDate(2000, 1, 1), session.WorkingDate};
}

void pay(benchmark::State& state)
{
    const wages::Scope scope = owe();
    std::vector<wages::Line> lines = wages::read(wages::linesOf(scope, wages::Which::Unpaid));
    for (auto _ : state) {
        const qint16 number = payroll::Create(scope, lines, session.WorkingDate);
        state.PauseTiming();
        DE.connection().writeBatch([number] {
            payroll::Release(number);
            Voucher(VoucherType::Entry, number).Delete();
        });
        state.ResumeTiming();
    }
    state.counters["lines"] = static_cast<double>(lines.size());
}

/// Three statements and a commit, for as many lines.
void payFloor(benchmark::State& state)
{
    const wages::Scope scope = owe();
    const QByteArray mark = u"UPDATE JOBS_DETAIL SET MarkAsPaid=1, PayrollID=30000 WHERE WorkerID=%1 AND "
                            "MarkAsPaid=0 AND DoneByWorker>0"_s.arg(scope.worker)
                                .toUtf8();
    constexpr const char* post =
        "INSERT INTO postings (VID, Vtype, Sr, DATE, AccID, RefID, particulars, Remark, "
        "Amount, Status, isPayroll) VALUES (30000, 2, 1, '2024-02-10', 1, 2, 'Wages', "
        "'', 1, 0, 1)";
    for (auto _ : state) {
        bare::run("BEGIN IMMEDIATE");
        bare::run(mark.constData());
        bare::run(post);
        bare::run(post);
        bare::run("COMMIT");
        state.PauseTiming();
        bare::run("UPDATE JOBS_DETAIL SET MarkAsPaid=0, PayrollID=0 WHERE PayrollID=30000");
        bare::run("DELETE FROM postings WHERE VID=30000 AND Vtype=2");
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(showYear)->Unit(benchmark::kMillisecond);
BENCHMARK(yearFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(pay)->Unit(benchmark::kMillisecond);
BENCHMARK(payFloor)->Unit(benchmark::kMillisecond);
