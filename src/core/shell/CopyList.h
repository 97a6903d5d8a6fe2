#pragma once

#include "platform/forms/ListView.h"

#include <QObject>
#include <memory>
#include <stop_token>

class QThread;

/// A list of what holds the shop as it was: the dated copies, and the files that a restore has put aside.
/// What each holds is read in a thread and comes into its row when it is known.
class CopyList : public QObject
{
    Q_OBJECT
public:
    /// Lays out the list; the object goes with it.
    explicit CopyList(forms::ListView* list);
    ~CopyList() override;

    /// Lists what is there now.
    void fill();
    /// The file of the chosen row; empty for none.
    QString chosen() const;

private:
    void read(const QString& path);
    void show(const QString& path, const QStringList& counts);
    void endReading();

    forms::ListView* m_list;
    std::stop_source m_stop;
    std::unique_ptr<QThread> m_thread;
};
