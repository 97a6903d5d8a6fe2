#pragma once

#include "platform/ado/Connection.h"
#include "platform/values/Currency.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace ado {

class Prepared;
enum class ColumnType;

/// The rows of a query, read once from the first to the last, and of each row only the columns that were
/// asked for: for long lists. Rows come in the order that a recordset gives them, and values read as its
/// fields do.
///
///     Reader rows(connection, u"Select * from ITEMS"_s);
///     const auto name = rows["Name"], fees = rows["Fees"];
///     while (rows.next())
///         take(name.text(), fees.number());
///
/// It holds a lock on the file until it has given its last row or goes; nothing is written meanwhile.
class Reader
{
public:
    /// A column's value in the current row. It lives as long as its reader.
    class Column
    {
    public:
        /// Null reads as empty text, 0 or an invalid date; ask isNull() where the difference counts.
        bool isNull() const;
        QString text() const;
        /// Throws OverflowError above 32 bits.
        qint32 integer() const;
        /// The integer as a code of the column's kind; it may be one that the kind does not name.
        template <typename Code>
        Code code() const
        {
            return Code(integer());
        }
        /// These throw TypeMismatchError for a text that is no number or date.
        double number() const;
        Currency money() const;
        QDate date() const;

    private:
        friend class Reader;
        Column(const Reader& reader, size_t place)
            : m_reader(reader)
            , m_place(place)
        {
        }
        const Reader& m_reader;
        size_t m_place;
    };

    Reader(Connection& connection, const QString& sql);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// Asks for a column by its name, in any case, before the first row is read.
    Column operator[](const char* name);
    /// Goes to the next row, at first to the first. False behind the last one. Throws DatabaseError for what
    /// the engine does not take, an unknown column too, and where reading fails; nothing more is read then.
    bool next();

private:
    void begin();
    void end();
    int place(size_t column) const { return m_places[column]; }

    Connection& m_connection;
    QString m_sql;
    QStringList m_names;
    std::vector<int> m_places; ///< of the columns asked for, in the engine's row
    std::vector<ColumnType> m_types;
    std::unique_ptr<Prepared> m_statement; ///< while rows are still to come
    bool m_begun = false;
};

} // namespace ado
