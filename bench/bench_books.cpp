#include "Bare.h"
#include "OnScreen.h"
#include "accounts/frmAccountBook.h"
#include "accounts/frmDayBook.h"
#include "accounts/rptAccountsBooks.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListView.h"
#include "platform/report/Pdf.h"
#include "platform/report/Preview.h"
#include "registers/frmDueRegister.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QTimer>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

// The shop's money in the full shop, from the key to the painted screen. The dues of 8,000 clients are meant
// to take less than 100 ms and at most 3 times one grouped statement; the book of Cash for a year less than
// 100 ms, for all years less than 400 ms; the day book of a month less than 50 ms, of all years less than
// 400 ms; a statement of 1,000 rows less than 300 ms staged, laid out and shown, less than 1 s as PDF.

namespace {

constexpr int month = 30;
constexpr int year = 365;
constexpr int allYears = 20 * year;
constexpr size_t statementRows = 1000;

template <typename Control>
Control& control(QWidget& screen, const char* name)
{
    return *screen.findChild<Control*>(QString::fromLatin1(name));
}

/// Opens a screen; its time ends when it is painted.
void opened(benchmark::State& state, forms::Screen& screen, const QElapsedTimer& clock)
{
    QTimer::singleShot(0, &screen, [&] {
        paint();
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        screen.unload();
    });
    screen.showModal();
}

void dues(benchmark::State& state)
{
    QElapsedTimer clock;
    for (auto _ : state) {
        clock.start();
        frmDueRegister screen;
        opened(state, screen, clock);
        state.counters["rows"] = control<forms::ListView>(screen, "lvSummary").rowCount();
    }
}

void duesFloor(benchmark::State& state)
{
    for (auto _ : state)
        state.counters["rows"] = bare::run(
            "SELECT Title, sum(Amount) FROM Accounts, postings WHERE Type=0 AND AccID=Accounts.Id AND "
            "Status=0 GROUP BY Accounts.Id HAVING sum(Amount)<0 ORDER BY Title");
}

void chooseDays(QWidget& screen, benchmark::State& state)
{
    control<forms::DatePicker>(screen, "DateFrom").setValue(session.WorkingDate.addDays(1 - state.range(0)));
    control<forms::DatePicker>(screen, "DateTo").setValue(session.WorkingDate);
}

/// "View", again and again.
void view(benchmark::State& state, QWidget& screen)
{
    chooseDays(screen, state);
    for (auto _ : state) {
        control<QPushButton>(screen, "Command4").click();
        paint();
    }
    state.counters["rows"] = control<forms::ListView>(screen, "lvSummary").rowCount();
}

void cashBook(benchmark::State& state)
{
    frmAccountBook screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            control<forms::ComboBox>(screen, "cmbType").setListIndex(2);
            screen.loadList();
            control<forms::ComboBox>(screen, "cmbAccount").setText(u"Cash"_s);
            view(state, screen);
        });
}

void dayBook(benchmark::State& state)
{
    frmDayBook screen;
    onScreen(
        screen, [&] { screen.showModal(); }, [&] { view(state, screen); });
}

/// The postings of the days with the other account's title, by one joined statement.
void joined(benchmark::State& state, const QString& postings, const char* account)
{
    const QDate first = session.WorkingDate.addDays(1 - state.range(0));
    const QByteArray sql =
        u"SELECT p.*, a.Title FROM postings p LEFT JOIN Accounts a ON a.Id=p.%1 WHERE Status=0 AND %2 AND "
        "Date BETWEEN '%3' AND '%4' ORDER BY Date, VID"_s
            .arg(QLatin1String(account), postings, first.toString(Qt::ISODate),
                 session.WorkingDate.toString(Qt::ISODate))
            .toUtf8();
    for (auto _ : state)
        state.counters["rows"] = bare::run(sql.constData());
}

void cashBookFloor(benchmark::State& state)
{
    joined(state, u"AccID=%1"_s.arg(GetAccountID(u"Cash"_s)), "RefID");
}

void dayBookFloor(benchmark::State& state) { joined(state, u"sr=1"_s, "AccID"); }

AccountBook longBook()
{
    AccountBook book(GetAccountID(u"Cash"_s), session.WorkingDate.addDays(-year), session.WorkingDate);
    book.lines.resize(statementRows);
    return book;
}

void statement(benchmark::State& state)
{
    const AccountBook book = longBook();
    QElapsedTimer clock;
    for (auto _ : state) {
        clock.start();
        const auto paper = StatementPaper(book, u"Cash"_s, u"a year"_s, true);
        report::Preview preview(*paper);
        opened(state, preview, clock);
    }
}

void statementToPdf(benchmark::State& state)
{
    const auto paper = StatementPaper(longBook(), u"Cash"_s, u"a year"_s, true);
    for (auto _ : state) {
        const report::Pages pages(*paper);
        state.counters["pages"] = pages.count();
        state.counters["bytes"] = static_cast<double>(report::pdf(pages, paper->Title).size());
    }
}

} // namespace

BENCHMARK(dues)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(duesFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(cashBook)->Arg(year)->Arg(allYears)->Unit(benchmark::kMillisecond);
BENCHMARK(cashBookFloor)->Arg(year)->Arg(allYears)->Unit(benchmark::kMillisecond);
BENCHMARK(dayBook)->Arg(month)->Arg(allYears)->Unit(benchmark::kMillisecond);
BENCHMARK(dayBookFloor)->Arg(month)->Arg(allYears)->Unit(benchmark::kMillisecond);
BENCHMARK(statement)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(statementToPdf)->Unit(benchmark::kMillisecond);
