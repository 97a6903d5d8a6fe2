#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmRatings;
}

/// All workers ranked by the sum of their scores; the stars show the average, so one can rank first with few
/// stars.
class frmRatings : public forms::Screen
{
    Q_OBJECT
public:
    frmRatings();
    ~frmRatings() override;

    /// Rebuilds the ranking and lists it. Throws OverflowError for a score beyond 16 bits.
    void GetRank();

protected:
    void Form_Load() override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    const std::unique_ptr<Ui::frmRatings> ui;
};
