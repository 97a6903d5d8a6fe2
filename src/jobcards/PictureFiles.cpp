#include "jobcards/PictureFiles.h"

#include "core/store/LivingShop.h"
#include "core/store/Session.h"
#include "core/store/ShopPictures.h"
#include "core/store/Startup.h"
#include "platform/devices/Files.h"
#include "platform/forms/Pictures.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace picturefiles {

namespace {

constexpr int LongestName = 200; ///< bytes; file systems take 255, and the day and the time need theirs

/// The client's name with only that changed which no file name can hold.
QString fileNameOf(const QString& client)
{
    QString name = client;
    name.replace(u'/', u'_').replace(QChar(u'\0'), u'_');
    while (name.toUtf8().size() > LongestName)
        name.chop(name.size() > LongestName ? name.size() - LongestName : 1);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    return name;
}

QString timeText(const QDateTime& time)
{
    const int weekday = time.date().dayOfWeek() % 7 + 1;
    return u"%1_%2_%3"_s.arg(weekday).arg(time.time().minute() % 10).arg(time.toString(u"ss"));
}

} // namespace

QString newPath(const QString& client, const QDateTime& now, int picture)
{
    requireLivingShop();
    constexpr int timesToTell = 600;
    const QString start = session.imagesFolder() + u'/' + fileNameOf(client) + u'_' +
                          values::Format(now.date(), u"DD_MM_YYYY"_s) + u'_';
    const QString end = u'_' + QString::number(picture) + u".bmp"_s;
    for (int later = 0; later < timesToTell; ++later) {
        const QString path = start + timeText(now.addSecs(later)) + end;
        if (!QFileInfo::exists(path))
            return path;
    }
    throw OperatorError(u"There is no file name left for a picture of this client today."_s);
}

void copy(const QString& source, const QString& target)
{
    requireLivingShop();
    if (!forms::isPicture(source))
        throw OperatorError(u"%1 is not a picture that can be shown."_s.arg(source));
    MakeImagesFolder();
    if (!QFileInfo(session.imagesFolder()).isDir())
        throw OperatorError(u"The folder for pictures cannot be made: %1"_s.arg(session.imagesFolder()));
    QFile file(source);
    const bool copied = file.copy(target);
    if (copied && QFileInfo(target).size() == file.size()) {
        files::keepPrivate(target);
        files::sync(target);
        files::sync(session.imagesFolder());
        return;
    }
    if (copied)
        QFile::remove(target);
    throw OperatorError(u"The picture cannot be copied to %1: %2"_s.arg(target, file.errorString()));
}

void remove(const QString& link)
{
    requireLivingShop();
    QFile file(shopPicture(link));
    if (!file.fileName().isEmpty() && !file.remove())
        throw OperatorError(
            u"The picture %1 cannot be deleted: %2"_s.arg(file.fileName(), file.errorString()));
}

} // namespace picturefiles
