#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmPayrollDetails;
}

/// The lines that a payroll has paid, to be read and printed.
class frmPayrollDetails : public forms::Screen
{
    Q_OBJECT
public:
    frmPayrollDetails();
    ~frmPayrollDetails() override;

    /// Shows the lines that hold the voucher's number. `accountTitle` is the worker, as the paper names him.
    void ExecuteSQL(const QString& accountTitle, qint32 vid);

protected:
    void Form_Load() override;

private:
    const std::unique_ptr<Ui::frmPayrollDetails> ui;
    QString PayrollAccount;
};
