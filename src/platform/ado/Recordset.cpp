#include "platform/ado/Recordset.h"

#include "platform/ado/RecordsetPrivate.h"

#include <algorithm>
#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace ado {

namespace {

QString quotedName(const QString& name) { return u'`' + name + u'`'; }

/// A stored value as a literal of the system's SQL.
QString literal(const QVariant& stored)
{
    if (!stored.isValid())
        return u"NULL"_s;
    if (stored.typeId() != QMetaType::QString)
        return toText(ColumnType::Double, stored);
    return u'\'' + stored.toString().replace(u'\'', "''"_L1) + u'\'';
}

} // namespace

// Values and writes

const QVariant& Recordset::Private::value(int column)
{
    const auto place = static_cast<size_t>(column);
    asked.resize(current->values.size());
    asked[place] = true;
    if (!current->deferred.empty() && current->deferred[place]) {
        current->values[place] = statement->column(column + hiddenColumns);
        current->deferred[place] = false;
    }
    if (current->defaultsUnread && !current->isChanged(place)) {
        auto rereading =
            base().prepare(u"SELECT rowid, * FROM "_s + quotedName(translated.table) + u" WHERE rowid=?"_s);
        rereading->bind(1, QVariant(current->key));
        if (base().step(*rereading)) {
            RowPtr stored = readRow(*rereading);
            for (size_t i = 0; i < current->values.size(); ++i) {
                if (!current->isChanged(i))
                    current->values[i] = std::move(stored->values[i]);
            }
        }
        base().statements.giveBack(std::move(rereading));
        current->defaultsUnread = false;
    }
    return current->values[place];
}

void Recordset::Private::setValue(int column, const QVariant& stored)
{
    if (!current)
        throw NoCurrentRecordError();
    takeInCurrent();
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
        names << quotedName(column(i).name);
        marks << u"?"_s;
    }
    const QString target = u"INSERT INTO "_s + quotedName(translated.table);
    auto inserting = base().prepare(names.isEmpty() ? QString(target + u" DEFAULT VALUES"_s)
                                                    : QString(target + u'(' + names.join(u',') +
                                                              u") VALUES("_s + marks.join(u',') + u')'));
    bindChanged(*inserting, row);
    base().beforeWrite(translated.table);
    base().step(*inserting);
    base().statements.giveBack(std::move(inserting));
    row.key = sqlite3_last_insert_rowid(base().database);
    row.defaultsUnread = true;
}

void Recordset::Private::update(Row& row)
{
    QStringList terms;
    for (size_t i = 0; i < row.values.size(); ++i) {
        if (row.isChanged(i))
            terms << quotedName(column(i).name) + u"=?"_s;
    }
    auto updating = base().prepare(u"UPDATE "_s + quotedName(translated.table) + u" SET "_s +
                                   terms.join(u',') + u" WHERE rowid=?"_s);
    bindChanged(*updating, row);
    updating->bind(static_cast<int>(terms.size()) + 1, QVariant(row.key));
    base().beforeWrite(translated.table);
    base().step(*updating);
    base().statements.giveBack(std::move(updating));
    if (sqlite3_changes(base().database) == 0)
        throw DatabaseError(u"The row cannot be written: it has been deleted meanwhile."_s);
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
    d->translated = dialect::translate(d->shape ? d->shape->parentSql : select);
    if (!d->translated.isSelect)
        throw DatabaseError(u"A recordset opens on a select only: "_s + sql);
    d->hiddenColumns = d->translated.table.isEmpty() ? 0 : 1;
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
    return d->column(static_cast<size_t>(column)).name;
}

Field Recordset::fieldAt(int column, QAnyStringView name)
{
    if (column < 0 || column >= FieldCount())
        throw DatabaseError(u"There is no field %1."_s.arg(name.toString()));
    d->readBlock();
    if (!d->current)
        throw NoCurrentRecordError();
    return Field(*this, column);
}

Field Recordset::operator[](QAnyStringView name)
{
    d->requireOpen();
    return fieldAt(d->columnIndex(name), name);
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
        throw DatabaseError(u"There is no chapter "_s + name);
    const QVariant key = (*this)[d->shape->parentField].stored();
    const QString condition = key.isValid() ? QString(quotedName(d->shape->childField) + u'=' + literal(key))
                                            : QString(quotedName(d->shape->childField) + u" IS NULL"_s);
    if (!d->chapter)
        d->chapter = std::make_unique<Recordset>(d->connection);
    d->chapter->Open(dialect::withCondition(d->shape->childSql, condition));
    return *d->chapter;
}

} // namespace ado
