#include "accounts/Wages.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"

using namespace Qt::StringLiterals;

namespace wages {

namespace {

/// The condition on worker, days and state.
QString within(const Scope& scope)
{
    return u"WorkerID=%1 and date between %2 and %3 and  DoneByWorker>0 "_s.arg(
        QString::number(scope.worker), sqlDate(scope.from), sqlDate(scope.to));
}

QString markedAs(Which which)
{
    switch (which) {
    case Which::Unpaid:
        return u"MarkAsPaid=0 and "_s;
    case Which::Paid:
        return u"MarkAsPaid>0 and "_s;
    default:
        return {};
    }
}

} // namespace

QStringList Line::cells() const
{
    return {dateText(date),
            job,
            client,
            item,
            moneyText(wage.toDouble()),
            moneyText(balance.toDouble()),
            dateText(completed),
            paid ? u"Paid"_s : u"Unpaid"_s};
}

QString linesOf(const Scope& scope, Which which)
{
    return u"Select * from JOBS_Detail where "_s + markedAs(which) + within(scope) + u" order by date,id"_s;
}

QString linesOfPayroll(qint32 number)
{
    return u"Select * from JOBS_Detail where PayrollID=%1 order by ID"_s.arg(number);
}

std::vector<Line> read(const QString& statement)
{
    std::vector<Line> lines;
    QHash<qint32, QString> items; // a worker makes the same few all the year
    Currency balance;
    each(statement, [&](ado::Recordset& row) {
        const qint32 item = row["ItemID"].integer();
        if (!items.contains(item))
            items.insert(item, GetItemName(item));
        balance += row["WorkerWagesDue"].money();
        lines.push_back({.id = row["ID"].integer(),
                         .date = row["Date"].date(),
                         .job = row["JobID"].text() + u" / "_s + row["ItemSr"].text(),
                         .client = row["ClintName"].text(),
                         .item = items.value(item),
                         .wage = row["WorkerWagesDue"].money(),
                         .balance = balance,
                         .completed = row["CompletedDate"].date(),
                         .paid = row["MarkAsPaid"].integer() != 0});
    });
    return lines;
}

std::vector<ItemCount> itemCounts(const Scope& scope) { return countByItem(within(scope)); }

void stage(const std::vector<Line>& lines)
{
    static constexpr const char* columns[] = {"Date",  "JobID",   "Client",    "Item",
                                              "wages", "balance", "completed", "Status"};
    DE.connection().writeBatch([&lines] {
        DE.connection().Execute(u"Delete * from wagesregister"_s);
        withRows(u"Select * from wagesregister"_s, [&lines](ado::Recordset& staged) {
            for (const Line& line : lines) {
                const QStringList cells = line.cells();
                staged.AddNew();
                for (int column = 0; column < cells.size(); ++column)
                    staged[columns[column]] = cells[column];
                staged.Update();
            }
        });
    });
}

} // namespace wages
