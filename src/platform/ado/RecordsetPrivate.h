#pragma once

#include "platform/ado/ConnectionPrivate.h"
#include "platform/ado/Dialect.h"
#include "platform/ado/Recordset.h"

#include <optional>
#include <vector>

namespace ado {

/// One row: its values as they are stored, and which of them are still to be written.
struct Row
{
    qint64 key = 0;              ///< the engine's row number; 0 for a row not yet written
    bool defaultsUnread = false; ///< defaults of a row just added are read when one is asked for
    std::vector<QVariant> values;
    std::vector<bool> changed;  ///< empty while nothing is
    std::vector<bool> deferred; ///< left with the engine until asked for; empty while nothing is

    bool isChanged(size_t column) const { return !changed.empty() && changed[column]; }
};

using RowPtr = std::shared_ptr<Row>;

struct Recordset::Private
{
    Private(Connection& theConnection, const QString& theCommand)
        : connection(theConnection)
        , command(theCommand)
    {
    }

    /// Where the cursor stands; nothing is read before somebody asks where that is. The rows of a result lie
    /// in `block` as far as they were read ahead; a long result goes on in `statement`, row by row.
    enum class At { Unread, Block, Stream, Last, Added, End };

    Connection& connection;
    QString command;

    bool open = false;
    dialect::Statement translated;
    std::optional<dialect::Shape> shape;
    std::shared_ptr<const Columns> columns;
    int hiddenColumns = 0;               ///< the row's key stands in front of the columns
    std::unique_ptr<Prepared> statement; ///< while rows are still to come
    std::vector<RowPtr> block;
    bool blockIsWhole = false;      ///< the block runs to the last row
    bool blockHasFirst = false;     ///< the block begins with the first row
    std::optional<int> countInFile; ///< rows of the query, once counted
    std::vector<bool> asked;        ///< columns of the query that were asked for
    std::vector<RowPtr> added;      ///< since the query ran; they stand behind its rows
    std::vector<RowPtr> unwritten;  ///< changed or new, in the order of their change
    At at = At::End;
    size_t index = 0; ///< in the block, or among the added rows
    RowPtr current;
    std::unique_ptr<Recordset> chapter;

    Connection::Private& base() const { return *connection.d; }

    void requireOpen() const;
    void requireWritable() const;
    /// -1 for a name that no column has.
    int columnIndex(QAnyStringView name) const;
    const Column& column(size_t place) const;

    /// Makes the query ready to be read from its first row on.
    void runQuery();
    /// Reads the first rows, if that is still to be done.
    void readBlock();
    void close();
    /// False at the end of the result.
    bool stepInFile();
    RowPtr nextFromFile();
    RowPtr readRow(const Prepared& source) const;
    /// The next row of a long result. Columns that no row was asked for yet stay with the engine, which
    /// stands on this row until the next one is read.
    RowPtr nextOfStream();
    /// Takes in what the engine still has of the current row, before it goes on.
    void takeInCurrent();
    void endStatement();
    /// Ends the reading for a cursor that goes elsewhere: to the last row, to a new one.
    void leaveQuery();
    /// Reads all rows still to come, if they come from the table; they stay as they are now, whatever is
    /// written next.
    void takeInRest(const QString& table);

    void standOn(At place, size_t position, RowPtr row);
    void standOnAdded(size_t position);
    void moveFirst();
    void moveNext();
    void moveLast();
    int count();

    const QVariant& value(int column);
    void setValue(int column, const QVariant& stored);
    void write(const RowPtr& row);
    void insert(Row& row);
    void update(Row& row);
    void bindChanged(Prepared& target, const Row& row) const;
};

} // namespace ado
