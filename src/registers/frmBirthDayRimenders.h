#pragma once

#include "registers/ReminderScreen.h"

#include <memory>

namespace Ui {
class frmBirthDayRimenders;
}

/// The clients born on a day of the year, and a greeting for them.
class frmBirthDayRimenders : public ReminderScreen
{
    Q_OBJECT
public:
    frmBirthDayRimenders();
    ~frmBirthDayRimenders() override;

protected:
    void resetDays() override;
    std::vector<forms::ListView::Row> read() override;

private:
    const std::unique_ptr<Ui::frmBirthDayRimenders> ui;
};
