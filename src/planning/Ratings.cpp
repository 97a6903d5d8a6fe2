#include "planning/Ratings.h"

#include "core/store/DE.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

/// The one number of a worker that the query ends with the id of; 0 for none.
qint32 numberOfWorker(const QString& sql, qint32 workerId)
{
    ado::Recordset& lines = DE.rsJOBS_DETAIL2;
    lines.Open(sql + QString::number(workerId));
    const qint32 number = lines[0].integer();
    lines.Close();
    return number;
}

qint32 sumOfScores(qint32 workerId)
{
    return numberOfWorker(u"SELECT Sum(Score) from Jobs_Detail where WorkerID="_s, workerId);
}

} // namespace

qint16 GetWorkerScore(qint32 workerId)
{
    return values::toInt16(sumOfScores(workerId), u"Score of the worker"_s);
}

qint16 GetWorkerRating(qint32 workerId)
{
    const qint32 lines = numberOfWorker(u"Select Count(*) from Jobs_Detail where WorkerID="_s, workerId);
    const qint32 sum = sumOfScores(workerId);
    return lines < sum ? values::CInt(double(sum) / lines, u"Rating of the worker"_s) : qint16(0);
}

bool RebuildRank()
{
    bool anyWorkers = false;
    DE.connection().writeBatch(
        [&] {
            DE.connection().Execute(u"Delete from Rank"_s);
            ado::Recordset& workers = DE.rsaccounts;
            workers.Open(u"Select * from Accounts where type=%1"_s.arg(1));
            anyWorkers = !workers.AtEOF();
            if (anyWorkers) {
                ado::Recordset& ranks = DE.rsrank;
                ranks.Open(u"Select * from Rank"_s);
                for (; !workers.AtEOF(); workers.MoveNext()) {
                    const qint32 worker = workers["ID"].integer();
                    ranks.AddNew();
                    ranks["Name"] = workers["Title"].text();
                    ranks["Score"] = GetWorkerScore(worker);
                    ranks["Rating"] = GetWorkerRating(worker);
                }
                ranks.UpdateBatch();
                ranks.Close();
            }
            workers.Close();
        },
        {});
    return anyWorkers;
}
