#include "planning/Ratings.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

qint32 sumOfScores(qint32 workerId)
{
    return one(u"SELECT Sum(Score) from Jobs_Detail where WorkerID="_s + QString::number(workerId));
}

} // namespace

qint16 GetWorkerScore(qint32 workerId)
{
    return values::toInt16(sumOfScores(workerId), u"Score of the worker"_s);
}

qint16 GetWorkerRating(qint32 workerId)
{
    const qint32 lines =
        one(u"Select Count(*) from Jobs_Detail where WorkerID="_s + QString::number(workerId));
    const qint32 sum = sumOfScores(workerId);
    return lines < sum ? values::CInt(double(sum) / lines, u"Rating of the worker"_s) : qint16(0);
}

bool RebuildRank()
{
    bool anyWorkers = false;
    DE.connection().writeBatch(
        [&] {
            DE.connection().Execute(u"Delete from Rank"_s);
            each(u"Select * from Accounts"_s + whereType(AccountType::Worker), [&](ado::Recordset& worker) {
                anyWorkers = true;
                const qint32 id = worker["ID"].integer();
                addRow(u"Rank"_s, [&](ado::Recordset& rank) {
                    rank["Name"] = worker["Title"].text();
                    rank["Score"] = GetWorkerScore(id);
                    rank["Rating"] = GetWorkerRating(id);
                });
            });
        },
        {});
    return anyWorkers;
}

std::vector<Rank> readRanks()
{
    std::vector<Rank> ranks;
    each(u"Select * from Rank order by Score desc"_s, [&ranks](ado::Recordset& row) {
        ranks.push_back({row["Name"].text(), row["Score"].text(), row["Rating"].integer()});
    });
    return ranks;
}

void JobCount(const QString& sql, qint16 workerId, qint16& count)
{
    withRows(QString(sql).replace("%id"_L1, QString::number(workerId)), [&count](ado::Recordset& lines) {
        count = values::toInt16(lines.RecordCount(), u"Number of lines"_s);
    });
}

std::vector<WorkerLines> countByWorker(const QString& sql)
{
    std::vector<WorkerLines> counts;
    each(u"Select * from Accounts"_s + whereType(AccountType::Worker) + u" order by titlekey(Title)"_s,
         [&](ado::Recordset& worker) {
             const qint16 id = values::toInt16(worker["ID"].integer(), u"Worker number"_s);
             WorkerLines counted{worker["Title"].text()};
             JobCount(sql, id, counted.lines);
             counts.push_back(counted);
         });
    return counts;
}
