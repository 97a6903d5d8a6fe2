#pragma once

#include <QDate>
#include <QString>
#include <vector>

/// How loaded the shop is, and when a new order could be ready. All throw ado::DatabaseError.

/// Counts the lines of an item that nobody has completed yet; a line of several pieces counts as one.
void GetPendingOrders(qint16 itemId, qint32& count);
/// Of these, the ones booked on the day.
void GetOrdersToday(qint16 itemId, const QDate& date, qint32& count);

/// The work that waits on one item of the catalogue.
struct ItemLoad
{
    QString item;
    qint32 capacity; ///< pieces a day
    qint32 pending;  ///< pieces, with those that waited when the shop began with the program
    qint32 today;    ///< lines booked on the working date
    /// Days until a piece ordered now is ready: pending by capacity, halves to even, and one more.
    qint32 waiting;
    QDate ready;
};

/// The items with a daily capacity, by name, on the working date, into `loads`. Throws OverflowError for one
/// with more than 32,767 days of work; those before it are there.
void predictDelivery(std::vector<ItemLoad>& loads);
