#include "platform/devices/RunAndWait.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace devices {

namespace {

constexpr int pause = 20;                   ///< milliseconds between two looks at it
constexpr int lastWait = 2000;              ///< for a program that has been ended
constexpr qsizetype longestComplaint = 500; ///< characters

void end(QProcess& process)
{
    process.kill();
    process.waitForFinished(lastWait);
}

} // namespace

void RunAndWait(const Command& command, const std::stop_token& stop)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s); // its complaints are read
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(command.folder);
    process.setStandardInputFile(command.input.isEmpty() ? QProcess::nullDevice() : command.input);
    process.setStandardOutputFile(command.output);
    process.start(command.program, command.arguments);
    QString complaint;
    const auto listen = [&] { // a program that complains without end fills no memory
        complaint += QString::fromUtf8(process.readAllStandardError());
        complaint.truncate(longestComplaint);
    };
    const auto refuse = [&](const QString& otherwise) {
        const QString text = complaint.trimmed();
        throw OperatorError(text.isEmpty() ? otherwise : text);
    };
    const QString name = QDir::toNativeSeparators(command.program);
    if (!process.waitForStarted())
        refuse(u"%1 cannot be started: %2"_s.arg(name, process.errorString()));
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(pause)) {
        listen();
        if (stop.stop_requested()) {
            end(process);
            throw Cancelled();
        }
    }
    listen();
    if (process.exitStatus() != QProcess::NormalExit)
        refuse(u"%1 was ended before it was done."_s.arg(name));
    if (process.exitCode() != 0)
        refuse(u"%1 has failed (%2)."_s.arg(name).arg(process.exitCode()));
}

} // namespace devices
