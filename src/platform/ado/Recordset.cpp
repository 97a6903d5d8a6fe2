#include "platform/ado/Recordset.h"

#include "platform/ado/RecordsetPrivate.h"

#include <algorithm>
#include <sqlcipher/sqlite3.h>

namespace ado {

namespace {

/// A result of up to so many rows is read at once and keeps no lock on the file.
constexpr size_t rowsReadAhead = 16;

QString quotedName(const QString& name) { return u'`' + name + u'`'; }

/// A stored value as a literal of the system's SQL.
QString literal(const QVariant& stored)
{
    if (!stored.isValid())
        return QStringLiteral("NULL");
    if (stored.typeId() != QMetaType::QString)
        return toText(ColumnType::Double, stored);
    return u'\'' + stored.toString().replace(u'\'', QLatin1String("''")) + u'\'';
}

template <typename Text>
int findColumn(const Columns& columns, int hidden, Text name)
{
    const auto first = columns.begin() + hidden;
    const auto found = std::find_if(first, columns.end(), [name](const Column& column) {
        return column.name.size() == name.size() && column.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == columns.end())
        return -1;
    return static_cast<int>(found - first);
}

} // namespace

// The rows of the query

void Recordset::Private::requireOpen() const
{
    if (!open)
        throw DatabaseError(QStringLiteral("The recordset is closed."));
}

void Recordset::Private::requireWritable() const
{
    if (words.table.isEmpty())
        throw DatabaseError(QStringLiteral("The rows of this query cannot be written."));
}

int Recordset::Private::columnIndex(QStringView name) const
{
    return findColumn(*columns, hiddenColumns, name);
}

int Recordset::Private::columnIndex(QLatin1StringView name) const
{
    return findColumn(*columns, hiddenColumns, name);
}

void Recordset::Private::runQuery()
{
    endStatement();
    block.clear();
    blockIsWhole = false;
    blockHasFirst = true;
    countInFile.reset();
    at = At::Unread;
    current.reset();
    std::erase_if(added, [](const RowPtr& row) { return row->key != 0; });
    statement = base().prepare(words.sql);
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

RowPtr Recordset::Private::nextFromFile()
{
    try {
        if (base().step(*statement))
            return readRow(*statement);
    } catch (...) {
        // Half a result must not pass for the whole.
        statement.reset();
        close();
        throw;
    }
    endStatement();
    if (at != At::Stream)
        blockIsWhole = true;
    return nullptr;
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
    endStatement();
    blockHasFirst = blockHasFirst && at != At::Unread;
}

void Recordset::Private::takeInRest(const QString& table)
{
    if (!statement ||
        (!table.isEmpty() && !words.table.isEmpty() && table.compare(words.table, Qt::CaseInsensitive) != 0))
        return;
    readBlock();
    if (at == At::Stream) {
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
    RowPtr row = statement ? nextFromFile() : nullptr;
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
    if (!blockIsWhole && words.reversed.isEmpty())
        takeInRest({});
    if (blockIsWhole) {
        if (block.empty())
            standOn(At::End, 0, nullptr);
        else
            standOn(At::Block, block.size() - 1, block.back());
        return;
    }
    leaveQuery();
    auto turned = base().prepare(words.reversed);
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
        auto counting = base().prepare(words.countSql);
        base().step(*counting);
        const auto written =
            std::count_if(added.begin(), added.end(), [](const RowPtr& row) { return row->key != 0; });
        countInFile = counting->column(0).toInt() - static_cast<int>(written);
        base().statements.giveBack(std::move(counting));
    }
    return *countInFile + static_cast<int>(added.size());
}

// Values and writes

const QVariant& Recordset::Private::value(int column)
{
    const auto place = static_cast<size_t>(column);
    if (current->unread && !current->isChanged(place)) {
        auto rereading = base().prepare(QStringLiteral("SELECT rowid, * FROM ") + quotedName(words.table) +
                                        QStringLiteral(" WHERE rowid=?"));
        rereading->bind(1, QVariant(current->key));
        if (base().step(*rereading)) {
            RowPtr stored = readRow(*rereading);
            for (size_t i = 0; i < current->values.size(); ++i) {
                if (!current->isChanged(i))
                    current->values[i] = std::move(stored->values[i]);
            }
        }
        base().statements.giveBack(std::move(rereading));
        current->unread = false;
    }
    return current->values[place];
}

void Recordset::Private::setValue(int column, const QVariant& stored)
{
    if (!current)
        throw NoCurrentRecordError();
    current->values[static_cast<size_t>(column)] = stored;
    current->changed.resize(current->values.size());
    current->changed[static_cast<size_t>(column)] = true;
    if (std::find(unwritten.begin(), unwritten.end(), current) == unwritten.end())
        unwritten.push_back(current);
}

void Recordset::Private::write(const RowPtr& row)
{
    if (row->key == 0)
        insert(*row);
    else if (!row->changed.empty())
        update(*row);
    row->changed.clear();
    std::erase(unwritten, row);
}

void Recordset::Private::bindChanged(Prepared& target, const Row& row) const
{
    int parameter = 0;
    for (size_t i = 0; i < row.values.size(); ++i) {
        if (row.isChanged(i))
            target.bind(++parameter, row.values[i]);
    }
}

void Recordset::Private::insert(Row& row)
{
    QStringList names;
    QStringList marks;
    for (size_t i = 0; i < row.values.size(); ++i) {
        if (!row.isChanged(i))
            continue;
        names << quotedName((*columns)[i + static_cast<size_t>(hiddenColumns)].name);
        marks << QStringLiteral("?");
    }
    const QString target = QStringLiteral("INSERT INTO ") + quotedName(words.table);
    auto inserting =
        base().prepare(names.isEmpty() ? QString(target + QStringLiteral(" DEFAULT VALUES"))
                                       : QString(target + u'(' + names.join(u',') +
                                                 QStringLiteral(") VALUES(") + marks.join(u',') + u')'));
    bindChanged(*inserting, row);
    base().beforeWrite(words.table);
    base().step(*inserting);
    base().statements.giveBack(std::move(inserting));
    row.key = sqlite3_last_insert_rowid(base().database);
    row.unread = true;
}

void Recordset::Private::update(Row& row)
{
    QStringList terms;
    for (size_t i = 0; i < row.values.size(); ++i) {
        if (row.isChanged(i))
            terms << quotedName((*columns)[i + static_cast<size_t>(hiddenColumns)].name) +
                         QStringLiteral("=?");
    }
    auto updating =
        base().prepare(QStringLiteral("UPDATE ") + quotedName(words.table) + QStringLiteral(" SET ") +
                       terms.join(u',') + QStringLiteral(" WHERE rowid=?"));
    bindChanged(*updating, row);
    updating->bind(static_cast<int>(terms.size()) + 1, QVariant(row.key));
    base().beforeWrite(words.table);
    base().step(*updating);
    base().statements.giveBack(std::move(updating));
    if (sqlite3_changes(base().database) == 0)
        throw DatabaseError(QStringLiteral("The row cannot be written: it has been deleted meanwhile."));
}

// The public face

Recordset::Recordset(Connection& connection, const QString& command)
    : d(std::make_unique<Private>(connection, command))
{
}

Recordset::~Recordset() { Close(); }

void Recordset::Open(const QString& sql)
{
    Close();
    const QString select = dialect::expandTableName(sql);
    d->shape = dialect::parseShape(select);
    d->words = dialect::translate(d->shape ? d->shape->parentSql : select);
    if (!d->words.isSelect)
        throw DatabaseError(QStringLiteral("A recordset opens on a select only: ") + sql);
    d->hiddenColumns = d->words.table.isEmpty() ? 0 : 1;
    d->runQuery();
    d->open = true;
    d->base().recordsets.push_back(this);
}

void Recordset::Open() { Open(d->command); }

void Recordset::Close() { d->close(); }

bool Recordset::State() const { return d->open; }

int Recordset::RecordCount()
{
    d->requireOpen();
    return d->count();
}

bool Recordset::AtEOF()
{
    d->requireOpen();
    d->readBlock();
    return d->at == Private::At::End;
}

void Recordset::MoveFirst()
{
    d->requireOpen();
    d->moveFirst();
}

void Recordset::MoveNext()
{
    d->requireOpen();
    d->moveNext();
}

void Recordset::MoveLast()
{
    d->requireOpen();
    d->moveLast();
}

int Recordset::FieldCount() const
{
    d->requireOpen();
    return static_cast<int>(d->columns->size()) - d->hiddenColumns;
}

QString Recordset::FieldName(int column) const
{
    if (column < 0 || column >= FieldCount())
        throw SubscriptError();
    return (*d->columns)[static_cast<size_t>(column + d->hiddenColumns)].name;
}

bool Recordset::HasField(const QString& name) const
{
    d->requireOpen();
    return d->columnIndex(QStringView(name)) >= 0;
}

Field Recordset::fieldAt(int column, const QString& name)
{
    if (column < 0 || column >= FieldCount())
        throw DatabaseError(QStringLiteral("There is no field %1.").arg(name));
    d->readBlock();
    if (!d->current)
        throw NoCurrentRecordError();
    return Field(*this, column);
}

Field Recordset::operator[](const QString& name)
{
    d->requireOpen();
    return fieldAt(d->columnIndex(QStringView(name)), name);
}

Field Recordset::operator[](const char* name)
{
    d->requireOpen();
    const QLatin1StringView text(name);
    return fieldAt(d->columnIndex(text), text);
}

Field Recordset::operator[](int column)
{
    d->requireOpen();
    return fieldAt(column, QString::number(column));
}

void Recordset::AddNew()
{
    d->requireOpen();
    d->requireWritable();
    d->leaveQuery();
    auto row = std::make_shared<Row>();
    row->values.resize(static_cast<size_t>(FieldCount()));
    d->unwritten.push_back(row);
    d->added.push_back(row);
    d->standOnAdded(d->added.size() - 1);
}

void Recordset::Update()
{
    d->requireOpen();
    d->readBlock();
    if (!d->current)
        throw NoCurrentRecordError();
    const RowPtr row = d->current;
    if (std::find(d->unwritten.begin(), d->unwritten.end(), row) != d->unwritten.end())
        d->write(row);
}

void Recordset::UpdateBatch()
{
    d->requireOpen();
    const auto writeAll = [this] {
        while (!d->unwritten.empty())
            d->write(RowPtr(d->unwritten.front()));
    };
    if (d->unwritten.size() > 1)
        d->connection.writeBatch(writeAll);
    else
        writeAll();
}

Recordset& Recordset::Chapter(const QString& name)
{
    d->requireOpen();
    if (!d->shape || name.compare(d->shape->chapter, Qt::CaseInsensitive) != 0)
        throw DatabaseError(QStringLiteral("There is no chapter ") + name);
    const QVariant key = (*this)[d->shape->parentField].stored();
    const QString condition = key.isValid()
                                  ? QString(quotedName(d->shape->childField) + u'=' + literal(key))
                                  : QString(quotedName(d->shape->childField) + QStringLiteral(" IS NULL"));
    if (!d->chapter)
        d->chapter = std::make_unique<Recordset>(d->connection);
    d->chapter->Open(dialect::withCondition(d->shape->childSql, condition));
    return *d->chapter;
}

} // namespace ado
