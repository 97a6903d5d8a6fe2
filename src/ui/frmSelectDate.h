#pragma once

#include "platform/forms/Screen.h"

#include <QDate>
#include <memory>

namespace Ui {
class frmSelectDate;
}

/// Asks for a date or a range of dates.
class frmSelectDate : public forms::Screen
{
    Q_OBJECT
public:
    enum Mode { SingleDate = 1, Range = 2 };

    explicit frmSelectDate(QWidget* parent = nullptr);
    ~frmSelectDate() override;

    /// A typed date is looked for from this day on: for what is promised.
    void lookAhead(const QDate& from);
    /// Shows the dialog with the given dates. They become what was chosen (in `mode` 1 both are the same),
    /// and stay when the dialog is left without a choice; false then.
    bool SelectDate(QDate& fromDate, QDate& toDate, int mode);

private:
    void followDateFrom();
    void select();

    std::unique_ptr<Ui::frmSelectDate> ui;
    bool m_single = false;
    bool m_confirmed = false;
};
