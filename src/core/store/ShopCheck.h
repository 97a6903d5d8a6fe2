#pragma once

#include "platform/values/Watch.h"

#include <QString>
#include <vector>

/// Looks over the whole shop for what does not fit together. It reads by a connection of its own and changes
/// nothing.
namespace shopcheck {

struct Finding
{
    QString what;
    QString remedy; ///< what the operator can do about it
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

/// Slow: two seconds in a full shop. For any thread. Throws OperatorError when the file cannot be read, and
/// GivenUp.
Report run(const Watch& watch);

} // namespace shopcheck
