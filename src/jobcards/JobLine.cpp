#include "jobcards/JobLine.h"

#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"
#include "jobcards/JobProgress.h"

using namespace Qt::StringLiterals;

namespace {

QString lineQuery(qint32 line) { return u"Select * from jobs_detail where id=%1"_s.arg(line); }

} // namespace

JobLine JobLine::read(qint32 id)
{
    JobLine line;
    withRows(lineQuery(id), [&](ado::Recordset& row) {
        line = {.id = id,
                .job = row["JobID"].text(),
                .booked = row["Date"].date(),
                .client = row["ClintID"].integer(),
                .item = row["ItemID"].integer(),
                .worker = row["WorkerID"].integer(),
                .quantity = row["QNT"].text(),
                .location = row["Loc"].text(),
                .remark = row["Remarks"].text(),
                .clientRemark = row["ClientRemarks"].text(),
                .measurementNames = row["ItemDetails"].text(),
                .measurementValues = row["ItemDetailsValue"].text(),
                .state = row["DoneByWorker"].code<LineState>(),
                .completed = row["CompletedDate"].date(),
                .delivered = row["DelToCustDate"].date(),
                .altered = row["AltDate"].date(),
                .cut = row["CuttingStatus"].code<CuttingMark>() == CuttingMark::Done,
                .cutting = row["CuttingDate"].date(),
                .promised = row["JobDelDate"].date(),
                .wage = row["WorkerWagesDue"].money(),
                .paid = row["MarkAsPaid"].integer() == 1,
                .payroll = row["PayrollID"].integer(),
                .picture1 = row["img1"].text(),
                .picture2 = row["img2"].text(),
                .colour = row["Color"].text()};
    });
    return line;
}

QDate JobLine::dayOf(LineState entered) const
{
    switch (entered) {
    case LineState::Completed:
        return completed;
    case LineState::Delivered:
        return delivered;
    case LineState::Alteration:
        return altered;
    default:
        return {};
    }
}

QDate JobLine::paidOn() const
{
    QDate day;
    if (paid && payroll != 0)
        firstRow(u"Select * from Postings where vType=%1 and VID=%2"_s.arg(qint32(VoucherType::Entry))
                     .arg(payroll),
                 [&day](ado::Recordset& voucher) { day = voucher["Date"].date(); });
    return day;
}

std::optional<EarlierOrder> EarlierOrder::find(const QDate& before, qint32 item, qint32 client)
{
    std::optional<EarlierOrder> order;
    lastRow(u"Select * from JOBS_DETAIL where DATE<#%1# and ItemID=%2 and ClintID=%3"_s.arg(dateText(before))
                .arg(item)
                .arg(client),
            [&order](ado::Recordset& line) {
                order = EarlierOrder{line["JobID"].text(), line["Date"].date(), line["WorkerID"].integer()};
            });
    return order;
}

void Assignment::write(qint32 line, const QDate& day) const
{
    changeRow(lineQuery(line), [&](ado::Recordset& row) {
        if (worker.isEmpty()) {
            row["WorkerID"] = 0;
        } else {
            row["WorkerID"] = GetAccountID(worker);
            row["WorkerName"] = worker;
        }
        if (state)
            enterState(row, *state, day);
        row["CuttingStatus"] = cut ? CuttingMark::Done : CuttingMark::NotDone;
        row["CuttingDate"] = cutting;
        row["WorkerWagesDue"] = wage;
        row["MarkAsPaid"] = int(paid);
        row["Loc"] = location;
    });
}

QStringList placesUsedLately(int most)
{
    constexpr int linesLookedAt = 3000;
    QStringList places;
    each(u"Select Loc, max(max(ifnull(CompletedDate, ''), ifnull(AltDate, ''))) as used, max(ID) as line "
         "from (Select * from Jobs_Detail order by ID desc limit %1) where trim(Loc)<>'' "
         "group by Loc order by used desc, line desc limit %2"_s.arg(linesLookedAt)
             .arg(most),
         [&places](ado::Recordset& row) { places << row["Loc"].text(); });
    return places;
}

void markCut(qint32 line, const QDate& day)
{
    changeRow(lineQuery(line), [&day](ado::Recordset& row) {
        row["CuttingStatus"] = CuttingMark::Done;
        row["CuttingDate"] = day;
    });
}

void markState(qint32 line, LineState state, const QDate& day, const QString& location)
{
    changeRow(lineQuery(line), [&](ado::Recordset& row) {
        enterState(row, state, day);
        if (!location.isEmpty())
            row["Loc"] = location;
    });
}
