#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

class QThread;

namespace copies {
class Making;
}

/// Makes the copy of the last day of use that ended without one, beside the living screens: the pages in
/// small steps between the operator's keys, the proof in a thread. What fails goes into `session.CopyTrouble`
/// and stops nothing.
class CopyAtStart : public QObject
{
    Q_OBJECT
public:
    explicit CopyAtStart(QObject* parent);
    ~CopyAtStart() override;

    void begin();

Q_SIGNALS:
    /// All is done, or has failed.
    void ended();

private:
    void step();
    void finish(const QString& backupFolder);
    void end(const QString& trouble);

    QTimer m_timer;
    std::unique_ptr<copies::Making> m_making;
    std::unique_ptr<QThread> m_thread;
};
