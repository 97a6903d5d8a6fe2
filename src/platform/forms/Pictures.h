#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>

namespace forms {

/// Whether a file holds a picture of a kind that can be read, whatever its name ends with.
bool isPicture(const QString& path);

/// A picture from a file, scaled down as it is read to fit `within` (in device pixels); a smaller one keeps
/// its size. Null when the file cannot be read, or has more pixels than can be read in a moment (32 million;
/// 120 million in a JPEG file). From any thread.
QImage loadImage(const QString& path, const QSize& within);
/// The same, to be shown at once. For the screens' thread only.
QPixmap loadPicture(const QString& path, const QSize& within);

} // namespace forms
