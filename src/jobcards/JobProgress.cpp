#include "jobcards/JobProgress.h"

#include "core/store/Rows.h"

using namespace Qt::StringLiterals;

namespace {

QString cardQuery(qint32 job) { return u"Select * from Jobs where id=%1"_s.arg(job); }

bool allItemsInState(qint32 job, LineState state)
{
    return !any(
        u"Select ID from Jobs_Detail where JobID=%1 and DoneByWorker<>%2"_s.arg(job).arg(qint32(state)));
}

} // namespace

const char* dayColumn(LineState state)
{
    switch (state) {
    case LineState::Completed:
        return "CompletedDate";
    case LineState::Delivered:
        return "DelToCustDate";
    case LineState::Alteration:
        return "AltDate";
    default:
        return nullptr;
    }
}

void enterState(ado::Recordset& line, LineState state, const QDate& day)
{
    line["DoneByWorker"] = state;
    if (const char* column = dayColumn(state))
        line[column] = day;
}

void deliverCard(qint32 job, const QDate& day)
{
    changeRow(cardQuery(job), [&day](ado::Recordset& card) {
        card["ClientDeliveryDate"] = day;
        card["JOBFINISHED"] = 1;
    });
    changeRows(u"Select * from jobs_detail where JobID=%1"_s.arg(job),
               [&day](ado::Recordset& line) { enterState(line, LineState::Delivered, day); });
}

void closeCard(qint32 job, const QDate& day)
{
    changeRow(cardQuery(job), [&day](ado::Recordset& card) {
        card["DeliveryDate"] = day;
        card["JOBFINISHED"] = 1;
    });
}

bool AllItemsCompleted(qint32 jobId) { return allItemsInState(jobId, LineState::Completed); }

bool AllItemsDelivered(qint32 jobId) { return allItemsInState(jobId, LineState::Delivered); }
