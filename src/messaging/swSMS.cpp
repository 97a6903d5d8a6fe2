#include "messaging/swSMS.h"

#include "core/store/Contacts.h"
#include "core/store/LivingShop.h"
#include "core/store/Settings.h"
#include "messaging/frmByPhone.h"
#include "messaging/modSMS.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr char EndOfMessage = 26; // Ctrl+Z

QByteArray dialled(const QString& number)
{
    return values::Format(std::trunc(values::Val(number)), u"0"_s).toLatin1();
}

} // namespace

swSMS::swSMS(QWidget* screen)
    : QObject(screen)
    , m_screen(screen)
{
    connect(&m_port, &devices::SerialPort::broken, this,
            [this](const QString& text) { forms::plainMessage(m_screen, text); });
}

void swSMS::SendSMS(qint16 port, const QString& number, const QString& message)
{
    const QString name = devices::serialPortName(port, m_deviceFolder);
    try {
        m_port.open(name);
        m_port.write("AT+CMGF=1\r");
        m_port.write("AT+CMGS=\"" + dialled(number) + "\"\r");
        m_port.write(TextAsSent(message).toLatin1() + EndOfMessage);
    } catch (const OperatorError& error) {
        const QString advice = m_port.isOpen() ? QString() : devices::serialPortAdvice(name);
        forms::plainMessage(m_screen, advice.isEmpty() ? error.text() : error.text() + u"\n\n"_s + advice);
    }
}

bool SendSmsToNumber(swSMS& sms, const QString& number, const QString& text)
{
    requireLivingShop();
    const QString port = GetSetting(settings::ModemPort);
    if (number.isEmpty()) {
        ShowMsg(u"Mobile Number Not Found!\r\nSMS Sending has been Failed."_s);
        return false;
    }
    if (port.isEmpty()) {
        ShowMsg(u"Modem Com Port Error!\r\nSMS Sending has been Failed."_s);
        return false;
    }
    if (const QString sent = TextAsSent(text);
        sent != text &&
        !forms::askPlain(sms.screen(), u"The modem can't send all letters of this message. The "
                                       "client would read:\n\n%1\n\nSend it all the same?"_s.arg(
                                           QString(sent).replace("\r\n"_L1, "\r"_L1).replace(u'\r', u'\n'))))
        return false;
    sms.SendSMS(values::CInt(values::Val(port), u"Com port"_s), number, text);
    return true;
}

bool SendSmsToClient(swSMS& sms, const QString& title, qint16 id, const QString& text)
{
    return SendSmsToNumber(sms, GetClientMobile(title, id), text);
}

void TellClient(swSMS& sms, SmsWay way, const QString& title, const QString& text)
{
    if (way == SmsWay::Phone)
        ShowByPhone(sms.screen(), GetClientMobile(title, 0), text);
    else
        SendSmsToClient(sms, title, 0, text);
}
