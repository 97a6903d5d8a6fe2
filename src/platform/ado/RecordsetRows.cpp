#include "platform/ado/RecordsetPrivate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ado {

namespace {

/// A result of up to so many rows is read at once and keeps no lock on the file.
constexpr size_t rowsReadAhead = 16;

/// Names of columns are plain ASCII: compared without the tables of all letters.
bool sameName(const QString& column, QAnyStringView name)
{
    if (column.size() != name.size())
        return false;
    return name.visit([&column](auto letters) {
        for (qsizetype i = 0; i < letters.size(); ++i) {
            const auto lower = [](char16_t letter) {
                return letter >= u'A' && letter <= u'Z' ? char16_t(letter + (u'a' - u'A')) : letter;
            };
            const QChar letter = [](auto unit) {
                if constexpr (std::is_convertible_v<decltype(unit), QChar>)
                    return QChar(unit);
                else
                    return QChar::fromLatin1(unit); // column names are ASCII
            }(letters[i]);
            if (lower(column[i].unicode()) != lower(letter.unicode()))
                return false;
        }
        return true;
    });
}

} // namespace

// The rows of the query

void Recordset::Private::requireOpen() const
{
    if (!open)
        throw DatabaseError(u"The recordset is closed."_s);
}

void Recordset::Private::requireWritable() const
{
    if (translated.table.isEmpty())
        throw DatabaseError(u"The rows of this query cannot be written."_s);
}

int Recordset::Private::columnIndex(QAnyStringView name) const
{
    const auto first = columns->begin() + hiddenColumns;
    const auto found = std::find_if(first, columns->end(),
                                    [name](const Column& column) { return sameName(column.name, name); });
    return found == columns->end() ? -1 : static_cast<int>(found - first);
}

const Column& Recordset::Private::column(size_t place) const
{
    return (*columns)[place + static_cast<size_t>(hiddenColumns)];
}

void Recordset::Private::runQuery()
{
    endStatement();
    block.clear();
    blockIsWhole = false;
    blockHasFirst = true;
    countInFile.reset();
    asked.clear();
    at = At::Unread;
    current.reset();
    std::erase_if(added, [](const RowPtr& row) { return row->key != 0; });
    statement = base().prepare(translated.sql);
    columns = statement->columns();
}

void Recordset::Private::readBlock()
{
    if (at != At::Unread)
        return;
    while (block.size() < rowsReadAhead && statement) {
        if (RowPtr row = nextFromFile())
            block.push_back(std::move(row));
    }
    if (!block.empty())
        standOn(At::Block, 0, block.front());
    else
        standOnAdded(0);
}

void Recordset::Private::close()
{
    if (!open)
        return;
    open = false;
    chapter.reset();
    endStatement();
    std::erase_if(base().recordsets, [this](const Recordset* other) { return other->d.get() == this; });
    block.clear();
    added.clear();
    unwritten.clear();
    current.reset();
    at = At::End;
}

bool Recordset::Private::stepInFile()
{
    try {
        if (base().step(*statement))
            return true;
    } catch (...) {
        // Half a result must not pass for the whole.
        statement.reset();
        close();
        throw;
    }
    endStatement();
    if (at != At::Stream)
        blockIsWhole = true;
    return false;
}

RowPtr Recordset::Private::nextFromFile() { return stepInFile() ? readRow(*statement) : nullptr; }

RowPtr Recordset::Private::nextOfStream()
{
    if (!stepInFile())
        return nullptr;
    auto row = std::make_shared<Row>();
    const size_t visible = columns->size() - static_cast<size_t>(hiddenColumns);
    asked.resize(visible);
    if (hiddenColumns > 0)
        row->key = statement->column(0).toLongLong();
    row->values.resize(visible);
    row->deferred.resize(visible);
    for (size_t i = 0; i < visible; ++i) {
        if (asked[i])
            row->values[i] = statement->column(static_cast<int>(i) + hiddenColumns);
        else
            row->deferred[i] = true;
    }
    return row;
}

