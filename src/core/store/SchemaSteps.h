#pragma once

#include <functional>
#include <vector>

namespace ado {
class Connection;
}

/// What changes a shop's file of one version into the next.
struct SchemaStep
{
    int version;                                       ///< that the file has before it; after it, one more
    std::function<void(ado::Connection& shop)> change; ///< the version itself is written for it
};

/// The steps up to the version of this program, in order. The first version that the program knows is its
/// own: there is none yet.
const std::vector<SchemaStep>& schemaSteps();

/// Brings the open file to the version of this program: the steps that it lacks are made on a copy, the copy
/// is proved and takes the shop's place, and the file as it was is kept as a restore keeps it. The connection
/// is open on the shop after it. Returns false, with nothing done, for a version from which no steps lead
/// here. Throws OperatorError: the shop is as it was then.
bool bringUpToDate(const std::vector<SchemaStep>& steps = schemaSteps());
