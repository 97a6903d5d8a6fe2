#include "platform/report/Spooler.h"

#include "platform/values/Errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int lastWait = 500;            ///< for a program that has been asked to stop
constexpr qsizetype mostOutput = 65'536; ///< more than that from one program is a fault

QList<SpoolerRun*>& runs()
{
    static QList<SpoolerRun*> all;
    return all;
}

/// While timers and processes can still be used: the application's own children go too late for them.
void endAll()
{
    while (!runs().isEmpty())
        delete runs().constLast();
}

} // namespace

int patience = 10'000;

SpoolerRun::SpoolerRun(const QString& program, const QStringList& arguments, const QByteArray& paper,
                       Ended ended)
    : m_ended(std::move(ended))
{
    if (!paper.isEmpty() && (!m_paper.open() || m_paper.write(paper) != paper.size() || !m_paper.flush()))
        throw OperatorError(
            u"There is no room for the paper on the disk. It was not printed.\n\n%1\n%2"_s.arg(
                QDir::toNativeSeparators(QDir::tempPath()), m_paper.errorString()));
    static const bool endsWithTheApplication = (qAddPostRoutine(endAll), true);
    Q_UNUSED(endsWithTheApplication)
    runs() << this;
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            tell(End::Missing);
            deleteLater();
        }
    });
    connect(&m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        tell(status == QProcess::NormalExit && code == 0 ? End::Done : End::Refused);
        deleteLater();
    });
    connect(&m_process, &QProcess::readyReadStandardOutput, this,
            [this] { keep(m_output, QProcess::StandardOutput); });
    connect(&m_process, &QProcess::readyReadStandardError, this,
            [this] { keep(m_complaint, QProcess::StandardError); });
    connect(&m_limit, &QTimer::timeout, this, [this] {
        tell(End::Silent);
        m_process.kill();
    });
    m_limit.setSingleShot(true);
    m_limit.start(patience);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s); // its complaints are read
    m_process.setProcessEnvironment(environment);
    m_process.setStandardInputFile(m_paper.isOpen() ? m_paper.fileName() : QProcess::nullDevice());
    m_process.start(program, arguments);
}

SpoolerRun::~SpoolerRun()
{
    runs().removeOne(this);
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(lastWait);
}

bool SpoolerRun::anyTakesPaper()
{
    return std::any_of(runs().cbegin(), runs().cend(),
                       [](const SpoolerRun* run) { return run->m_ended && run->m_paper.isOpen(); });
}

/// A program that writes without end would keep the screens from their events: it is stopped.
void SpoolerRun::keep(QByteArray& kept, QProcess::ProcessChannel channel)
{
    m_process.setReadChannel(channel);
    kept += m_process.read(mostOutput - kept.size());
    if (kept.size() < mostOutput)
        return;
    tell(End::Refused);
    m_process.closeReadChannel(channel);
    m_process.kill();
}

/// Once: what comes later is the end of a program that was stopped.
void SpoolerRun::tell(End how)
{
    if (!m_ended)
        return;
    m_limit.stop();
    constexpr qsizetype longestComplaint = 1000;
    std::exchange(m_ended, nullptr)(how, m_output,
                                    QString::fromLocal8Bit(m_complaint.left(longestComplaint)).trimmed());
}

} // namespace report
