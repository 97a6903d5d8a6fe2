#pragma once

#include "platform/values/Watch.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace forms {

/// Lets slow work run in a thread of its own while the screens live on: a box over `parent` tells its steps,
/// keeps everything else from being pressed, and gives it up on "Cancel" or Esc. Returns when the work has
/// ended; what it throws goes on to the caller.
void runAside(QWidget* parent, const QString& title, const std::function<void(const Watch&)>& work);

/// That box. It stays until the work has ended, given up or not.
class AsideBox : public QDialog
{
    Q_OBJECT
public:
    AsideBox(QWidget* parent, const QString& title);

    Watch watch();
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
