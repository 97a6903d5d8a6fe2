#include "jobcards/PictureFiles.h"

#include "core/Session.h"
#include "core/Startup.h"
#include "platform/forms/Pictures.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"

#include <QFile>
#include <QFileInfo>

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
    return QStringLiteral("%1_%2_%3").arg(weekday).arg(time.time().minute() % 10).arg(time.toString(u"ss"));
}

} // namespace

QString newPath(const QString& client, const QDateTime& now, int picture)
{
    constexpr int timesToTell = 600;
    const QString start = session.imagesFolder() + u'/' + fileNameOf(client) + u'_' +
                          values::Format(now.date(), QStringLiteral("DD_MM_YYYY")) + u'_';
    const QString end = u'_' + QString::number(picture) + QStringLiteral(".bmp");
    for (int later = 0; later < timesToTell; ++later) {
        const QString path = start + timeText(now.addSecs(later)) + end;
        if (!QFileInfo::exists(path))
            return path;
    }
    throw OperatorError(QStringLiteral("There is no file name left for a picture of this client today."));
}

void copy(const QString& source, const QString& target)
{
    if (!forms::isPicture(source))
        throw OperatorError(QStringLiteral("%1 is not a picture that can be shown.").arg(source));
    MakeImagesFolder();
    if (!QFileInfo(session.imagesFolder()).isDir())
        throw OperatorError(
            QStringLiteral("The folder for pictures cannot be made: %1").arg(session.imagesFolder()));
    QFile file(source);
    const bool copied = file.copy(target);
    if (copied && QFileInfo(target).size() == file.size()) {
        QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
        return;
    }
    if (copied)
        QFile::remove(target);
    throw OperatorError(
        QStringLiteral("The picture cannot be copied to %1: %2").arg(target, file.errorString()));
}

void remove(const QString& path)
{
    QFile file(path);
    if (file.exists() && !file.remove())
        throw OperatorError(
            QStringLiteral("The picture %1 cannot be deleted: %2").arg(path, file.errorString()));
}

} // namespace picturefiles
