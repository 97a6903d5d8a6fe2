#pragma once

#include <QSerialPort>
#include <QString>

/// The computer's serial ports.
namespace devices {

/// The system's name of serial port `number` (1, 2, ...). On Windows COMn; elsewhere the first that stands in
/// `folder` of ttyUSB, ttyACM and ttyS with the number less one. Where none stands it is the last of these,
/// so that opening it tells why.
QString serialPortName(int number, const QString& folder);

/// What to do when the system refuses a port: plug it in, close the program that holds it (by name), or join
/// the group that may use it. Empty when nothing of this is the cause.
QString serialPortAdvice(const QString& name);

/// A serial line that is only written to: 9600 baud, 8 data bits, no parity, 1 stop bit. Nothing here waits
/// for the line: what the system's buffer does not take at once goes out while the screens live on.
class SerialPort : public QObject
{
    Q_OBJECT
public:
    explicit SerialPort(QObject* parent = nullptr);

    /// Throws OperatorError with the system's text, also when the port is open already.
    void open(const QString& name);
    /// Hands the bytes to the port's buffer. Throws OperatorError with the system's text.
    void write(const QByteArray& bytes);
    bool isOpen() const { return m_port.isOpen(); }

Q_SIGNALS:
    /// The line broke with bytes not yet sent; the port is closed. Comes once for an opening, however often
    /// the system reports it. A line that breaks with nothing left to send is closed without a word.
    void broken(const QString& text);

private:
    void closeBroken();

    QSerialPort m_port;
    bool m_closing = false;
};

} // namespace devices
