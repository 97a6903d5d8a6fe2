#pragma once

#include "platform/forms/Screen.h"

#include <memory>
#include <vector>

namespace Ui {
class frmDDP;
}
struct ItemLoad;

/// What waits on each garment and when one ordered now could be ready; for the operator who writes a job
/// card.
class frmDDP : public forms::Screen
{
    Q_OBJECT
public:
    frmDDP();
    ~frmDDP() override;

    /// Fills the list. Throws what predictDelivery() throws; the items before the one at fault are listed.
    void Prddict();

protected:
    void Form_Load() override;

private:
    enum Column { PendingColumn = 2, DateColumn = 5 };

    void showLoads(const std::vector<ItemLoad>& loads);

    const std::unique_ptr<Ui::frmDDP> ui;
};
