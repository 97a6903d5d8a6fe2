#include "platform/devices/Files.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace files {

void keepPrivate(const QString& path)
{
    QFile::Permissions owners = QFile::ReadOwner | QFile::WriteOwner;
    if (QFileInfo(path).isDir())
        owners |= QFile::ExeOwner;
    QFile::setPermissions(path, owners);
}

#ifdef Q_OS_UNIX

bool sync(const QString& path)
{
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool done = ::fsync(handle) == 0;
    ::close(handle);
    return done;
}

bool renameUnlessTaken(const QString& from, const QString& to)
{
    // A second name is never given over an existing one, whoever comes between.
    if (::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return ::unlink(QFile::encodeName(from).constData()) == 0;
    const bool noLinksHere = errno == EPERM || errno == EOPNOTSUPP; // a memory stick's file system
    return noLinksHere && !QFileInfo(to).isSymLink() && QFile::rename(from, to);
}

QByteArray identity(const QString& path)
{
    struct stat about = {};
    if (::stat(QFile::encodeName(path).constData(), &about) != 0)
        return {};
    return QByteArray::number(quint64(about.st_dev)) + '/' + QByteArray::number(quint64(about.st_ino));
}

#else

bool sync(const QString&) { return true; }

bool renameUnlessTaken(const QString& from, const QString& to) { return QFile::rename(from, to); }

QByteArray identity(const QString& path) { return QFileInfo(path).canonicalFilePath().toUtf8(); }

#endif

} // namespace files
