#include "jobcards/JobCard.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/SerialNumber.h"
#include "core/store/Settings.h"
#include "core/store/Voucher.h"
#include "platform/values/Errors.h"

using namespace Qt::StringLiterals;

namespace {

QString cardQuery(qint32 number) { return u"Select * from jobs where id="_s + QString::number(number); }

void refuseTakenNumber(qint32 number)
{
    if (any(cardQuery(number)))
        throw OperatorError(u"Job ID %1 is already taken by another job card."_s.arg(number));
}

} // namespace

QString JobCardHead::dateNotice() const
{
    constexpr int tenMonths = 304; // days
    QStringList early;
    QStringList notices;
    for (const auto& [name, day] :
         {std::pair(u"Delivery"_s, DeliveryDate), std::pair(u"Trial"_s, TrialDate)}) {
        if (day < Date)
            early += name;
        else if (day > Date.addDays(tenMonths))
            notices += u"%1 is %2 days after the card's date"_s.arg(name).arg(Date.daysTo(day));
    }
    if (!early.isEmpty())
        notices.prepend(early.join(u" and "_s).toLower() + (early.size() > 1 ? u" are"_s : u" is"_s) +
                        u" before the card's date"_s);
    QString notice = notices.join(u"  ·  "_s);
    if (!notice.isEmpty())
        notice[0] = notice[0].toUpper();
    return notice;
}

qint32 JobCard::GetNewNum()
{
    qint32 last = values::CLng(GetNumber(settings::FirstJobNumber) - 1, u"First JOB ID"_s);
    lastRow(u"Select * from JOBS order by ID"_s,
            [&last](ado::Recordset& job) { last = job["ID"].integer(); });
    return values::toInt32(qint64(last) + 1, u"Next JOB ID"_s);
}

void JobCard::LoadLines()
{
    each(u"Select * from jobs_detail where JOBID="_s + number() + u" Order by ItemSr"_s,
         [this](ado::Recordset& line) {
             const qint32 itemID = line["ItemID"].integer();
             JobRows.AddNewRow(line["ID"].integer(), GetItemName(itemID), itemID, line["QNT"].integer(),
                               line["Fees"].number(), line["Amount"].number(), line["Remarks"].text(),
                               line["ItemDetails"].text(), line["ItemDetailsValue"].text(), 0, {}, {}, {}, {},
                               {}, 0, 0, 0, {}, line["img1"].text(), line["img2"].text(),
                               line["Color"].text(), 0, {}, line["ClientRemarks"].text());
         });
}

void JobCard::RemoveLine(int row)
{
    if (!RemovedLineIDs.isEmpty())
        RemovedLineIDs += u',';
    RemovedLineIDs += QString::number(JobRows.Sr(row));
    JobRows.RemoveRow(row);
}

void JobCard::Clear()
{
    JobRows = clsJobCardData();
    RemovedLineIDs.clear();
}

void JobCard::SaveNew(const JobCardHead& head)
{
    write([&] {
        if (!isSerialNumber(head.Number))
            throw serialNumberRefused(u"JOB ID"_s);
        refuseTakenNumber(head.Number);
        const qint32 clientID = GetAccountID(head.Client);
        addRow(u"JOBS"_s, [&](ado::Recordset& job) {
            job["ID"] = head.Number;
            fillHead(job, head, clientID);
        });
        CurrentJobID = head.Number;
        EditMode = RecordMode::Stored;
        for (int row = 1; row <= JobRows.RowCount(); ++row)
            JobRows.SetSr(row, addLine(row, head, clientID));
        writeVoucher(head, clientID);
        if (head.Cancelled)
            cancelLines();
    });
    RemovedLineIDs.clear();
}

void JobCard::SaveEdit(const JobCardHead& head)
{
    write([&] {
        const qint32 clientID = GetAccountID(head.Client);
        changeRow(cardQuery(CurrentJobID), [&](ado::Recordset& job) { fillHead(job, head, clientID); });
        for (int row = 1; row <= JobRows.RowCount(); ++row) {
            // A line added to a stored card keeps Sr 0: each further save adds it again.
            if (JobRows.Sr(row) > 0)
                updateLine(row, head, clientID);
            else
                addLine(row, head, clientID);
        }
        deleteRemovedLines();
        Voucher(VoucherType::Job, CurrentJobID).Delete();
        writeVoucher(head, clientID);
        if (head.Cancelled)
            cancelLines();
    });
}

void JobCard::Delete()
{
    write([&] {
        auto& connection = DE.connection();
        connection.Execute(u"Delete from Jobs where id="_s + number());
        connection.Execute(u"Delete from Jobs_detail where jobid="_s + number());
        Voucher(VoucherType::Job, CurrentJobID).Delete();
    });
}

void JobCard::write(const std::function<void()>& work)
{
    const JobCard before = *this;
    try {
        DE.connection().writeBatch(work);
    } catch (...) {
        *this = before;
        throw;
    }
}

void JobCard::fillHead(ado::Recordset& job, const JobCardHead& head, qint32 clientID)
{
    job["Date"] = head.Date;
    job["ClintID"] = clientID;
    job["ClintName"] = head.Client;
    job["DeliveryDate"] = head.DeliveryDate;
    job["trialdate"] = head.TrialDate;
    job["AmountDue"] = head.Total;
    job["AmountPaid"] = head.Paid;
    job["JOBFINISHED"] = int(head.Delivered);
    job["Remark"] = head.Remark;
    if (head.Paid > Currency())
        job["CashAccID"] = GetAccountID(head.ReceiptAccount);
    job["Status"] = int(head.Cancelled);
    job["CancelReason"] = head.CancelReason;
}

