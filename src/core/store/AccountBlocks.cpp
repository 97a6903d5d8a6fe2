#include "core/store/AccountBlocks.h"

#include "core/store/Lookups.h"

#include <QSet>

using namespace Qt::StringLiterals;

QString AccountBlocks::unread(size_t row, size_t rows, const std::function<qint32(size_t)>& accountOf,
                              const std::function<bool(qint32)>& isKnown)
{
    if (row >= rows || accountOf(row) == 0 || isKnown(accountOf(row)))
        return {};
    QSet<qint32> taken;
    QStringList accounts;
    const size_t end = std::min(rows, row + m_block);
    for (; row < end; ++row) {
        const qint32 account = accountOf(row);
        if (account == 0 || isKnown(account) || taken.contains(account))
            continue;
        taken.insert(account);
        accounts << QString::number(account);
    }
    m_block *= 2;
    return accounts.join(u',');
}

const QString& RowTitles::of(size_t row)
{
    const QString accounts = m_blocks.unread(row, m_rows, m_accountOf,
                                             [this](qint32 account) { return m_titles.contains(account); });
    if (!accounts.isEmpty()) {
        for (const QString& account : accounts.split(u','))
            m_titles.insert(account.toInt(), u""_s); // also when it is gone
        m_titles.insert(GetAccountTitles(accounts));
    }
    return m_titles[m_accountOf(row)];
}
