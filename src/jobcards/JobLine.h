#pragma once

#include "core/store/Codes.h"
#include "platform/values/Currency.h"

#include <QDate>
#include <QString>
#include <optional>

/// One garment line of a stored card, as the workshop sees it.
struct JobLine
{
    qint32 id = 0;
    QString job; ///< number of its card
    QDate booked;
    qint32 client = 0;
    qint32 item = 0;
    qint32 worker = 0; ///< 0: not given to anybody
    QString quantity;
    QString location;
    QString remark;
    QString clientRemark;
    QString measurementNames;
    QString measurementValues;
    LineState state = LineState::Uncompleted;
    QDate completed; ///< invalid where the line was never in the state; so are the next two
    QDate delivered;
    QDate altered;
    bool cut = false;
    QDate cutting;
    QDate promised;
    Currency wage;
    bool paid = false;  ///< to the worker
    qint32 payroll = 0; ///< number of the voucher that paid it
    QString picture1;   ///< links of the pictures
    QString picture2;
    QString colour; ///< of the cloth, as stored

    /// Throws ado::DatabaseError, and ado::NoCurrentRecordError for a line that is gone.
    static JobLine read(qint32 id);

    /// The day on which it came into a state; invalid for a state that keeps none.
    QDate dayOf(LineState entered) const;

    /// The day of the voucher that paid for it; invalid where it is unpaid or the voucher is gone.
    QDate paidOn() const;
};

/// The order of an item that a client placed last before a day.
struct EarlierOrder
{
    QString job;
    QDate booked;
    qint32 worker = 0;

    /// Nothing where there is none. Throws ado::DatabaseError.
    static std::optional<EarlierOrder> find(const QDate& before, qint32 item, qint32 client);
};

/// What the workshop changes of a line.
struct Assignment
{
    QString worker;                 ///< title; empty: nobody. The line then keeps the name of the one it had
    std::optional<LineState> state; ///< entered today; none leaves what it was
    bool cut = false;
    QDate cutting;
    Currency wage;
    bool paid = false;
    QString location;

    /// Writes it. `day` stamps the state; a day once stamped stays when the state changes again. Throws like
    /// JobLine::read() and GetAccountID().
    void write(qint32 line, const QDate& day) const;
};

/// Where the shop hung the garments of its newest lines, the place used last first, each once in any spelling
/// of its case; at most `most`. Throws ado::DatabaseError.
QStringList placesUsedLately(int most);

/// Marks of the registers on one line; each throws like JobLine::read().
void markCut(qint32 line, const QDate& day);
/// An empty location leaves the line's.
void markState(qint32 line, LineState state, const QDate& day, const QString& location = {});
