#include "media/Bitmap.h"

#include "platform/devices/Files.h"
#include "platform/values/Errors.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace bitmap {

void write(const QImage& image, const QString& path)
{
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && image.save(&file, "BMP");
    if (!written || !file.commit())
        throw OperatorError(u"The picture cannot be written to %1: %2\n\nNothing has been saved."_s.arg(
            QDir::toNativeSeparators(path), file.errorString()));
    files::keepPrivate(path);
    files::sync(QFileInfo(path).absolutePath());
}

} // namespace bitmap
