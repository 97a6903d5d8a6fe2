#pragma once

#include "platform/values/Literals.h"

#include <QString>
#include <QStringList>
#include <vector>

/// What the check of the shop looks for, by subject.
namespace shopcheck {

/// A query that finds what does not fit; %1, %2 ... in the other texts are the columns of a row that it
/// found.
struct Check
{
    QString query;
    QString what;
    QString remedy;
    /// Statements that do what the remedy says; none where the operator follows it on the shop's screens.
    /// What they put back comes from the shop's own rows.
    QStringList mend = {};
    bool mayBeMeant = false; ///< the operator may have done so on purpose
};

/// What every other record points at: accounts, items, and dates that can be read. Comes first, as a card
/// opens only when its client and its items are there.
const std::vector<Check>& recordChecks();
const std::vector<Check>& cardChecks();
const std::vector<Check>& bookChecks();
const std::vector<Check>& wageChecks();

} // namespace shopcheck
