#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

/// A row of a book: the texts of its columns, and the voucher behind it. A row of a total has no voucher.
struct BookLine
{
    QStringList cells;
    QString tag = {};   ///< of its VoucherTag
    double amount = 0;  ///< of a posting; negative: a debit
    qint32 posting = 0; ///< its own number in the ledger

    bool isPosting() const { return !tag.isEmpty(); }
};

/// The book of one account over some days: what was brought forward, the postings, their totals, what is
/// carried forward. A negative amount stands in the debit column, a positive one in the credit column, both
/// as positive figures.
class AccountBook
{
public:
    enum Column { Date, Number, Voucher, Particulars, Debit, Credit, Remark };

    /// The book of no account: no lines, nothing brought forward.
    AccountBook() = default;
    /// Reads the book. Throws ado::DatabaseError, and OverflowError for an account above 16 bits.
    AccountBook(qint32 account, const QDate& from, const QDate& to);

    double OpeningBalance = 0; ///< at the end of the day before
    double ClosingBalance = 0; ///< at the end of the last day
    double PeriodNegative = 0; ///< the sum of the debits, negative
    double PeriodPositive = 0; ///< the sum of the credits
    std::vector<BookLine> lines;

private:
    void addBalance(const QString& particulars, double balance);
    void addPostings(qint32 account, const QDate& from, const QDate& to);
};

/// Puts the postings of a book, as its lines tell them, in place of what is staged for the statement. One
/// write batch. Throws ado::DatabaseError.
void stageStatement(const AccountBook& book);

/// The vouchers of some days, each once, by the account from which it was entered, and their number below
/// them.
namespace daybook {

enum Column { Date, Number, Voucher, Particulars, Amount, Remark };

std::vector<BookLine> read(const QDate& from, const QDate& to);

} // namespace daybook
