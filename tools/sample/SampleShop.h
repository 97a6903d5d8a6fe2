#pragma once

#include "sample/Plan.h"

#include <QString>

namespace sample {

/// Lays a shop of the plan's size into the folder, which must have no shop yet: the database, the pictures,
/// the logo. Opens it for this and leaves it open, with the session set to it. The same plan lays the same
/// shop. Throws ado::DatabaseError.
void layShop(const Plan& plan, const QString& folder);

} // namespace sample
