#include "FullShop.h"
#include "OnScreen.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "jobcards/ItemDetails.h"
#include "jobcards/JobCard.h"
#include "jobcards/clsJobCardData.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "platform/forms/ComboBox.h"

#include <QApplication>
#include <QLabel>
#include <benchmark/benchmark.h>
#define SQLITE_HAS_CODEC
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

// The job card in a shop of 32,000 lines and 8,000 clients. Saving a card of five lines with money taken is
// meant to cost at most 2 times the same rows written through the bare C API in one transaction; choosing a
// client, banner included, less than a frame (16 ms); the program with that shop open and the card on screen
// less than 120 MB.

namespace {

constexpr int lines = 5;
constexpr int account = 5;
constexpr int sales = 2;
constexpr int cash = 4;
constexpr qint32 clientWithoutOrders = 1;

JobCard fiveLines()
{
    JobCard card;
    for (int i = 0; i < lines; ++i)
        card.JobRows.AddNewRow(0, FullShop::garments()[i], i + 1, 1, 350, 350, QString(),
                               u"Length\r\nChest"_s, u"28\r\n40"_s, 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {},
                               {}, u"16777215"_s, 0, {}, {});
    return card;
}

JobCardHead paidHead()
{
    JobCardHead head;
    head.Number = JobCard::GetNewNum();
    head.Date = head.DeliveryDate = head.TrialDate = session.WorkingDate;
    head.Client = FullShop::clients().first();
    head.Total = Currency::fromDouble(1750);
    head.Paid = Currency::fromDouble(500);
    head.ReceiptAccount = u"Cash"_s;
    return head;
}

void saveCard(benchmark::State& state)
{
    for (auto _ : state) {
        JobCard card = fiveLines();
        card.SaveNew(paidHead());
    }
}

/// One prepared statement of the bare C API.
class BareStatement
{
public:
    explicit BareStatement(const char* sql)
    {
        if (sqlite3_prepare_v2(DE.connection().handle(), sql, -1, &m_statement, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(DE.connection().handle()));
    }
    ~BareStatement() { sqlite3_finalize(m_statement); }
    BareStatement(const BareStatement&) = delete;
    BareStatement& operator=(const BareStatement&) = delete;

    void run(std::initializer_list<double> numbers)
    {
        int parameter = 0;
        for (const double number : numbers)
            sqlite3_bind_double(m_statement, ++parameter, number);
        if (sqlite3_step(m_statement) != SQLITE_DONE)
            qFatal("%s", sqlite3_errmsg(DE.connection().handle()));
        sqlite3_reset(m_statement);
    }

private:
    sqlite3_stmt* m_statement = nullptr;
};

void bareRows(benchmark::State& state)
{
    sqlite3* database = DE.connection().handle();
    int card = JobCard::GetNewNum();
    for (auto _ : state) {
        sqlite3_exec(database, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        {
            BareStatement head(
                "INSERT INTO JOBS (Id, DATE, ClintID, ClintName, DeliveryDate, TrialDate, AmountDue, "
                "AmountPaid, JobFinished, Remark, CashAccID, Status, CancelReason) VALUES (?1, '2024-02-10', "
                "5, 'Asha Client 0', '2024-02-10', '2024-02-10', 1750, 500, 0, '', 4, 0, '')");
            BareStatement line(
                "INSERT INTO JOBS_DETAIL (DATE, JobID, ItemSr, ClintID, ClintName, ItemID, ItemName, "
                "Remarks, "
                "QNT, FEES, Amount, Img1, Img2, color, ItemDetails, ItemDetailsValue, WorkerID, JobDelDate, "
                "DoneByWorker, WorkerWagesDue, ClientRemarks, CuttingDate, CuttingStatus) VALUES "
                "('2024-02-10', ?1, ?2, 5, 'Asha Client 0', ?2, 'Garment 1', '', 1, 350, 350, '', '', "
                "16777215, "
                "'Length Chest', '28 40', 0, '2024-02-10', 0, 120, '', '2024-02-10', 0)");
            BareStatement posting(
                "INSERT INTO postings (VID, Vtype, sr, Date, AccID, RefID, particulars, Remark, Amount, "
                "Status) VALUES (?1, 1, ?2, '2024-02-10', ?3, ?4, 'Sales', 'Job Card # :1', ?5, 0)");
            head.run({double(card)});
            for (int i = 1; i <= lines; ++i)
                line.run({double(card), double(i)});
            posting.run({double(card), 1, account, sales, -1750});
            posting.run({double(card), 2, sales, account, 1750});
            posting.run({double(card), 3, cash, account, -500});
            posting.run({double(card), 4, account, cash, 500});
        }
        sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
        ++card;
    }
}

/// Opens a new card and leaves the client's box again and again with another client in it.
void chooseClient(benchmark::State& state)
{
    frmEditJOB screen;
    onScreen(
        screen, [&] { screen.ShowAddNew(); },
        [&] {
            auto* client = screen.findChild<forms::ComboBox*>(u"cmbClient"_s);
            auto* next = screen.findChild<QWidget*>(u"txtAmountPaid"_s);
            qsizetype number = 0;
            for (auto _ : state) {
                number = (number + 4001) % FullShop::clients().size();
                client->setText(FullShop::clients()[number]);
                next->setFocus();
                QApplication::sendPostedEvents();
                screen.repaint();
                state.PauseTiming();
                client->setFocus();
                client->closeUp();
                state.ResumeTiming();
            }
            if (!screen.findChild<QLabel*>(u"lblLastvisit"_s)->text().contains(FullShop::clients()[number]))
                state.SkipWithError("the banner does not greet the client");
        });
}

/// Measurements typed on through the grid: each a digit that is painted, then Enter, which looks at all of
/// them again.
void typeMeasurement(benchmark::State& state)
{
    clsJobCardData rows;
    frmAddItem screen;
    onScreen(
        screen, [&] { screen.ItemDetails(rows, clientWithoutOrders); },
        [&] {
            auto* item = screen.findChild<forms::ComboBox*>(u"cmbItems"_s);
            item->setText(FullShop::garments()[2]); // twelve measurements
            pressKey(*item, Qt::Key_Return);
            const auto& grid = *screen.findChild<ItemDetails*>();
            for (int row = 0; auto _ : state) {
                auto* value = screen.findChild<QWidget*>(u"txtValue_%1"_s.arg(row));
                pressKey(*value, Qt::Key_9, u"9"_s);
                screen.repaint();
                pressKey(*value, Qt::Key_Return);
                screen.repaint();
                row = (row + 1) % grid.Count();
            }
        });
}

/// A garment is chosen: its measurements come, and what the shop knows of them.
void chooseGarment(benchmark::State& state)
{
    clsJobCardData rows;
    frmAddItem screen;
    onScreen(
        screen, [&] { screen.ItemDetails(rows, clientWithoutOrders); },
        [&] {
            auto* item = screen.findChild<forms::ComboBox*>(u"cmbItems"_s);
            for (int garment = 0; auto _ : state) {
                item->setFocus();
                item->setText(FullShop::garments()[garment = (garment + 7) % 20]);
                pressKey(*item, Qt::Key_Return);
                screen.repaint();
            }
        });
}

} // namespace

// The numbers of lines end at 32,767: what the two write must fit in.
BENCHMARK(bareRows)->Unit(benchmark::kMicrosecond)->Iterations(10)->Repetitions(6);
BENCHMARK(saveCard)->Unit(benchmark::kMicrosecond)->Iterations(10)->Repetitions(6);
BENCHMARK(chooseClient)->Unit(benchmark::kMicrosecond)->Iterations(200);
BENCHMARK(typeMeasurement)->Unit(benchmark::kMicrosecond)->Iterations(200);
BENCHMARK(chooseGarment)->Unit(benchmark::kMicrosecond)->Iterations(100);
