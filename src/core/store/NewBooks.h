#pragma once

#include "core/store/Codes.h"
#include "platform/values/Progress.h"

#include <QDateTime>
#include <QString>
#include <memory>
#include <vector>

namespace archive {
class Scratch;
}

/// New books, for when the numbers of the file are used up, or at a year's end: a new file with what the shop
/// still needs, numbered afresh, takes the place of the old one, which stays as old books.
///
/// What comes along: the shop's profile and settings, all items and ledger accounts; the clients and workers
/// with a movement in the last two years, a balance, or something open, and those chosen besides; whole, the
/// cards that are not closed and whatever is dated behind the last day; of closed cards the last order of
/// each item and client, for its measurements, and the lines whose wage is unpaid. What else was booked up to
/// the last day becomes one opening voucher for each account.
namespace newbooks {

/// A client or worker without a movement in the last two years, without a balance and nothing open.
struct Idle
{
    qint32 account = 0;
    QString title;
    AccountType type = AccountType::Client;
    QDate lastMoved;         ///< invalid: never
    bool comesAlong = false; ///< the operator wants him in the new books
};

struct Plan
{
    QDate lastDay;
    std::vector<Idle> idle; ///< by title
    int lines = 0;          ///< in the shop now
    int linesStay = 0;      ///< that come along if nobody idle does
};

/// What closing the books with a day would do. Reads the shop's file as it is; slow in a large shop; for any
/// thread. Throws OperatorError for a shop without cards and postings, and for a last day before the first of
/// them.
Plan plan(const QDate& lastDay, const Progress& progress = {});

/// The last day of the books before those of a file; empty for a shop's first. Throws ado::DatabaseError.
QString lastDayBefore(const QString& file);

/// Where the old books of a last day lie.
QString oldBooksPath(const QDate& lastDay);

/// The new file in the making.
class Making
{
public:
    explicit Making(Plan plan);
    ~Making();

    /// Looks the shop over, makes the new file beside it, and proves that both agree. Slow; for any thread.
    /// Throws OperatorError, which says what has failed and what to do; the shop stands then.
    void make(const Progress& progress);

    /// Puts the new file in the shop's place; the old one becomes old books. The connection is closed then.
    /// For the connection's thread. Throws OperatorError: the shop stands then.
    void takePlace(const Progress& progress = {});

private:
    const Plan m_plan;
    QDateTime m_changed; ///< the shop's file, before it was copied
    std::unique_ptr<archive::Scratch> m_file;
};

} // namespace newbooks
