#pragma once

#include "accounts/Book.h"

#include <memory>

namespace Ui {
class frmDayBook;
}

/// All vouchers of some days in order of date, one row each.
class frmDayBook : public Book
{
    Q_OBJECT
public:
    frmDayBook();
    ~frmDayBook() override;

    /// Opens the book of some days.
    void ShowDays(const QDate& from, const QDate& to);
    void ExecuteSQL() override;

protected:
    void Form_Load() override;

private:
    void view();

    const std::unique_ptr<Ui::frmDayBook> ui;
    QDate m_from; ///< the days to begin with; invalid: the working date
    QDate m_to;
};
