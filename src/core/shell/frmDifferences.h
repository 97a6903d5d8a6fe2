#pragma once

#include "jobcards/Differences.h"
#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmDifferences;
}

/// What has become of the shop's cards and vouchers since the day that is looked at. Enter brings one back
/// into the living shop.
class frmDifferences : public forms::Screen
{
    Q_OBJECT
public:
    explicit frmDifferences(std::vector<differences::Difference> found);
    ~frmDifferences() override;

protected:
    void Form_Load() override;

private:
    void bringBack();

    const std::unique_ptr<Ui::frmDifferences> ui;
    const std::vector<differences::Difference> m_found;
    QSet<int> m_back; ///< the rows that have been brought back
};