void Recordset::Private::takeInCurrent()
{
    if (!current || current->deferred.empty())
        return;
    for (size_t i = 0; i < current->deferred.size(); ++i)
        if (current->deferred[i])
            current->values[i] = statement->column(static_cast<int>(i) + hiddenColumns);
    current->deferred.clear();
}

RowPtr Recordset::Private::readRow(const Prepared& source) const
{
    auto row = std::make_shared<Row>();
    const size_t visible = columns->size() - static_cast<size_t>(hiddenColumns);
    row->values.reserve(visible);
    if (hiddenColumns > 0)
        row->key = source.column(0).toLongLong();
    for (size_t i = 0; i < visible; ++i)
        row->values.push_back(source.column(static_cast<int>(i) + hiddenColumns));
    return row;
}

void Recordset::Private::endStatement()
{
    if (statement)
        base().statements.giveBack(std::move(statement));
}

void Recordset::Private::leaveQuery()
{
    takeInCurrent();
    endStatement();
    blockHasFirst = blockHasFirst && at != At::Unread;
}

void Recordset::Private::takeInRest(const QString& table)
{
    if (!statement || (!table.isEmpty() && !translated.table.isEmpty() &&
                       table.compare(translated.table, Qt::CaseInsensitive) != 0))
        return;
    readBlock();
    if (at == At::Stream) {
        takeInCurrent();
        block.assign(1, current);
        blockHasFirst = false;
        at = At::Block;
        index = 0;
    }
    while (statement) {
        if (RowPtr row = nextFromFile())
            block.push_back(std::move(row));
    }
}

// The cursor

void Recordset::Private::standOn(At place, size_t position, RowPtr row)
{
    at = place;
    index = position;
    current = std::move(row);
}

void Recordset::Private::standOnAdded(size_t position)
{
    if (position < added.size())
        standOn(At::Added, position, added[position]);
    else
        standOn(At::End, 0, nullptr);
}

void Recordset::Private::moveFirst()
{
    readBlock();
    const bool blockServes = blockHasFirst && (blockIsWhole || at == At::Block);
    if (!blockServes) {
        runQuery();
        readBlock();
    } else if (!block.empty())
        standOn(At::Block, 0, block.front());
    else
        standOnAdded(0);
}

void Recordset::Private::moveNext()
{
    readBlock();
    switch (at) {
    case At::Unread:
    case At::End:
        throw NoCurrentRecordError();
    case At::Added:
        standOnAdded(index + 1);
        return;
    case At::Last:
        standOnAdded(0);
        return;
    case At::Block:
        if (index + 1 < block.size()) {
            standOn(At::Block, index + 1, block[index + 1]);
            return;
        }
        break;
    case At::Stream:
        break;
    }
    RowPtr row = statement ? nextOfStream() : nullptr;
    if (row)
        standOn(At::Stream, 0, std::move(row));
    else
        standOnAdded(0);
}

void Recordset::Private::moveLast()
{
    if (!added.empty()) {
        leaveQuery();
        standOnAdded(added.size() - 1);
        return;
    }
    if (!blockIsWhole && translated.reversed.isEmpty())
        takeInRest({});
    if (blockIsWhole) {
        if (block.empty())
            standOn(At::End, 0, nullptr);
        else
            standOn(At::Block, block.size() - 1, block.back());
        return;
    }
    leaveQuery();
    auto turned = base().prepare(translated.reversed);
    RowPtr last = base().step(*turned) ? readRow(*turned) : nullptr;
    base().statements.giveBack(std::move(turned));
    standOn(last ? At::Last : At::End, 0, last);
}

int Recordset::Private::count()
{
    readBlock();
    if (blockIsWhole && blockHasFirst)
        return static_cast<int>(block.size() + added.size());
    if (!countInFile) {
        auto counting = base().prepare(translated.countSql);
        base().step(*counting);
        const auto written =
            std::count_if(added.begin(), added.end(), [](const RowPtr& row) { return row->key != 0; });
        countInFile = counting->column(0).toInt() - static_cast<int>(written);
        base().statements.giveBack(std::move(counting));
    }
    return *countInFile + static_cast<int>(added.size());
}

} // namespace ado
