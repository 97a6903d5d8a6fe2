#pragma once

#include "sample/Catalogue.h"
#include "sample/Random.h"

#include <QString>

/// What is written on cards: by the shop, by its clients.
namespace sample {

/// The shop's note on a line.
QString remark(const Garment& garment, Random& random);
/// What the client asked for.
QString wish(Random& random);
QString cardRemark(Random& random);
QString cancelReason(Random& random);
/// What a client says who gives this score (1 to 5).
QString feedback(int score, Random& random);
/// Where a finished piece hangs.
QString shelf(Random& random);
/// The colour of a cloth, 0xRRGGBB.
quint32 cloth(Random& random);

} // namespace sample
