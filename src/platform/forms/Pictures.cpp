#include "platform/forms/Pictures.h"

#include <QFileInfo>
#include <QImageReader>

namespace forms {

namespace {

/// Reads by content: a picture's name may say another kind. What is no plain file (a pipe, say) is never
/// opened.
void aim(QImageReader& reader, const QString& path)
{
    if (QFileInfo(path).isFile())
        reader.setFileName(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
}

/// The most pixels that a picture may have. Photographs are read at the scale that is wanted; of the other
/// kinds each pixel goes through memory, and takes its time.
constexpr qint64 MostPixels = 32'000'000;
constexpr qint64 MostPixelsOfPhotograph = 120'000'000;

bool isTooLarge(const QImageReader& reader, const QSize& size)
{
    const bool photograph = reader.format() == "jpeg";
    return qint64(size.width()) * size.height() > (photograph ? MostPixelsOfPhotograph : MostPixels);
}

} // namespace

bool isPicture(const QString& path)
{
    QImageReader reader;
    aim(reader, path);
    return reader.canRead();
}

QImage loadImage(const QString& path, const QSize& within)
{
    QImageReader reader;
    aim(reader, path);
    const QSize size = reader.size();
    if (isTooLarge(reader, size))
        return {};
    if (size.width() > within.width() || size.height() > within.height())
        reader.setScaledSize(size.scaled(within, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

QPixmap loadPicture(const QString& path, const QSize& within)
{
    return QPixmap::fromImage(loadImage(path, within));
}

} // namespace forms
