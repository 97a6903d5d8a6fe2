#pragma once

#include <QPixmap>

/// A worker's rating as a row of five stars, `rating` of them filled, `height` pixels of the layout high.
/// Null for a rating that is not 0 to 5.
QPixmap stars(int rating, int height);
