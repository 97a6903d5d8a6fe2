#include "platform/devices/Files.h"

#include "platform/values/Errors.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace files {

namespace {

[[noreturn]] void refuse(const QString& path, const QString& reason)
{
    throw OperatorError(path + u": "_s + reason);
}

/// Brings a file and its place in the folder to the disk.
void settle(const QString& path)
{
    if (!sync(path))
        refuse(path, u"the disk does not take the file."_s);
}

} // namespace

void replace(const QString& path, const QString& with)
{
    settle(with);
    std::error_code error;
    std::filesystem::rename(with.toStdU16String(), path.toStdU16String(), error);
    if (error)
        refuse(path, QString::fromStdString(error.message()));
    sync(QFileInfo(path).path());
}

void createPrivate(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::NewOnly))
        refuse(path, file.errorString());
    keepPrivate(path);
}

void copyWhole(const QString& from, const QString& to)
{
    const QString unfinished = QFileInfo(to).path() + u'/' + unfinishedCopy;
    QFile::remove(unfinished);
    QFile source(from);
    try {
        if (!source.copy(unfinished))
            refuse(to, source.errorString());
        keepPrivate(unfinished);
        QFile copy(unfinished);
        if (copy.size() != source.size() || !copy.open(QIODevice::ReadWrite))
            refuse(to, copy.errorString());
        // A file system that keeps no times has that of the copy, which is later and does as well.
        copy.setFileTime(QFileInfo(from).lastModified(), QFileDevice::FileModificationTime);
        copy.close();
        replace(to, unfinished);
    } catch (...) {
        QFile::remove(unfinished);
        throw;
    }
}

bool takeLock(QLockFile& lock)
{
    constexpr qint64 writingTakes = 2; // seconds, at most
    lock.setStaleLockTime(0);
    if (lock.tryLock())
        return true;
    const QFileInfo file(lock.fileName());
    const bool isNobodys = file.isFile() && file.size() == 0 &&
                           qAbs(file.lastModified().secsTo(QDateTime::currentDateTime())) >= writingTakes;
    return isNobodys && QFile::remove(file.filePath()) && lock.tryLock();
}

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
    // A second name is never given over an existing one, also when another program makes it in between.
    if (::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return ::unlink(QFile::encodeName(from).constData()) == 0;
    const bool noLinksHere = errno == EPERM || errno == EOPNOTSUPP; // a memory stick's file system
    return noLinksHere && !QFileInfo(to).isSymLink() && QFile::rename(from, to);
}

bool addName(const QString& path, const QString& name)
{
    if (::link(QFile::encodeName(path).constData(), QFile::encodeName(name).constData()) == 0)
        return true;
    const bool noLinksHere = errno == EPERM || errno == EOPNOTSUPP;
    return noLinksHere && QFile::copy(path, name) && sync(name);
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

bool addName(const QString& path, const QString& name) { return QFile::copy(path, name); }

QByteArray identity(const QString& path) { return QFileInfo(path).canonicalFilePath().toUtf8(); }

#endif

} // namespace files
