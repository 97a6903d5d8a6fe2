#pragma once

#include "platform/ado/Connection.h"
#include "platform/values/Currency.h"

#include <QAnyStringView>
#include <QDate>
#include <QString>
#include <QVariant>
#include <memory>

namespace ado {

/// What a field holds when it holds nothing.
inline const QVariant Null;

class Recordset;
enum class ColumnType;

/// One field of the current row of a recordset: read it, or set it before the row is written.
class Field
{
public:
    /// Null reads as empty text, 0 or an invalid date; ask isNull() where the difference counts.
    bool isNull() const;
    QVariant value() const;
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

    /// Sets the field of the current (or new) row; written by Update or UpdateBatch. Takes QString, int,
    /// double, bool, QDate, Currency (through its QVariant) and Null. Throws TypeMismatchError or
    /// OverflowError for what the column cannot hold; the field then keeps its value.
    Field& operator=(const QVariant& value);
    Field& operator=(Currency value);
    template <typename Left, typename Right>
    Field& operator=(const QStringBuilder<Left, Right>& text)
    {
        return *this = QVariant(QString(text));
    }
    /// A code is stored as its number.
    template <typename Code>
    requires std::is_enum_v<Code> Field& operator=(Code code) { return *this = QVariant(qint32(code)); }
    Field(const Field&) = default;
    Field& operator=(const Field&) = delete;

private:
    friend class Recordset;
    Field(Recordset& owner, int column)
        : m_owner(owner)
        , m_column(column)
    {
    }
    const QVariant& stored() const;
    ColumnType type() const;
    const QString& name() const;

    Recordset& m_owner;
    int m_column;
};

/// Rows of a query, with a cursor. Rows are read as the cursor reaches them; "the last row" is fetched
/// directly.
///
/// - A query without an order comes in order of insertion.
/// - Field names match in any case; an unknown name throws DatabaseError.
/// - Rows of "Select * from <one table> ..." can be written. Values are brought to their column's form on the
///   way in: money to four decimals (half to even), dates to ISO text, integers checked for 32 bits.
///   A required field left out is refused.
/// - Up to 16 rows are read at once and hold no lock on the file; a longer result holds it until it is read
///   to its end, closed, or left by MoveLast or AddNew. A write through the connection changes nothing in the
///   rows still to come. A fault while reading closes the recordset.
class Recordset
{
public:
    /// `command` is the default source: a table name or a statement.
    explicit Recordset(Connection& connection, const QString& command = {});
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    /// Closes first if open, then stands on the first row of the query, if there is one; the rows are read
    /// when they are first asked for. Throws DatabaseError for what the engine does not take.
    void Open(const QString& sql);
    /// The same with the default source.
    void Open();
    void Close();
    /// True while open.
    bool State() const;

    /// The number of rows, rows added since included.
    int RecordCount();
    /// True behind the last row, and on an empty result.
    bool AtEOF();
    /// On an empty result MoveFirst and MoveLast leave the cursor where it is: at the end.
    void MoveFirst();
    /// Throws NoCurrentRecordError at the end.
    void MoveNext();
    void MoveLast();

    /// Number, names of the columns.
    int FieldCount() const;
    QString FieldName(int column) const;
    /// Throws NoCurrentRecordError when there is no current row.
    Field operator[](QAnyStringView name);
    Field operator[](int column);

    /// Begins a new row; it becomes the current one.
    void AddNew();
    /// Writes the current row's changes. After it an autonumber of a new row can be read. Throws
    /// DatabaseError.
    void Update();
    /// Writes all rows changed or added since the last write, as one commit. A row that is refused stays to
    /// be written, and those behind it; those before it are in the file. Closing drops what was not written.
    void UpdateBatch();

    /// The child rows (chapter) of the current row of a SHAPE query: those that APPEND relates to it, or
    /// those that make up its group of a COMPUTE. The same object each time, opened anew for the row that is
    /// current.
    Recordset& Chapter(const QString& name);

private:
    friend class Field;
    friend class Connection;
    struct Private;
    Field fieldAt(int column, QAnyStringView name);

    std::unique_ptr<Private> d;
};

} // namespace ado
