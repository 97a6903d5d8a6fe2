#include "FullShop.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "jobcards/JobCard.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

// A job card of 40 lines, from the file to a PDF: meant to take less than 200 ms.

namespace {

constexpr int lines = 40;

qint32 longCard()
{
    JobCard card;
    for (int i = 0; i < lines; ++i)
        card.JobRows.AddNewRow(0, FullShop::garments()[i % FullShop::garments().size()], i % 20 + 1, 1, 350,
                               350, u"For the wedding party, with the shop's own cloth"_s, {}, {}, 0, {}, {},
                               {}, {}, {}, 0, 0, 0, {}, {}, {}, u"16777215"_s, 0, {}, {});
    JobCardHead head;
    head.Number = JobCard::GetNewNum();
    head.Date = head.DeliveryDate = head.TrialDate = session.WorkingDate;
    head.Client = FullShop::clients().first();
    head.Total = Currency::fromDouble(350 * lines);
    card.SaveNew(head);
    return card.CurrentJobID;
}

void cardToPdf(benchmark::State& state)
{
    const qint32 card = longCard();
    for (auto _ : state) {
        const std::unique_ptr<report::Report> paper = JobCardPaper(card);
        const report::Pages pages(*paper);
        state.counters["pages"] = pages.count();
        state.counters["bytes"] = static_cast<double>(report::pdf(pages, u"Job card"_s).size());
    }
}

} // namespace

BENCHMARK(cardToPdf)->Unit(benchmark::kMillisecond);
