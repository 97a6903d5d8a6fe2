#include "core/shell/CopyAtStart.h"

#include "core/store/Copies.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Startup.h"
#include "platform/values/Errors.h"

#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int pagesOfStep = 100;
constexpr int betweenSteps = 20; // ms: the operator's keys come first

const QString failed = u"The last day's copy of the shop could not be made.\r\n"_s;

QString textOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const OperatorError& error) {
        return error.text();
    }
    return {};
}

/// Invalid for a shop that works on the system's date: the day of the change itself then.
QDate workingDayOfLastChange() { return IsOn(settings::SystemDateAtStart) ? QDate() : StoredWorkingDate(); }

} // namespace

CopyAtStart::CopyAtStart(QObject* parent)
    : QObject(parent)
{
    m_timer.setInterval(betweenSteps);
    connect(&m_timer, &QTimer::timeout, this, &CopyAtStart::step);
}

CopyAtStart::~CopyAtStart()
{
    if (m_thread)
        m_thread->wait();
}

void CopyAtStart::begin()
{
    session.CopyTrouble.clear();
    m_timer.start();
}

void CopyAtStart::step()
{
    if (!session.LookedAt.isEmpty()) { // the living shop is closed; it is begun anew behind that
        m_making.reset();
        return;
    }
    const QString trouble = textOf([&] {
        if (!m_making && copies::isDue())
            m_making = std::make_unique<copies::Making>(workingDayOfLastChange());
        if (!m_making || m_making->step(pagesOfStep))
            finish(GetSetting(settings::BackupFolder));
    });
    if (!trouble.isEmpty())
        end(failed + trouble);
}

void CopyAtStart::finish(const QString& backupFolder)
{
    m_timer.stop();
    m_thread.reset(QThread::create([this, backupFolder] {
        QString trouble = textOf([this] {
            if (m_making)
                m_making->takePlace();
        });
        trouble = trouble.isEmpty() ? textOf([&] { copies::bringTo(backupFolder); }) : failed + trouble;
        QMetaObject::invokeMethod(this, [this, trouble] { end(trouble); });
    }));
    m_thread->start();
}

void CopyAtStart::end(const QString& trouble)
{
    m_timer.stop();
    if (m_thread)
        m_thread->wait();
    m_making.reset();
    session.CopyTrouble = trouble;
    Q_EMIT ended();
}
