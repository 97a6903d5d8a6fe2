#pragma once

#include "core/store/Codes.h"
#include "platform/values/Currency.h"

#include <QDate>
#include <QString>
#include <vector>

/// Two postings that move one account against another.
struct PostingPair
{
    QString particulars; ///< the voucher's kind: "Receipt", "Payment", "Sales", "Purchase", "Wages"
    QDate date;
    qint32 account = 0;  ///< of the first posting; of the second it is the opposite account
    qint32 opposite = 0; ///< the book of an account names its opposite
    Currency amount; ///< of the first posting, negative debits its account; of the second it is the negative
    QString remark;

    bool operator==(const PostingPair&) const = default;
};

/// What a pair is besides its money.
struct PostingMarks
{
    bool cancelled = false; ///< of a cancelled card: left out of balances and books
    bool payroll = false;
};

/// The two rows of a pair, by their own numbers in the ledger; 0 for one that is not there.
struct PairRows
{
    qint32 first = 0;
    qint32 second = 0;
};

/// A pair as it stands in the ledger.
struct StoredPair
{
    PostingPair pair;
    bool payroll = false; ///< it pays a worker's lines
};

/// The postings that share a number and a type: one pair, or the two of a job card (the sale, and the money
/// taken with it). Each pair sums to zero, and so do all the shop's postings. Write within a write batch. All
/// throw ado::DatabaseError.
class Voucher
{
public:
    Voucher(VoucherType type, qint32 number)
        : m_type(type)
        , m_number(number)
    {
    }

    /// Appends the pair as the voucher's next two lines (`Sr`), counted by this object from 1.
    PairRows AddPair(const PostingPair& pair, PostingMarks marks = {});
    /// The stored lines 1 and 2. A number can be given to more than one entry by hand: then those of the
    /// entry that has the posting, or of the one entered first.
    PairRows Pair(qint32 posting = 0) const;
    /// What the first of these rows holds. Throws ado::NoCurrentRecordError when it is not there.
    static StoredPair Read(const PairRows& rows);
    /// Writes the pair over these rows; number, type and marks stay. Throws ado::NoCurrentRecordError when
    /// one of them is not there.
    void ChangePair(const PairRows& rows, const PostingPair& pair);
    void Delete();
    /// Deletes the entry of these rows; another of the same number stays.
    void Delete(const PairRows& rows);
    /// What is stored under the number, in the operator's words: "a Receipt of 100.00"; empty for a free one.
    QString description() const;

    /// One above the highest number of the entries: the number of a deleted last one is used again.
    static qint32 NextEntryNumber();
    /// A payroll takes the counter of the last entry's own row, plus 1: a series apart; where an entry has
    /// been typed in under that number, the next that is free. Throws OverflowError above 32767.
    static qint16 NextPayrollNumber();

private:
    QString where() const;
    std::vector<PairRows> pairs() const;

    VoucherType m_type;
    qint32 m_number;
    int m_lastLine = 0;
};
