#pragma once

#include "accounts/VoucherTag.h"
#include "core/store/AccountBlocks.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

/// A row of a book: a posting and the voucher behind it, or a total, which has no voucher.
struct BookLine
{
    qint32 posting = 0; ///< its number in the ledger; 0: a total
    VoucherTag voucher{};
    QDate date{};
    QString kind{};                ///< "Sales", "Receipt" ...
    qint32 account = 0;            ///< that it names
    QString title{};               ///< what a total is of
    std::optional<double> debit{}; ///< a positive figure, as is the next
    std::optional<double> credit{};
    QString remark{};

    bool isPosting() const { return posting != 0; }
    /// Empty for a total.
    QString tag() const { return isPosting() ? voucher.text() : QString(); }
};

/// The titles of the accounts that the lines name, by row. The lines must outlive it.
RowTitles titlesOf(const std::vector<BookLine>& lines);
/// A line with the title of its account.
BookLine withTitle(BookLine line, const QString& title);

/// The book of one account over some days: what was brought forward, the postings, their totals, what is
/// carried forward. A negative amount is a debit, a positive one a credit.
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

    /// The texts of a line with its title, a column each.
    static QStringList cells(const BookLine& line);

private:
    void addBalance(const QString& particulars, double balance);
};

/// Puts the postings of a book, in place of what is staged for the statement. One
/// write batch. Throws ado::DatabaseError.
void stageStatement(const AccountBook& book);

/// The vouchers of some days, each once, by the account from which it was entered, and their number below
/// them.
namespace daybook {

enum Column { Date, Number, Voucher, Particulars, Amount, Remark };

std::vector<BookLine> read(const QDate& from, const QDate& to);
QStringList cells(const BookLine& line);

} // namespace daybook
