#pragma once

#include "core/store/Texts.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Literals.h"

#include <QDate>
#include <QHash>
#include <QString>

/// What the registers say of job lines, in words.

/// The value in the code that a line's mark has none of: a null, or a number from elsewhere.
inline constexpr qint32 noMark = -1;
qint32 markOf(const ado::Field& field);

/// A line's state (`DoneByWorker`): "Uncompleted", "Completed", "Delivered", "Alteration", "Canceled"; a null
/// text outside 0 to 4.
QString statusName(qint32 state);
/// The mark of its cutting (`CuttingStatus`): "Not Done", "Done"; a null text for any other.
QString cuttingName(qint32 mark);

/// Whole days from the working date; negative when the date has passed.
QString daysAhead(const QDate& date);

/// The look-ups that the rows of a register repeat, each number asked of the file once. Lives as long as one
/// filling of the list, so what it says is never older than the list. Throws like the look-ups themselves.
class LineNames
{
public:
    /// Without a day the rows tell no balances.
    explicit LineNames(const QDate& balancesUpTo)
        : m_balancesUpTo(balancesUpTo)
    {
    }

    /// Asks at once for all clients and workers of the lines that the query finds, and for the clients'
    /// balances: a month has a thousand.
    void readAll(const QString& query);

    const QString& account(qint32 id);
    const QString& contact(qint32 id);
    const QString& item(qint32 id);
    const QString& balance(qint32 client);
    /// The day as dateText() words it.
    const QString& date(const QDate& day);
    const QString& worker(qint32 id) { return id == 0 ? noWorker : account(id); }

private:
    using Known = QHash<qint32, QString>;

    const QDate m_balancesUpTo;
    Known m_accounts;
    Known m_contacts;
    Known m_items;
    Known m_balances;
    QHash<QDate, QString> m_dates;
};
