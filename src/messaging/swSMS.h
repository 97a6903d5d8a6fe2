#pragma once

#include "platform/devices/SerialPort.h"
#include "platform/values/Literals.h"
#include "ui/ModOtherFUN.h"

#include <QPointer>
#include <QWidget>

/// The sender of text messages that a screen holds: a GSM modem on a serial port, spoken to in its text mode.
/// Messages are handed over and forgotten: the modem's answer is never read. The port stays open until the
/// screen goes.
class swSMS : public QObject
{
    Q_OBJECT
public:
    /// The plain boxes of failures stand over `screen`, which owns the sender.
    explicit swSMS(QWidget* screen);

    /// Sends one message and returns as soon as it stands in the port's buffer. Of the number the leading
    /// digits go out, without a "+" or zeros before them. Any failure, also a port that an earlier message
    /// left open, is shown in one plain box with the system's text and what to do about it; the caller cannot
    /// tell it from success.
    void SendSMS(qint16 port, const QString& number, const QString& message);

    QWidget* screen() const { return m_screen; }
    bool isOpen() const { return m_port.isOpen(); }

    /// Where the ports' devices stand; "/dev" unless set.
    void setDeviceFolder(const QString& folder) { m_deviceFolder = folder; }

private:
    QPointer<QWidget> m_screen;
    devices::SerialPort m_port;
    QString m_deviceFolder = u"/dev"_s;
};

/// The step by which every screen tells a client something: refuses with a message when the number or the
/// modem's port (setting 4) is missing, the number first; shows a message that would arrive changed and asks
/// whether to send it; sends. Returns whether it came to sending. Throws OperatorError in a shop that is only
/// looked at.
bool SendSmsToNumber(swSMS& sms, const QString& number, const QString& text);
/// The same to the mobile number of a client, by title or by id as GetClientMobile takes them.
bool SendSmsToClient(swSMS& sms, const QString& title, qint16 id, const QString& text);
/// Tells a client, by title, in the way that the operator has chosen.
void TellClient(swSMS& sms, SmsWay way, const QString& title, const QString& text);
