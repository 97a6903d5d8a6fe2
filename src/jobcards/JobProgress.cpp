#include "jobcards/JobProgress.h"

#include "core/store/DE.h"

using namespace Qt::StringLiterals;

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
    ado::Recordset& card = DE.rsJobs2;
    card.Open(u"Select * from Jobs where id=%1"_s.arg(job));
    card["ClientDeliveryDate"] = day;
    card["JOBFINISHED"] = 1;
    card.Update();
    card.Close();
    ado::Recordset& lines = DE.rsJOBS_DETAIL;
    lines.Open(u"Select * from jobs_detail where JobID=%1"_s.arg(job));
    for (lines.MoveFirst(); !lines.AtEOF(); lines.MoveNext())
        enterState(lines, LineState::Delivered, day);
    lines.UpdateBatch();
    lines.Close();
}

void closeCard(qint32 job, const QDate& day)
{
    ado::Recordset& card = DE.rsJOBS;
    card.Open(u"Select * from jobs where id=%1"_s.arg(job));
    card["DeliveryDate"] = day;
    card["JOBFINISHED"] = 1;
    card.Update();
    card.Close();
}
