#include "masters/BringIn.h"

#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "platform/values/TextFile.h"
#include "platform/values/VCards.h"

#include <QDir>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace bringin {

namespace {

constexpr int rowsAStep = 250;

/// Contacts as a table, under the names of a client's fields.
std::vector<values::TextRow> contactRows(const QString& text)
{
    std::vector<values::TextRow> rows;
    QStringList titles;
    for (const QString& name : fieldNames(Kind::Clients))
        titles << name;
    rows.push_back({0, titles << u"E-Mail"_s << u"Note"_s});
    int number = 0;
    for (const values::VCard& card : values::readVCards(text))
        rows.push_back({++number,
                        {card.name, card.mobile, card.street, card.city, card.region, card.birth, card.email,
                         card.note}});
    return rows;
}

QString separatorName(QChar separator)
{
    if (separator == u'\t')
        return u"tabs"_s;
    return separator == u';' ? u"semicolons"_s : u"commas"_s;
}

QString tableOf(Kind kind) { return kind == Kind::Clients ? u"Accounts"_s : u"Items"_s; }

} // namespace

const std::array<QString, fieldCount>& fieldNames(Kind kind)
{
    static const std::array<QString, fieldCount> ofClients{u"Name"_s, u"Mobile"_s, u"Address"_s,
                                                           u"City"_s, u"State"_s,  u"Date of Birth"_s};
    static const std::array<QString, fieldCount> ofItems{
        u"Name"_s, u"Fee"_s, u"Worker’s Fee"_s, u"Measurements"_s, u"Capacity a Day"_s, u"Pending Orders"_s};
    return kind == Kind::Clients ? ofClients : ofItems;
}

Source readSource(Kind kind, const QString& path)
{
    const QString text = values::readTextFile(path);
    Source source{path, {}, {}, 0};
    if (values::isVCards(text)) {
        if (kind == Kind::Items)
            throw OperatorError(
                u"%1 holds the contacts of a telephone: no items."_s.arg(QDir::toNativeSeparators(path)));
        source.form = u"contacts of a telephone"_s;
        source.rows = contactRows(text);
    } else {
        values::TextTable table = values::readTable(text);
        source.form = u"separated by "_s + separatorName(table.separator);
        source.rows = std::move(table.rows);
    }
    for (const values::TextRow& row : source.rows)
        source.columnCount = qMax(source.columnCount, int(row.cells.size()));
    if (kind == Kind::Clients)
        addWholeNames(source);
    return source;
}

int Plan::count(Fate fate) const
{
    return int(
        std::count_if(lines.begin(), lines.end(), [fate](const Line& line) { return line.fate == fate; }));
}

int take(const Plan& plan, const Progress& progress)
{
    DE.refuseIfLookedAt(); // or the living shop would be written to
    ado::Connection connection;
    connection.open(session.databasePath(), databasePassword());
    const QString nameField = plan.kind == Kind::Clients ? u"Title"_s : u"Name"_s;
    const int wanted = plan.count(Fate::New);
    int taken = 0;
    connection.writeBatch([&] {
        ado::Recordset rows(connection);
        rows.Open(u"Select * from %1 where Id=0"_s.arg(tableOf(plan.kind)));
        for (const Line& line : plan.lines) {
            if (line.fate != Fate::New)
                continue;
            if (progress.stop.stop_requested())
                throw Cancelled();
            if (taken % rowsAStep == 0 && progress.tell)
                progress.tell(u"Bringing in %1 of %2"_s.arg(taken + 1).arg(wanted));
            rows.AddNew();
            rows[nameField] = line.title;
            std::visit([&rows](const auto& record) { record.writeTo(rows); }, line.record);
            rows.Update();
            if (rows["Id"].integer() > std::numeric_limits<qint16>::max())
                throw OperatorError(
                    u"The numbers of the shop reach for %1 more, and the file brings %2."_s.arg(taken).arg(
                        wanted));
            ++taken;
        }
        rows.Close();
        if (progress.stop.stop_requested())
            throw Cancelled();
    });
    return taken;
}

} // namespace bringin