/// Sets what a save always writes of a line.
void JobCard::fillLine(ado::Recordset& line, int row, const JobCardHead& head, qint32 clientID) const
{
    line["Date"] = head.Date;
    line["JobID"] = CurrentJobID;
    line["ItemSr"] = row;
    line["ClintID"] = clientID;
    line["ClintName"] = head.Client;
    line["ItemID"] = JobRows.ItemID(row);
    line["ItemName"] = JobRows.ItemName(row);
    line["Remarks"] = JobRows.Remarks(row);
    line["QNT"] = JobRows.Qty(row);
    line["Fees"] = JobRows.Fees(row);
    line["Amount"] = JobRows.Amount(row);
    line["img1"] = JobRows.img1(row);
    line["img2"] = JobRows.img2(row);
    const QString color = JobRows.Color(row);
    line["Color"] = color.isEmpty() ? ado::Null : QVariant(values::Val(color));
    line["ItemDetails"] = JobRows.ItemDetails(row);
    line["ItemDetailsValue"] = JobRows.ItemDetailsValue(row);
    line["ClientRemarks"] = JobRows.ClientRemarks(row);
}

/// Returns the number that the new line got.
qint32 JobCard::addLine(int row, const JobCardHead& head, qint32 clientID)
{
    return addRow(u"jobs_detail"_s, [&](ado::Recordset& line) {
        fillLine(line, row, head, clientID);
        line["WorkerID"] = 0;
        line["JobDelDate"] = head.DeliveryDate;
        line["CompletedDate"] = ado::Null;
        line["DelToCustDate"] = ado::Null;
        line["AltDate"] = ado::Null;
        line["DoneByWorker"] = LineState::Uncompleted;
        // The catalogue's wage for one piece, whatever the quantity.
        line["WorkerWagesDue"] = GetItemWorkerFees(JobRows.ItemName(row));
        line["CuttingDate"] = head.Date;
        line["CuttingStatus"] = CuttingMark::NotDone;
    });
}

/// Leaves alone what became of the line since it was taken: worker, dates, state, wage and payroll, place,
/// feedback.
void JobCard::updateLine(int row, const JobCardHead& head, qint32 clientID)
{
    changeRow(u"Select * from jobs_detail where id="_s + QString::number(JobRows.Sr(row)),
              [&](ado::Recordset& line) { fillLine(line, row, head, clientID); });
}

/// The sale, and the money taken with the order.
void JobCard::writeVoucher(const JobCardHead& head, qint32 clientID)
{
    Voucher voucher(VoucherType::Job, CurrentJobID);
    const PostingMarks marks{.cancelled = head.Cancelled};
    PostingPair pair{.particulars = u"Sales"_s,
                     .date = head.Date,
                     .account = clientID,
                     .opposite = GetAccountID(u"Sales"_s),
                     .amount = -head.Total,
                     .remark = u"Job Card # :"_s + number()};
    voucher.AddPair(pair, marks);
    if (head.Paid > Currency()) {
        pair.particulars = u"Receipt"_s;
        pair.account = GetAccountID(head.ReceiptAccount);
        pair.opposite = clientID;
        pair.amount = -head.Paid;
        voucher.AddPair(pair, marks);
    }
}

/// The statement takes one line; the engine refuses it for two.
void JobCard::deleteRemovedLines()
{
    if (RemovedLineIDs.isEmpty())
        return;
    try {
        DE.connection().Execute(u"Delete from jobs_detail where Id="_s + RemovedLineIDs);
    } catch (OperatorError& error) {
        if (RemovedLineIDs.contains(u','))
            error.putBefore(u"Two lines were removed before one save. Please open the card anew, and save it "
                            "after each line that you remove."_s);
        throw;
    }
    RemovedLineIDs.clear();
}

void JobCard::cancelLines()
{
    changeRows(u"Select * from jobs_detail where JobID="_s + number(),
               [](ado::Recordset& line) { line["DoneByWorker"] = LineState::Canceled; });
}

StoredCard StoredCard::read(qint32 number)
{
    StoredCard card;
    withRows(cardQuery(number), [&card](ado::Recordset& job) {
        card.head.Date = job["Date"].date();
        card.head.Client = GetAccountTitle(job["ClintID"].integer());
        if (const qint32 account = job["CashAccID"].integer(); account > 0)
            card.head.ReceiptAccount = GetAccountTitle(account);
        card.head.DeliveryDate = job["DeliveryDate"].date();
        card.head.TrialDate = job["trialdate"].date();
        card.head.Total = job["AmountDue"].money();
        card.head.Paid = job["AmountPaid"].money();
        card.head.Delivered = job["JOBFINISHED"].integer() == 1;
        card.head.Remark = job["Remark"].text();
        card.head.Cancelled = job["Status"].integer() != 0;
        card.head.CancelReason = job["CancelReason"].text();
        card.handedOver = job["ClientDeliveryDate"].date();
        card.trial = job["appeared"].code<TrialState>();
        card.appeared = job["appearedDate"].date();
    });
    return card;
}

std::optional<Visit> Visit::last(qint32 client)
{
    std::optional<Visit> visit;
    lastRow(u"Select * from Jobs where ClintID="_s + QString::number(client), [&visit](ado::Recordset& job) {
        visit = Visit{job["ID"].text(), job["Date"].date()};
    });
    return visit;
}
