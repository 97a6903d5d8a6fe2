#pragma once

#include "platform/ado/StoredForm.h"

#include <QString>
#include <QVariant>
#include <list>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace ado {

struct Column
{
    QString name;
    ColumnType type;
};

using Columns = std::vector<Column>;

/// A compiled statement.
class Prepared
{
public:
    /// Throws DatabaseError for what the engine does not take, and for more than one statement in the text.
    Prepared(sqlite3* database, const QString& sql);
    ~Prepared();
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;

    const QString& sql() const { return m_sql; }
    sqlite3_stmt* handle() const { return m_statement; }
    /// The columns of a select.
    const std::shared_ptr<const Columns>& columns() const { return m_columns; }
    /// The value of a column of the row that the statement stands on, as it is stored.
    QVariant column(int index) const;
    /// Binds a stored value to the parameter `index`, which counts from 1.
    void bind(int index, const QVariant& stored);
    /// Ends the run and lets go of the file's locks and of the bound values.
    void reset();

private:
    QString m_sql;
    sqlite3_stmt* m_statement = nullptr;
    std::shared_ptr<const Columns> m_columns;
};

/// The statements used last, compiled, so that look-ups and inserts that come again cost no compilation.
class StatementCache
{
public:
    /// Takes a statement out, compiled now if it is not there. Nobody else gets it until it is given back.
    std::unique_ptr<Prepared> take(sqlite3* database, const QString& sql);
    void giveBack(std::unique_ptr<Prepared> statement);
    void clear() { m_statements.clear(); }

private:
    std::list<std::unique_ptr<Prepared>> m_statements; // the last used in front
};

} // namespace ado
