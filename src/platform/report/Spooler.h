#pragma once

#include <QProcess>
#include <QTemporaryFile>
#include <QTimer>
#include <functional>

namespace report {

/// One run of a program of the print system, under a time limit. It deletes itself when the program has
/// ended; none outlives the application, nor does its program.
class SpoolerRun : public QObject
{
    Q_OBJECT
public:
    enum class End { Done, Missing, Refused, Silent };
    using Ended = std::function<void(End end, const QByteArray& output, const QString& complaint)>;

    /// Starts the program; `paper` is its input. Throws OperatorError when there is no room for the paper on
    /// the disk.
    SpoolerRun(const QString& program, const QStringList& arguments, const QByteArray& paper, Ended ended);
    ~SpoolerRun() override;

    /// True while a program has paper in hand.
    static bool anyTakesPaper();

private:
    void tell(End how);
    void keep(QByteArray& kept, QProcess::ProcessChannel channel);

    // The program reads the paper from a file, so that the system feeds it whatever happens here.
    QTemporaryFile m_paper;
    QProcess m_process;
    QTimer m_limit;
    QByteArray m_output;
    QByteArray m_complaint;
    Ended m_ended;
};

/// How long the print system may take, in milliseconds.
extern int patience;

} // namespace report
