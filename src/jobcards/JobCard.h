#pragma once

#include "core/store/Codes.h"
#include "jobcards/clsJobCardData.h"
#include "platform/values/Currency.h"
#include "platform/values/Literals.h"

#include <QDate>
#include <QString>
#include <functional>
#include <optional>

namespace ado {
class Recordset;
}

/// The head of a job card as it is to be stored.
struct JobCardHead
{
    qint32 Number = 0; ///< of a new card; a stored card keeps the number that it has
    QDate Date;
    QString Client; ///< title of the client's account
    QDate DeliveryDate;
    QDate TrialDate;
    Currency Total;
    Currency Paid; ///< received with the card
    bool Delivered = false;
    QString Remark;
    QString ReceiptAccount; ///< title of the account that took the money; only read when something was paid
    bool Cancelled = false;
    QString CancelReason;

    bool operator==(const JobCardHead&) const = default;

    /// Which of the promised dates can hardly be meant: those before the card's own, and those more than ten
    /// months behind it. Empty when all are well.
    QString dateNotice() const;
};

/// A card as it stands in the file, without its lines.
struct StoredCard
{
    JobCardHead head;
    QDate handedOver; ///< to the client; invalid where that was not recorded
    TrialState trial = TrialState::NotAppeared;
    QDate appeared; ///< for the trial; invalid where that was not recorded

    /// Throws ado::DatabaseError, and ado::NoCurrentRecordError for a card that is gone.
    static StoredCard read(qint32 number);
};

/// An order of a client: number and day of its card.
struct Visit
{
    QString job;
    QDate day;

    /// The latest entered; nothing for a client without one.
    static std::optional<Visit> last(qint32 client);
};

/// The one job card that is open: its lines, and what its saves must know of them. A card is written as head,
/// lines and voucher, in this order and as one commit, whole or not at all: after a refused statement the
/// file and this object are as before the save.
class JobCard
{
public:
    RecordMode EditMode = RecordMode::New; ///< Stored once the card is in the file
    qint32 CurrentJobID = 0;               ///< `Jobs.ID` of the stored card
    clsJobCardData JobRows;
    QString RemovedLineIDs; ///< the `Sr` of the lines removed since the card was loaded, joined by ","

    /// The number for the next card: one above the highest, or the shop's first number (setting 23) on the
    /// first card.
    static qint32 GetNewNum();

    /// Reads the lines of the stored card `CurrentJobID` into JobRows, under the names that the catalogue has
    /// now. Throws OverflowError for a line whose number is above 32767.
    void LoadLines();
    /// Takes out a row (from 1) and keeps its line for deletion at the next save.
    void RemoveLine(int row);
    /// Forgets all rows. The lines of a stored card stay in the file.
    void Clear();

    /// Stores a new card. Throws OperatorError, with nothing written, when its number is taken or
    /// can't be a card's.
    void SaveNew(const JobCardHead& head);
    /// Stores the changes of a stored card and writes its voucher anew. A stored line keeps its worker, state
    /// and wage.
    void SaveEdit(const JobCardHead& head);
    /// Deletes the stored card with its lines and its voucher.
    void Delete();

private:
    void write(const std::function<void()>& work);
    static void fillHead(ado::Recordset& job, const JobCardHead& head, qint32 clientID);
    void fillLine(ado::Recordset& line, int row, const JobCardHead& head, qint32 clientID) const;
    qint32 addLine(int row, const JobCardHead& head, qint32 clientID);
    void updateLine(int row, const JobCardHead& head, qint32 clientID);
    void writeVoucher(const JobCardHead& head, qint32 clientID);
    void deleteRemovedLines();
    void cancelLines();
    QString number() const { return QString::number(CurrentJobID); }
};
