// The database layer beside the bare engine, on the full shop.
#include "Bare.h"
#include "FullShop.h"
#include "core/store/DE.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void lastCard(benchmark::State& state)
{
    for (auto _ : state) {
        DE.rsJOBS.Open(u"Select * from JOBS order by ID"_s);
        DE.rsJOBS.MoveLast();
        benchmark::DoNotOptimize(DE.rsJOBS["ID"].integer());
        DE.rsJOBS.Close();
    }
}
BENCHMARK(lastCard)->Unit(benchmark::kMicrosecond);

void lastCardFloor(benchmark::State& state)
{
    for (auto _ : state)
        bare::run("SELECT * FROM JOBS ORDER BY Id DESC LIMIT 1");
}
BENCHMARK(lastCardFloor)->Unit(benchmark::kMicrosecond);

void openToAppend(benchmark::State& state)
{
    for (auto _ : state) {
        DE.rspostings.Open(u"Select * from Postings order by ID"_s);
        DE.rspostings.AddNew();
        DE.rspostings.Close();
    }
}
BENCHMARK(openToAppend)->Unit(benchmark::kMicrosecond);

void titleOfAccount(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        DE.rsaccounts.Open(u"Select * from Accounts where ID="_s + QString::number(1 + i++ % 4));
        benchmark::DoNotOptimize(DE.rsaccounts["Title"].text());
        DE.rsaccounts.Close();
    }
}
BENCHMARK(titleOfAccount)->Unit(benchmark::kMicrosecond);

void titleOfAccountFloor(benchmark::State& state)
{
    for (auto _ : state)
        bare::run("SELECT * FROM Accounts WHERE ID=3");
}
BENCHMARK(titleOfAccountFloor)->Unit(benchmark::kMicrosecond);

void walkCards(benchmark::State& state)
{
    for (auto _ : state) {
        DE.rsJOBS.Open(u"Select * from JOBS"_s);
        for (; !DE.rsJOBS.AtEOF(); DE.rsJOBS.MoveNext())
            benchmark::DoNotOptimize(DE.rsJOBS["ClintName"].text());
        DE.rsJOBS.Close();
    }
}
BENCHMARK(walkCards)->Unit(benchmark::kMillisecond);

void walkCardsFloor(benchmark::State& state)
{
    for (auto _ : state)
        bare::run("SELECT * FROM JOBS");
}
BENCHMARK(walkCardsFloor)->Unit(benchmark::kMillisecond);

void sumOfPostings(benchmark::State& state)
{
    for (auto _ : state) {
        DE.rspostings.Open(u"Select sum(Amount) from Postings where status=0"_s);
        benchmark::DoNotOptimize(DE.rspostings[0].number());
        DE.rspostings.Close();
    }
}
BENCHMARK(sumOfPostings)->Unit(benchmark::kMillisecond);

void sumOfPostingsFloor(benchmark::State& state)
{
    for (auto _ : state)
        bare::run("SELECT total(Amount) FROM Postings WHERE status=0");
}
BENCHMARK(sumOfPostingsFloor)->Unit(benchmark::kMillisecond);

/// The rows that a card of five lines writes: its head, its lines, its voucher.
void saveCard(benchmark::State& state)
{
    int number = FullShop::cards;
    const QDate day(2024, 2, 10);
    for (auto _ : state) {
        DE.connection().writeBatch([&] {
            DE.rsJOBS.Open(u"Select * from JOBS"_s);
            DE.rsJOBS.AddNew();
            DE.rsJOBS["ID"] = ++number;
            DE.rsJOBS["ClintName"] = u"A client of the shop"_s;
            for (const char* field : {"ClintID", "AmountDue", "AmountPaid", "JOBFINISHED", "Status"})
                DE.rsJOBS[field] = 5;
            for (const char* field : {"Date", "DeliveryDate", "TrialDate"})
                DE.rsJOBS[field] = day;
            for (const char* field : {"Remark", "CancelReason"})
                DE.rsJOBS[field] = QString();
            DE.rsJOBS.UpdateBatch();
            DE.rsJOBS.Close();
            for (int line = 0; line < 5; ++line) {
                ado::Recordset& rows = DE.rsJOBS_DETAIL;
                rows.Open(u"Select * from jobs_detail"_s);
                rows.AddNew();
                for (const char* field : {"JobID", "ItemSr", "ClintID", "ItemID", "QNT", "Fees", "Amount"})
                    rows[field] = line;
                for (const char* field : {"Date", "JobDelDate", "CuttingDate"})
                    rows[field] = day;
                for (const char* field :
                     {"ClintName", "ItemName", "Remarks", "ItemDetails", "ItemDetailsValue"})
                    rows[field] = u"Length\r\nChest\r\nWaist"_s;
                rows.UpdateBatch();
                rows.Close();
            }
            for (int line = 1; line <= 4; ++line) {
                ado::Recordset& rows = DE.rspostings;
                rows.Open(u"Select * from Postings order by ID"_s);
                rows.AddNew();
                for (const char* field : {"VID", "vType", "Sr", "AccID", "RefID", "Amount", "Status"})
                    rows[field] = line;
                rows["Date"] = day;
                for (const char* field : {"particulars", "Remark"})
                    rows[field] = u"Job Card"_s;
                rows.UpdateBatch();
                rows.Close();
            }
        });
    }
}
BENCHMARK(saveCard)->Unit(benchmark::kMicrosecond);

void saveCardFloor(benchmark::State& state)
{
    for (auto _ : state) {
        bare::run("BEGIN IMMEDIATE");
        bare::run(
            "INSERT INTO JOBS (Id, ClintName, ClintID, AmountDue, AmountPaid, JobFinished, Status, Date, "
            "DeliveryDate, "
            "TrialDate, Remark, CancelReason) VALUES (1, 'A client of the shop', 5, 5, 5, 5, 5, "
            "'2024-02-10', "
            "'2024-02-10', '2024-02-10', '', '')");
        for (int line = 0; line < 5; ++line) {
            bare::run(
                "INSERT INTO JOBS_DETAIL (JobID, ItemSr, ClintID, ItemID, QNT, FEES, Amount, DATE, "
                "JobDelDate, "
                "CuttingDate, ClintName, ItemName, Remarks, ItemDetails, ItemDetailsValue) VALUES (1, 1, "
                "1, 1, 1, 1, "
                "1, '2024-02-10', '2024-02-10', '2024-02-10', 'Length Chest Waist', 'Length Chest "
                "Waist', 'Length "
                "Chest Waist', 'Length Chest Waist', 'Length Chest Waist')");
        }
        for (int line = 0; line < 4; ++line) {
            bare::run(
                "INSERT INTO postings (VID, Vtype, sr, AccID, RefID, Amount, Status, Date, particulars, "
                "Remark) VALUES "
                "(1, 1, 1, 1, 1, 1, 1, '2024-02-10', 'Job Card', 'Job Card')");
        }
        bare::run("COMMIT");
    }
}
BENCHMARK(saveCardFloor)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    benchmark::RunSpecifiedBenchmarks();
}
