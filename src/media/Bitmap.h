#pragma once

#include <QImage>
#include <QString>

namespace bitmap {

/// Writes the image as a Windows bitmap, whole or not at all, for its owner alone. A file of that name stays
/// as it was until the new one is on the disk. Throws OperatorError, which names the file.
void write(const QImage& image, const QString& path);

} // namespace bitmap
