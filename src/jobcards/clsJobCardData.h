#pragma once

#include "platform/values/Literals.h"
#include "platform/values/Numbers.h"

#include <QDate>
#include <QString>
#include <vector>

/// The item lines of the job card that is open on the screen; they reach the file when the card is saved.
///
/// Rows are numbered from 1 to RowCount(), in the order of the card's list. Row 0 exists and stays empty.
///
/// Whole-number fields and row numbers are 16 bits wide: a number that does not fit throws OverflowError and
/// changes nothing. A row number above RowCount() shows the plain box "Index Out of Bound!": a getter then
/// gives the empty value of its type, a setter changes nothing. A negative row number throws SubscriptError.
class clsJobCardData
{
public:
    qint16 RowCount() const { return m_rowCount; }
    /// Changes the number alone; the rows behind it follow with the next row that is added or removed.
    void SetRowCount(qint64 count) { m_rowCount = values::toInt16(count, RowNumber); }

    /// Adds a row at the end. `sr` is the number of the stored line, 0 for a line that is not stored yet.
    /// Throws OverflowError, also for a row past 32767.
    void AddNewRow(qint64 sr, const QString& itemName, qint64 itemID, qint64 qty, double fees, double amount,
                   const QString& remarks, const QString& itemDetails, const QString& itemDetailsValue,
                   qint64 workerID, const QString& workerName, const QDate& jobDelDate,
                   const QDate& completedDate, const QDate& altDate, const QDate& delToCustDate,
                   qint64 doneByWorker, double workerWagesDue, qint64 markAsPaid, const QString& loc,
                   const QString& img1, const QString& img2, const QString& color, qint64 score,
                   const QString& clientFeedBack, const QString& clientRemarks);

    qint16 Sr(qint64 index) const { return read(index, &Row::Sr); }
    QString ItemName(qint64 index) const { return read(index, &Row::ItemName); }
    qint16 ItemID(qint64 index) const { return read(index, &Row::ItemID); }
    qint16 Qty(qint64 index) const { return read(index, &Row::Qty); }
    double Fees(qint64 index) const { return read(index, &Row::Fees); }
    double Amount(qint64 index) const { return read(index, &Row::Amount); }
    QString Remarks(qint64 index) const { return read(index, &Row::Remarks); }
    QString ItemDetails(qint64 index) const { return read(index, &Row::ItemDetails); }
    QString ItemDetailsValue(qint64 index) const { return read(index, &Row::ItemDetailsValue); }
    qint16 WorkerID(qint64 index) const { return read(index, &Row::WorkerID); }
    QString WorkerName(qint64 index) const { return read(index, &Row::WorkerName); }
    QDate JobDelDate(qint64 index) const { return read(index, &Row::JobDelDate); }
    QDate CompletedDate(qint64 index) const { return read(index, &Row::CompletedDate); }
    QDate AltDate(qint64 index) const { return read(index, &Row::AltDate); }
    QDate DelToCustDate(qint64 index) const { return read(index, &Row::DelToCustDate); }
    qint16 DoneByWorker(qint64 index) const { return read(index, &Row::DoneByWorker); }
    double WorkerWagesDue(qint64 index) const { return read(index, &Row::WorkerWagesDue); }
    qint16 MarkAsPaid(qint64 index) const { return read(index, &Row::MarkAsPaid); }
    QString Loc(qint64 index) const { return read(index, &Row::Loc); }
    QString img1(qint64 index) const { return read(index, &Row::img1); }
    QString img2(qint64 index) const { return read(index, &Row::img2); }
    QString Color(qint64 index) const { return read(index, &Row::Color); }
    qint16 Score(qint64 index) const
    {
        return values::CInt(values::Val(read(index, &Row::Score)), ScoreNumber);
    }
    QString ClientFeedBack(qint64 index) const { return read(index, &Row::ClientFeedBack); }
    QString ClientRemarks(qint64 index) const { return read(index, &Row::ClientRemarks); }

