#pragma once

#include "core/store/AccountBlocks.h"
#include "core/store/Codes.h"
#include "core/store/Texts.h"
#include "platform/values/Literals.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <functional>
#include <vector>

/// What the registers say of job lines, in words.

/// The value in the code that a line's mark has none of: a null, or a number from elsewhere.
inline constexpr qint32 noMark = -1;

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

/// The names that the rows of a register repeat, each asked of the file once, those of the clients when their
/// rows are shown. It is made anew with the list. Throws like the look-ups themselves.
class LineNames
{
public:
    /// Without a day the rows tell no balances.
    explicit LineNames(const QDate& balancesUpTo)
        : m_balancesUpTo(balancesUpTo)
    {
    }

    /// Asks for what is not known yet of the clients of a line and of lines behind it: a month has a
    /// thousand.
    void readClients(const std::vector<RegisterLine>& lines, size_t row);

    /// Throws where the client, the item or the worker of a line is gone.
    void require(const RegisterLine& line);

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

    bool isAccount(qint32 id);

    QDate m_balancesUpTo;
    AccountBlocks m_blocks;
    std::vector<bool> m_isAccount; ///< by number; empty until it is asked for
    Known m_accounts;
    Known m_contacts;
    Known m_items;
    Known m_balances;
    QHash<QDate, QString> m_dates;
};

/// Reads the lines that a query finds. `take` gets one after the other;
/// those before a line at fault have been handed over when this throws.
void readLines(const QString& query, LineNames& names, const std::function<void(RegisterLine line)>& take);
