#include "platform/forms/Pictures.h"

#include <QFileInfo>
#include <QImageReader>

namespace forms {

namespace {

/// Reads by content: the shop's pictures are all named .bmp. What is no plain file (a pipe, say) is never
/// opened.
void aim(QImageReader& reader, const QString& path)
{
    if (QFileInfo(path).isFile())
        reader.setFileName(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
}

} // namespace

bool isPicture(const QString& path)
{
    QImageReader reader;
    aim(reader, path);
    return reader.canRead();
}

QPixmap loadPicture(const QString& path, const QSize& within)
{
    QImageReader reader;
    aim(reader, path);
    const QSize size = reader.size();
    if (size.width() > within.width() || size.height() > within.height())
        reader.setScaledSize(size.scaled(within, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return QPixmap::fromImageReader(&reader);
}

} // namespace forms