    void SetSr(qint64 index, qint64 value) { write(index, &Row::Sr, values::toInt16(value, LineNumber)); }
    void SetItemName(qint64 index, const QString& value) { write(index, &Row::ItemName, value); }
    void SetItemID(qint64 index, qint64 value)
    {
        write(index, &Row::ItemID, values::toInt16(value, ItemNumber));
    }
    void SetQty(qint64 index, qint64 value) { write(index, &Row::Qty, values::toInt16(value, Quantity)); }
    void SetFees(qint64 index, double value) { write(index, &Row::Fees, value); }
    void SetAmount(qint64 index, double value) { write(index, &Row::Amount, value); }
    void SetRemarks(qint64 index, const QString& value) { write(index, &Row::Remarks, value); }
    void SetItemDetails(qint64 index, const QString& value) { write(index, &Row::ItemDetails, value); }
    void SetItemDetailsValue(qint64 index, const QString& value)
    {
        write(index, &Row::ItemDetailsValue, value);
    }
    void SetWorkerID(qint64 index, qint64 value)
    {
        write(index, &Row::WorkerID, values::toInt16(value, WorkerNumber));
    }
    void SetWorkerName(qint64 index, const QString& value) { write(index, &Row::WorkerName, value); }
    void SetJobDelDate(qint64 index, const QDate& value) { write(index, &Row::JobDelDate, value); }
    void SetCompletedDate(qint64 index, const QDate& value) { write(index, &Row::CompletedDate, value); }
    void SetAltDate(qint64 index, const QDate& value) { write(index, &Row::AltDate, value); }
    void SetDelToCustDate(qint64 index, const QDate& value) { write(index, &Row::DelToCustDate, value); }
    void SetDoneByWorker(qint64 index, qint64 value)
    {
        write(index, &Row::DoneByWorker, values::toInt16(value, LineState));
    }
    void SetWorkerWagesDue(qint64 index, double value) { write(index, &Row::WorkerWagesDue, value); }
    void setMarkAsPaid(qint64 index, qint64 value)
    {
        write(index, &Row::MarkAsPaid, values::toInt16(value, PaidMark));
    }
    void SetLoc(qint64 index, const QString& value) { write(index, &Row::Loc, value); }
    void SetImg1(qint64 index, const QString& value) { write(index, &Row::img1, value); }
    void SetImg2(qint64 index, const QString& value) { write(index, &Row::img2, value); }
    void SetColor(qint64 index, const QString& value) { write(index, &Row::Color, value); }
    void SetScore(qint64 index, qint64 value) { write(index, &Row::Score, scoreText(value)); }
    void SetClientFeedBack(qint64 index, const QString& value) { write(index, &Row::ClientFeedBack, value); }
    void SetClientRemarks(qint64 index, const QString& value) { write(index, &Row::ClientRemarks, value); }

    /// Adds a copy of a row at the end, its `Sr` included: the copy stands for the same stored line. Throws
    /// SubscriptError when there is no such row, and OverflowError past row 32767.
    void Copy(qint64 index);
    /// Takes a row out; those behind it move up. Above RowCount() nothing happens; below 1 throws
    /// SubscriptError.
    void RemoveRow(qint32 index);

private:
    // What the operator calls the numbers.
    static inline const QString LineNumber = u"Line number"_s;
    static inline const QString ItemNumber = u"Item number"_s;
    static inline const QString Quantity = u"Quantity"_s;
    static inline const QString WorkerNumber = u"Worker number"_s;
    static inline const QString LineState = u"State of the line"_s;
    static inline const QString PaidMark = u"Paid mark"_s;
    static inline const QString ScoreNumber = u"Score"_s;
    static inline const QString RowNumber = u"Number of lines"_s;

    struct Row
    {
        qint16 Sr = 0;
        QString ItemName;
        qint16 ItemID = 0;
        qint16 Qty = 0;
        double Fees = 0;
        double Amount = 0;
        QString Remarks;
        QString ItemDetails;
        QString ItemDetailsValue;
        qint16 WorkerID = 0;
        QString WorkerName;
        QDate JobDelDate;
        QDate CompletedDate;
        QDate AltDate;
        QDate DelToCustDate;
        qint16 DoneByWorker = 0;
        double WorkerWagesDue = 0;
        qint16 MarkAsPaid = 0;
        QString Loc;
        QString img1;
        QString img2;
        QString Color;
        QString Score;
        QString ClientFeedBack;
        QString ClientRemarks;
    };

    /// The empty value, with the message, when the row number is above RowCount().
    template <typename Value>
    Value read(qint64 index, Value Row::*field) const
    {
        return within(index) ? m_rows[position(index)].*field : Value();
    }
    template <typename Value>
    void write(qint64 index, Value Row::*field, const Value& value)
    {
        if (within(index))
            m_rows[position(index)].*field = value;
    }

    static QString scoreText(qint64 score) { return QString::number(values::toInt16(score, ScoreNumber)); }
    bool within(qint64 index) const;
    /// Throws SubscriptError when the row is not there.
    size_t position(qint64 index) const;
    void append(const Row& row);
    void resize(qint16 rowCount);

    qint16 m_rowCount = 0;
    std::vector<Row> m_rows = std::vector<Row>(1);
};
