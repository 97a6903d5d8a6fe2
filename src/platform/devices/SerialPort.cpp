#include "platform/devices/SerialPort.h"

#include "platform/values/Errors.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace devices {

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
