#include "platform/devices/SerialPort.h"

#include "platform/values/Errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace devices {

namespace {

#ifndef Q_OS_WIN
/// The name of another program that has the file open, as far as the system shows them; else empty.
QString holderOf(const QString& file)
{
    const QString wanted = QFileInfo(file).canonicalFilePath();
    const QString own = QString::number(QCoreApplication::applicationPid());
    for (const QString& process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        const QString folder = u"/proc/"_s + process;
        if (process == own)
            continue;
        for (const QFileInfo& open : QDir(folder + u"/fd"_s).entryInfoList(QDir::Files | QDir::System))
            if (open.symLinkTarget() == wanted) {
                QFile name(folder + u"/comm"_s);
                return name.open(QIODevice::ReadOnly) ? QString::fromUtf8(name.readAll()).trimmed() : process;
            }
    }
    return {};
}
#endif

} // namespace

QString serialPortAdvice(const QString& name)
{
#ifdef Q_OS_WIN
    return u"Is the modem plugged in, is %1 its port, and is no other program using it?"_s.arg(name);
#else
    const QFileInfo port(name);
    if (!port.exists())
        return u"There is no %1. Is the modem plugged in, and is its number right (Settings, SMS)?"_s.arg(
            name);
    if (const QString program = holderOf(name); !program.isEmpty())
        return u"The program \"%1\" holds the port. Close it, then send again."_s.arg(program);
    if (!port.isWritable())
        return u"Only the group \"%1\" may use the port. Whoever looks after this computer adds you to it "
               "(sudo usermod -aG %1 %2); then log in anew."_s.arg(port.group(),
                                                                   qEnvironmentVariable("USER"));
    return {};
#endif
}

QString serialPortName(int number, const QString& folder)
{
#ifdef Q_OS_WIN
    Q_UNUSED(folder)
    return u"COM%1"_s.arg(number);
#else
    QString path;
    for (const auto* kind : {"ttyUSB", "ttyACM", "ttyS"}) {
        path = u"%1/%2%3"_s.arg(folder, QLatin1String(kind)).arg(number - 1);
        if (QFileInfo::exists(path))
            break;
    }
    return path;
#endif
}

SerialPort::SerialPort(QObject* parent)
    : QObject(parent)
{
    connect(&m_port, &QSerialPort::errorOccurred, this, [this](QSerialPort::SerialPortError error) {
        // A hang-up reports itself again and again until the port is closed, and it may not be closed from
        // here. A second opening is refused and leaves the line as it is.
        if (error == QSerialPort::NoError || error == QSerialPort::OpenError || !m_port.isOpen() || m_closing)
            return;
        m_closing = true;
        QMetaObject::invokeMethod(this, &SerialPort::closeBroken, Qt::QueuedConnection);
    });
}

void SerialPort::open(const QString& name)
{
    m_port.setPortName(name);
    if (!m_port.open(QIODevice::WriteOnly))
        throw OperatorError(m_port.errorString());
    m_closing = false;
}

void SerialPort::write(const QByteArray& bytes)
{
    if (m_port.write(bytes) != bytes.size())
        throw OperatorError(m_port.errorString());
    m_port.flush();
}

void SerialPort::closeBroken()
{
    const QString text = m_port.errorString();
    const bool unsent = m_port.bytesToWrite() > 0;
    m_port.close();
    if (unsent)
        Q_EMIT broken(text);
}

} // namespace devices
