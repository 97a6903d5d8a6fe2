#include "messaging/modSMS.h"

#include "core/store/Settings.h"
#include "platform/values/Numbers.h"

#include <QEventLoop>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

QString jobSms(const Setting& setting, const QString& defaultDraft, qint32 jobId, double amount)
{
    QString text = GetSetting(setting, defaultDraft);
    text.replace("%eid%"_L1, QString::number(jobId));
    text.replace("%amount%"_L1, values::CStr(amount));
    return text + u'\r' + GetSetting(settings::SmsTitle);
}

} // namespace

QString DefaultJobRegisteredDraft()
{
    return u"Dear Customer\r Your Job ID # %eid%\r of Rs. %amount% has been booked. "
           "To track job status call us with this ID.\r\r"_s;
}

QString DefaultJobFinishedDraft()
{
    return u"Dear Customer Your Job ID # %eid% has been completed. "
           "Please visit our shop to collect clothes.\r\r"_s;
}

QString DefaultDueBalanceDraft() { return u"Dear Customer\r Your Due Balance is : Rs. %amount%\r\r\r"_s; }

QString MakeJobRegisteredSms(qint32 jobId, double amount)
{
    return jobSms(settings::SmsJobRegistered, DefaultJobRegisteredDraft(), jobId, amount);
}

QString MakeJobFinishedSms(qint32 jobId, double amount)
{
    return jobSms(settings::SmsJobFinished, DefaultJobFinishedDraft(), jobId, amount);
}

QString MakeDueBalanceSms(const QString& amount)
{
    return GetSetting(settings::SmsDueBalance, DefaultDueBalanceDraft()).replace("%amount%"_L1, amount);
}

QString TextAsSent(const QString& text)
{
    QString sent;
    for (const char32_t letter : text.toUcs4())
        sent += letter < 256 ? QChar(char16_t(letter)) : u'?';
    return sent;
}

void RunAndWait(const QString& commandLine)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    QEventLoop loop;
    QObject::connect(&process, &QProcess::stateChanged, &loop, [&loop](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            loop.quit();
    });
    process.startCommand(commandLine);
    if (process.state() != QProcess::NotRunning)
        loop.exec();
}
