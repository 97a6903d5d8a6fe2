#pragma once

#include "platform/values/Currency.h"

#include <QDate>
#include <QMap>
#include <QSet>
#include <QString>
#include <QVariant>
#include <vector>

namespace ado {
class Connection;
}

/// What has become of the shop's job cards and vouchers since a day of which it has a copy, and the way back
/// for one of them.
namespace differences {

enum class Kind { Card, Voucher, Payroll };
enum class Change { Deleted, Changed, Added };

struct Difference
{
    Kind kind = Kind::Card;
    Change change = Change::Deleted;
    qint32 number = 0;
    QDate date;  ///< of the card or voucher; as it was then, where it was there
    QString who; ///< the client; the accounts of a voucher
    Currency amount;
};

/// The differences between the shop then and the shop now, those deleted first, then those changed, then
/// those added. Cards with their lines; the entry vouchers, payrolls among them. Throws ado::DatabaseError.
std::vector<Difference> between(ado::Connection& then, ado::Connection& now);

using Row = QMap<QString, QVariant>;

/// A card or voucher with all its rows, and with the accounts and items that they name.
struct Kept
{
    Kind kind = Kind::Card;
    Change change = Change::Deleted;
    qint32 number = 0;
    std::vector<Row> cards;
    std::vector<Row> lines;
    std::vector<Row> postings;
    QMap<qint32, Row> accounts;
    QMap<qint32, Row> items;
    QSet<qint32> payrolls; ///< all that there were then
};
Kept read(ado::Connection& then, const Difference& difference);

/// What has come back.
struct Returned
{
    qint32 number = 0;
    int paidSince = 0; ///< its lines that are marked as paid now and were not then, or not without a payroll
};

/// Writes it into the shop that `DE` has open, as a new card or voucher with the next number; whole or not at
/// all. Accounts and items are found by their names; one that is gone is added again as it was. A line's
/// state, worker and wage come with it; what the shop has paid its worker stays paid (WageOfReturned.h), and
/// nothing is posted for it. Throws OperatorError, for a payroll always: its lines are unpaid again, and a
/// new payroll takes them.
Returned bringBack(const Kept& kept);

} // namespace differences
