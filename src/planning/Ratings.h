#pragma once

#include <QString>
#include <vector>

/// How the clients' feedback rates the workers. All throw OverflowError for a figure beyond 16 bits and
/// ado::DatabaseError.

/// The sum of the scores of a worker's lines.
qint16 GetWorkerScore(qint32 workerId);

/// The average score over all lines ever given to a worker, scored or not, halves rounded to even: 0 to 5
/// stars in practice. 0 for a worker whose scores average 1 or less.
qint16 GetWorkerRating(qint32 workerId);

/// Rebuilds the table `Rank`: a row for each worker, with score and rating. False, with the table left empty,
/// where there are no workers.
bool RebuildRank();

/// A row of the table `Rank`.
struct Rank
{
    QString worker;
    QString score;
    qint32 rating = 0;
};

/// The rows of the table `Rank`, the highest score first.
std::vector<Rank> readRanks();

/// How many lines of a search a worker has; `sql` selects one worker's lines, with "%id" for the worker's id.
struct WorkerLines
{
    QString worker;
    qint16 lines = 0;
};
std::vector<WorkerLines> countByWorker(const QString& sql);
void JobCount(const QString& sql, qint16 workerId, qint16& count);
