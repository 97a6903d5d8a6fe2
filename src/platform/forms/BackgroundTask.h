#pragma once

#include "platform/values/Progress.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace forms {

/// Lets slow work run in a thread of its own while the screens live on: a box over `parent` shows its steps,
/// keeps everything else from being pressed, and cancels it on "Cancel" or Esc. Returns when the work has
/// ended; what it throws goes on to the caller.
void runInBackground(QWidget* parent, const QString& title, const std::function<void(const Progress&)>& work);

/// That box. It stays until the work has ended, cancelled or not.
class ProgressBox : public QDialog
{
    Q_OBJECT
public:
    ProgressBox(QWidget* parent, const QString& title);

    Progress progress();
    void reject() override;

Q_SIGNALS:
    /// From any thread.
    void stepBegins(const QString& name);

private:
    std::stop_source m_stop;
    QLabel* lblStep;
    QPushButton* cmdCancel;
};

} // namespace forms
