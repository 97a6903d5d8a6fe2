#include "platform/ado/Reader.h"

#include "platform/ado/ConnectionPrivate.h"
#include "platform/ado/DatabaseError.h"
#include "platform/ado/Dialect.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

#include <algorithm>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace ado {

namespace {

/// A day as it mostly lies in the file, "2024-02-10"; invalid for all others.
QDate plainDay(const char* text, int size)
{
    if (size != 10 || text[4] != '-' || text[7] != '-')
        return {};
    const auto number = [text](int first, int end) {
        int value = 0;
        for (int i = first; i < end; ++i) {
            if (text[i] < '0' || text[i] > '9')
                return -1;
            value = 10 * value + text[i] - '0';
        }
        return value;
    };
    return QDate(number(0, 4), number(5, 7), number(8, 10));
}

} // namespace

Reader::Reader(Connection& connection, const QString& sql)
    : m_connection(connection)
    , m_sql(sql)
{
}

Reader::~Reader() { end(); }

Reader::Column Reader::operator[](const char* name)
{
    m_names << QString::fromLatin1(name);
    return {*this, size_t(m_names.size()) - 1};
}

void Reader::begin()
{
    m_begun = true;
    m_statement = m_connection.d->prepare(dialect::withColumns(m_sql, m_names));
    const Columns& columns = *m_statement->columns();
    for (const QString& name : m_names) {
        const auto found = std::ranges::find_if(columns, [&name](const ado::Column& column) {
            return column.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (found == columns.end())
            throw DatabaseError(u"There is no field %1."_s.arg(name));
        m_places.push_back(int(found - columns.begin()));
        m_types.push_back(found->type);
    }
}

void Reader::end()
{
    if (m_statement)
        m_connection.d->statements.giveBack(std::move(m_statement));
}

bool Reader::next()
{
    if (!m_begun)
        begin();
    if (!m_statement)
        return false;
    try {
        if (m_connection.d->step(*m_statement))
            return true;
    } catch (...) {
        m_statement.reset();
        throw;
    }
    end();
    return false;
}

bool Reader::Column::isNull() const
{
    return sqlite3_column_type(m_reader.m_statement->handle(), m_reader.place(m_place)) == SQLITE_NULL;
}

QString Reader::Column::text() const
{
    sqlite3_stmt* row = m_reader.m_statement->handle();
    const int place = m_reader.place(m_place);
    if (sqlite3_column_type(row, place) != SQLITE_TEXT)
        return toText(m_reader.m_types[m_place], m_reader.m_statement->column(place));
    const auto* stored = reinterpret_cast<const char*>(sqlite3_column_text(row, place));
    return QString::fromUtf8(stored, sqlite3_column_bytes(row, place));
}

qint32 Reader::Column::integer() const
{
    sqlite3_stmt* row = m_reader.m_statement->handle();
    const int place = m_reader.place(m_place);
    const QString& name = m_reader.m_names[qsizetype(m_place)];
    if (sqlite3_column_type(row, place) == SQLITE_INTEGER)
        return values::toInt32(sqlite3_column_int64(row, place), name);
    return values::CLng(number(), name);
}

double Reader::Column::number() const
{
    sqlite3_stmt* row = m_reader.m_statement->handle();
    const int place = m_reader.place(m_place);
    const int type = sqlite3_column_type(row, place);
    if (type == SQLITE_INTEGER || type == SQLITE_FLOAT)
        return sqlite3_column_double(row, place);
    return toNumber(m_reader.m_statement->column(place));
}

Currency Reader::Column::money() const
{
    return Currency::fromDouble(number(), m_reader.m_names[qsizetype(m_place)]);
}

QDate Reader::Column::date() const
{
    if (isNull())
        return {};
    sqlite3_stmt* row = m_reader.m_statement->handle();
    const int place = m_reader.place(m_place);
    if (sqlite3_column_type(row, place) == SQLITE_TEXT) {
        const auto* stored = reinterpret_cast<const char*>(sqlite3_column_text(row, place));
        if (const QDate day = plainDay(stored, sqlite3_column_bytes(row, place)); day.isValid())
            return day;
    }
    return values::CDate(text());
}

} // namespace ado
