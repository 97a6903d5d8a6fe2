#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

/// What the shop knows of a client: cards and measurements through time. Reading throws ado::DatabaseError.
namespace history {

struct Card
{
    qint32 number = 0;
    QDate booked;
    QDate delivery;
    QString state; ///< "2 of 3 ready", "Delivered", "Canceled"
    double amount = 0;
    double paid = 0; ///< with the card itself
};

/// One garment as it was ordered once.
struct Order
{
    QString code; ///< "1436/2"
    QDate booked;
    QStringList values; ///< one for each of the garment's measurements; empty where it had none
    QString remark;
    QString note;         ///< of the client
    QStringList pictures; ///< paths; empty for one that was taken and is gone
};

struct Garment
{
    QString item;
    QStringList measurements;  ///< each name once, in any case; those of the last order first
    std::vector<Order> orders; ///< the newest first

    /// Whether the value is another than the one before it; false for the first of all.
    bool isChanged(size_t order, qsizetype measurement) const;
    /// The day from which on the last value has been what it is; invalid when it has none.
    QDate since(qsizetype measurement) const;

private:
    /// The next older order that has the measurement; orders.size() when none has.
    size_t before(size_t order, qsizetype measurement) const;
};

/// The newest first.
std::vector<Card> cardsOf(qint32 client);
/// The garment ordered last comes first.
std::vector<Garment> garmentsOf(qint32 client);

} // namespace history
