#pragma once

#include "core/store/Codes.h"
#include "core/store/Texts.h"
#include "platform/ado/Recordset.h"
#include "platform/values/Literals.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <functional>

/// What the registers say of job lines, in words.

/// The value in the code that a line's mark has none of: a null, or a number from elsewhere.
inline constexpr qint32 noMark = -1;
qint32 markOf(const ado::Field& field);

/// A line's state (`DoneByWorker`): "Uncompleted", "Completed", "Delivered", "Alteration", "Canceled"; a null
/// text outside 0 to 4.
QString statusName(qint32 state);
/// The mark of its cutting (`CuttingStatus`): "Not Done", "Done"; a null text for any other.
QString cuttingName(qint32 mark);

/// A line as the registers list it.
struct RegisterLine
{
    qint32 id = 0;
    LineCode code; ///< of the card, and the line's place on it
    QDate booked;
    QDate promised;
    qint32 client = 0;
    qint32 item = 0;
    qint32 worker = 0; ///< 0: not given to anybody
    qint32 state = noMark;
    qint32 cutting = noMark;
    QString remark;
    QString location; ///< null where none was ever written

    bool isIn(LineState wanted) const { return state == qint32(wanted); }
};

/// Whole days from the working date; negative when the date has passed.
QString daysAhead(const QDate& date);

/// The names that the rows of a register repeat, each asked of the file once. It is made anew with the list,
/// so what it says is never older. Throws like the look-ups themselves.
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

    /// Asks for what the line's row needs and is not known yet: after it nothing here throws for the line.
    void know(const RegisterLine& line);

    const QString& account(qint32 id);
    const QString& contact(qint32 id);
    const QString& item(qint32 id);
    const QString& balance(qint32 client);
    /// The day as dateText() words it.
    const QString& date(const QDate& day);
    const QString& worker(qint32 id) { return id == 0 ? noWorker : account(id); }

    bool tellsBalances() const { return m_balancesUpTo.isValid(); }

private:
    using Known = QHash<qint32, QString>;

    QDate m_balancesUpTo;
    Known m_accounts;
    Known m_contacts;
    Known m_items;
    Known m_balances;
    QHash<QDate, QString> m_dates;
};

/// Reads the lines that a query finds, and the names that their rows need. `take` gets one after the other;
/// those before a line at fault have been handed over when this throws.
void readLines(const QString& query, LineNames& names, const std::function<void(RegisterLine line)>& take);
