#pragma once

#include "core/store/NewBooks.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmNewBooks;
}

/// Makes new books: the operator chooses the last day of the old ones and sees who stays behind. The program
/// ends with the new books in the shop's place.
class frmNewBooks : public forms::Screen
{
    Q_OBJECT
public:
    frmNewBooks();
    ~frmNewBooks() override;

    /// Whether new books were made: the program is to end then.
    bool isMade() const { return m_made; }

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void view();
    void showPlan();
    forms::ListView::Row rowOf(const newbooks::Idle& idle) const;
    void toggle();
    void make();

    const std::unique_ptr<Ui::frmNewBooks> ui;
    newbooks::Plan m_plan;
    bool m_viewed = false; ///< at least once, or refused
    bool m_made = false;
};
