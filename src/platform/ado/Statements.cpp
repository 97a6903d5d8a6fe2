#include "platform/ado/Statements.h"

#include "platform/ado/DatabaseError.h"

#include <algorithm>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace ado {

namespace {

constexpr size_t keptStatements = 64;

std::shared_ptr<const Columns> readColumns(sqlite3_stmt* statement)
{
    const int count = sqlite3_column_count(statement);
    auto columns = std::make_shared<Columns>();
    columns->reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        const QString name = QString::fromUtf8(sqlite3_column_name(statement, i));
        columns->push_back({name, columnType(sqlite3_column_decltype(statement, i))});
    }
    return columns;
}

} // namespace

Prepared::Prepared(sqlite3* database, const QString& sql)
    : m_sql(sql)
{
    const QByteArray text = sql.toUtf8();
    const char* rest = nullptr;
    const int code = sqlite3_prepare_v2(database, text.constData(), static_cast<int>(text.size()) + 1,
                                        &m_statement, &rest);
    if (code != SQLITE_OK)
        throw DatabaseError(QString::fromUtf8(sqlite3_errmsg(database)));
    const bool more = std::any_of(rest, text.constData() + text.size(),
                                  [](char c) { return c != ';' && !QChar::isSpace(static_cast<uchar>(c)); });
    if (!m_statement || more) {
        sqlite3_finalize(m_statement);
        throw DatabaseError(u"Only one statement can be run at a time."_s);
    }
    m_columns = readColumns(m_statement);
}

Prepared::~Prepared() { sqlite3_finalize(m_statement); }

QVariant Prepared::column(int index) const
{
    switch (sqlite3_column_type(m_statement, index)) {
    case SQLITE_INTEGER:
        return QVariant(qint64(sqlite3_column_int64(m_statement, index)));
    case SQLITE_FLOAT:
        return QVariant(sqlite3_column_double(m_statement, index));
    case SQLITE_NULL:
        return {};
    default:
        break;
    }
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, index));
    const int bytes = sqlite3_column_bytes(m_statement, index);
    return bytes == 0 ? u""_s : QString::fromUtf8(text, bytes);
}

void Prepared::bind(int index, const QVariant& stored)
{
    switch (stored.typeId()) {
    case QMetaType::UnknownType:
        sqlite3_bind_null(m_statement, index);
        break;
    case QMetaType::LongLong:
        sqlite3_bind_int64(m_statement, index, stored.toLongLong());
        break;
    case QMetaType::Double:
        sqlite3_bind_double(m_statement, index, stored.toDouble());
        break;
    default: {
        const QByteArray text = stored.toString().toUtf8();
        sqlite3_bind_text(m_statement, index, text.constData(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT);
    }
    }
}

void Prepared::reset()
{
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

std::unique_ptr<Prepared> StatementCache::take(sqlite3* database, const QString& sql)
{
    const auto found = std::find_if(m_statements.begin(), m_statements.end(),
                                    [&sql](const auto& kept) { return kept->sql() == sql; });
    if (found == m_statements.end())
        return std::make_unique<Prepared>(database, sql);
    std::unique_ptr<Prepared> statement = std::move(*found);
    m_statements.erase(found);
    return statement;
}

void StatementCache::giveBack(std::unique_ptr<Prepared> statement)
{
    statement->reset();
    m_statements.push_front(std::move(statement));
    if (m_statements.size() > keptStatements)
        m_statements.pop_back();
}

} // namespace ado
