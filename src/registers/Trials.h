#pragma once

#include "core/store/Codes.h"

#include <QDate>
#include <QString>
#include <vector>

namespace ado {
class Recordset;
}

/// The trials of the cards: who is to come when, and whether the client came.
namespace trials {

struct Trial
{
    qint32 job = 0;
    QString client;
    QDate day;
    QString status; ///< as statusText() words it
    QString mobile;
};

/// The trials that a query of cards finds. Throws like the look-ups.
std::vector<Trial> read(const QString& cards);

/// "Appeared [10-Feb-2024 ]", "Not Appeared", "Trial Canceled"; empty for a number that is no state.
QString statusText(ado::Recordset& card);

/// Keep on the card what became of its trial; the second gives it another day. Throw ado::DatabaseError.
void setState(qint32 job, TrialState state);
void setDay(qint32 job, const QDate& day);

} // namespace trials
