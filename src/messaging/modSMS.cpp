#include "messaging/modSMS.h"

#include "core/store/Codes.h"
#include "core/store/DE.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
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

bool allItemsInState(qint32 jobId, LineState state)
{
    const QString all = u"Select * from Jobs_Detail where JobID="_s + QString::number(jobId);
    auto& lines = DE.rsJOBS_DETAIL;
    lines.Open(all);
    const int count = lines.RecordCount();
    lines.Open(all + u" and DoneByWorker="_s + QString::number(qint32(state)));
    const int inState = lines.RecordCount();
    lines.Close();
    return inState == count;
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

QString GetClientMobile(const QString& title, qint16 id)
{
    QString mobile;
    auto& clients = DE.rsaccounts;
    const auto read = [&](const QString& sql) {
        clients.Open(sql);
        if (!clients.AtEOF())
            mobile = clients["Mobile"].text();
        clients.Close();
    };
    if (!title.isEmpty()) {
        read(u"Select * from Accounts where type=0 and  Title='"_s + sqlText(title) + u"'"_s);
    }
    if (id > 0)
        read(u"Select * from Accounts where  type=0 and  ID="_s + QString::number(id));
    return mobile;
}

QString GetClientContact(qint16 id)
{
    if (id <= 0)
        return {};
    auto& account = DE.rsaccounts;
    account.Open(u"Select * from Accounts where ID="_s + QString::number(id));
    const QString contact = account.AtEOF() ? QString() : ContactOf(account);
    account.Close();
    return contact;
}

QString ContactOf(ado::Recordset& account)
{
    const QString contact = account["Mobile"].text() + u"   "_s + account["Address"].text() + u"   "_s +
                            account["City"].text() + u"    "_s;
    return contact.trimmed().isEmpty() ? u"No Information Found"_s : contact;
}

bool AllItemsCompleted(qint32 jobId) { return allItemsInState(jobId, LineState::Completed); }

bool AllItemsDelivered(qint32 jobId) { return allItemsInState(jobId, LineState::Delivered); }

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
