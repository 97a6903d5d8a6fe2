#pragma once

#include "masters/BringIn.h"
#include "platform/forms/Screen.h"

#include <array>
#include <memory>

namespace Ui {
class frmBringIn;
}
namespace forms {
class ComboBox;
}

/// Clients or items of a file before they come in: which column is what, which rows are new, which the shop
/// has, and which cannot be taken and why. "Bring In" takes all new ones, or none.
class frmBringIn : public forms::Screen
{
    Q_OBJECT
public:
    frmBringIn(bringin::Kind kind, bringin::Source source);
    ~frmBringIn() override;

    /// Asks for a file and shows what it holds. Throws OperatorError for a file that cannot be read, and in a
    /// shop that is only looked at.
    static void choose(QWidget* parent, bringin::Kind kind);

protected:
    void Form_Load() override;

private:
    void makeCombos();
    void useTitles();
    void sortRows();
    void showRows();
    void showChosen();
    void bringIn();
    QString nameOf(int count) const;

    const std::unique_ptr<Ui::frmBringIn> ui;
    const bringin::Kind m_kind;
    const bringin::Source m_source;
    bringin::Plan m_plan;
    std::vector<size_t> m_shown; ///< the lines of the plan that the list shows
    std::array<forms::ComboBox*, bringin::fieldCount> m_columns{};
};
