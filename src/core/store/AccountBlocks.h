#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>

/// What the rows of a long list tell of their accounts is asked of the file when a row is shown, for a block
/// of rows at once. Each block is twice as long as the one before: a screenful costs one statement, the whole
/// list a dozen.
class AccountBlocks
{
public:
    /// The accounts, as "5,17,233", that are not known yet of the row and of those behind it; empty when that
    /// of the row is known. `accountOf` gives the number of a row's account, 0 for none.
    QString unread(size_t row, size_t rows, const std::function<qint32(size_t row)>& accountOf,
                   const std::function<bool(qint32 account)>& isKnown);

private:
    size_t m_block = 64;
};

/// The titles of the accounts that the rows of a list name. Throws ado::DatabaseError.
class RowTitles
{
public:
    RowTitles(size_t rows, std::function<qint32(size_t row)> accountOf)
        : m_rows(rows)
        , m_accountOf(std::move(accountOf))
    {
    }

    /// Empty where the row names no account, or one that is gone.
    const QString& of(size_t row);

private:
    size_t m_rows;
    std::function<qint32(size_t)> m_accountOf;
    AccountBlocks m_blocks;
    QHash<qint32, QString> m_titles;
};
