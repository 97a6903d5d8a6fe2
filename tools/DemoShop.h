#pragma once

#include <QString>

/// Lays a small believable shop into `folder`, opens it and sets the session to it: for pictures of the
/// screens. Cards 1001 and on; the card that shows best is `showpiece`.
namespace demo {

inline constexpr int showpiece = 1004;

void layShop(const QString& folder);

} // namespace demo
