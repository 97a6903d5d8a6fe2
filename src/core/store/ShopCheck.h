#pragma once

#include "platform/values/Progress.h"

#include <QString>
#include <QStringList>
#include <vector>

/// Looks over the whole shop for what does not fit together. It reads by a connection of its own and changes
/// nothing; what it finds is mended one by one, when the operator asks for it.
namespace shopcheck {

struct Check;

struct Finding
{
    QString what;
    QString remedy;               ///< what the operator can do about it, or what a mend will do
    const Check* check = nullptr; ///< that found it
    QStringList row = {};         ///< the row that it found
    bool mayBeMeant = false;      ///< no fault of the books: the shop can go on with it
    /// True where mend() puts it right.
    bool canBeMended() const;
};

struct Report
{
    std::vector<Finding> findings;
    int cards = 0;
    int lines = 0;
    int postings = 0;
    int pictures = 0;
};

/// Of one kind of fault so many are named; the others are counted.
inline constexpr int mostOfAKind = 20;

/// Slow: two seconds in a full shop. For any thread. A damaged file is a finding, and what can still be read
/// of it is looked over; nothing of it can be mended. Throws OperatorError and Cancelled.
/// `database` is another file of a shop, with the pictures of the open one; the open shop for an empty path.
Report run(const Progress& progress, const QString& database = {});

/// Does what the finding's remedy says, whole or not at all. Throws OperatorError, with nothing written, when
/// the shop is no longer as it was found.
void mend(const Finding& finding);

} // namespace shopcheck
