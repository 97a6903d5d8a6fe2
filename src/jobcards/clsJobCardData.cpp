#include "jobcards/clsJobCardData.h"

#include "platform/values/Errors.h"
#include "platform/values/Notice.h"

using namespace Qt::StringLiterals;

void clsJobCardData::AddNewRow(qint64 sr, const QString& itemName, qint64 itemID, qint64 qty, double fees,
                               double amount, const QString& remarks, const QString& itemDetails,
                               const QString& itemDetailsValue, qint64 workerID, const QString& workerName,
                               const QDate& jobDelDate, const QDate& completedDate, const QDate& altDate,
                               const QDate& delToCustDate, qint64 doneByWorker, double workerWagesDue,
                               qint64 markAsPaid, const QString& loc, const QString& img1,
                               const QString& img2, const QString& color, qint64 score,
                               const QString& clientFeedBack, const QString& clientRemarks)
{
    append({.Sr = values::toInt16(sr, LineNumber),
            .ItemName = itemName,
            .ItemID = values::toInt16(itemID, ItemNumber),
            .Qty = values::toInt16(qty, Quantity),
            .Fees = fees,
            .Amount = amount,
            .Remarks = remarks,
            .ItemDetails = itemDetails,
            .ItemDetailsValue = itemDetailsValue,
            .WorkerID = values::toInt16(workerID, WorkerNumber),
            .WorkerName = workerName,
            .JobDelDate = jobDelDate,
            .CompletedDate = completedDate,
            .AltDate = altDate,
            .DelToCustDate = delToCustDate,
            .DoneByWorker = values::toInt16(doneByWorker, LineState),
            .WorkerWagesDue = workerWagesDue,
            .MarkAsPaid = values::toInt16(markAsPaid, PaidMark),
            .Loc = loc,
            .img1 = img1,
            .img2 = img2,
            .Color = color,
            .Score = scoreText(score),
            .ClientFeedBack = clientFeedBack,
            .ClientRemarks = clientRemarks});
}

void clsJobCardData::Copy(qint64 index) { append(Row(m_rows[position(values::toInt16(index, RowNumber))])); }

void clsJobCardData::RemoveRow(qint32 index)
{
    if (index > m_rowCount)
        return;
    if (index < 1)
        throw SubscriptError();
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(position(index)));
    resize(static_cast<qint16>(m_rowCount - 1));
}

bool clsJobCardData::within(qint64 index) const
{
    if (values::toInt16(index, RowNumber) <= m_rowCount)
        return true;
    values::criticalNotice(u"Index Out of Bound!"_s);
    return false;
}

size_t clsJobCardData::position(qint64 index) const
{
    if (index < 0 || index >= static_cast<qint64>(m_rows.size()))
        throw SubscriptError();
    return static_cast<size_t>(index);
}

void clsJobCardData::append(const Row& row)
{
    resize(values::toInt16(m_rowCount + 1, RowNumber));
    m_rows.back() = row;
}

void clsJobCardData::resize(qint16 rowCount)
{
    if (rowCount < 0)
        throw SubscriptError();
    m_rows.resize(static_cast<size_t>(rowCount) + 1);
    m_rowCount = rowCount;
}
