#pragma once

#include "registers/ReminderScreen.h"
#include "registers/Trials.h"
#include "ui/Period.h"

#include <memory>

namespace Ui {
class frmTrailDate;
}

/// The job cards whose trial falls in some days: whether the client came, and a text to remind of it.
class frmTrailDate : public ReminderScreen
{
    Q_OBJECT
public:
    frmTrailDate();
    ~frmTrailDate() override;

protected:
    void resetDays() override;
    bool daysAccepted() override;
    std::vector<forms::ListView::Row> read() override;

private:
    qint32 selectedJob() const;
    void setState(TrialState state);
    void chooseNewDay();
    void openCard();

    const std::unique_ptr<Ui::frmTrailDate> ui;
    Period period;
};
