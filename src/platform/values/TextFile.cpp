#include "platform/values/TextFile.h"

#include "platform/values/Errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace values {

namespace {

constexpr qint64 largest = 32 * 1024 * 1024;
const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF");

bool isUtf16(const QByteArray& bytes)
{
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return true;
    // Without a mark each second byte of Latin letters is 0.
    const QByteArray start = bytes.first(qMin<qsizetype>(bytes.size(), 200));
    return start.size() >= 4 && start.count('\0') * 3 > start.size();
}

int firstWrongLine(const QByteArray& bytes)
{
    int line = 0;
    for (const QByteArray& each : bytes.split('\n')) {
        ++line;
        if (!each.isValidUtf8())
            break;
    }
    return line;
}

QByteArray readBytes(const QString& path, const QString& name)
{
    if (QFileInfo(path).isDir())
        throw OperatorError(u"%1 is a folder, not a file."_s.arg(name));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw OperatorError(u"%1 cannot be read: %2."_s.arg(name, file.errorString()));
    if (file.size() > largest)
        throw OperatorError(u"%1 is larger than 32 MB: is it the right file?"_s.arg(name));
    QByteArray bytes = file.read(largest);
    if (file.error() != QFileDevice::NoError)
        throw OperatorError(u"%1 cannot be read: %2."_s.arg(name, file.errorString()));
    return bytes;
}

} // namespace

QString readTextFile(const QString& path)
{
    const QString name = QDir::toNativeSeparators(path);
    QByteArray bytes = readBytes(path, name);
    if (bytes.startsWith(mark))
        bytes.remove(0, mark.size());
    if (bytes.trimmed().isEmpty())
        throw OperatorError(u"%1 is empty."_s.arg(name));
    static const QString remedy = u" Save it again from the program that made it, as CSV in UTF-8."_s;
    if (isUtf16(bytes))
        throw OperatorError(u"%1 is written in UTF-16, not in UTF-8."_s.arg(name) + remedy);
    if (bytes.contains('\0'))
        throw OperatorError(u"%1 holds no text."_s.arg(name));
    if (!bytes.isValidUtf8())
        throw OperatorError(
            u"%1 is not written in UTF-8: its line %2 has letters of another encoding."_s.arg(name).arg(
                firstWrongLine(bytes)) +
            remedy);
    return QString::fromUtf8(bytes);
}

} // namespace values
