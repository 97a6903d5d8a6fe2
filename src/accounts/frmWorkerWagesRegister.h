#pragma once

#include "accounts/Wages.h"
#include "platform/forms/Screen.h"
#include "ui/Period.h"

#include <memory>
#include <optional>

class DetailsPanel;
namespace Ui {
class frmWorkerWagesRegister;
}

/// The wages register: one worker's lines of some days with a running total, and the payroll that pays the
/// unpaid ones.
class frmWorkerWagesRegister : public forms::Screen
{
    Q_OBJECT
public:
    frmWorkerWagesRegister();
    ~frmWorkerWagesRegister() override;

    /// Lists the lines of the worker, days and option chosen; nothing for a text that is no worker's name.
    void ExecuteSQL();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int& key) override;

private:
    // Criteria and list
    std::optional<wages::Scope> chosen() const;
    void chooseStatement();
    void showLines();
    void fillDetails();
    void view();
    void leaveWorker();
    void openLine();

    // What is made of it
    bool refusesPayroll();
    void createPayroll();
    void print();

    const std::unique_ptr<Ui::frmWorkerWagesRegister> ui;
    Period m_period;
    DetailsPanel* m_details;

    wages::Scope m_shown;    ///< what the list is about, whatever stands in the boxes by now
    QString m_shownWorker;   ///< the worker's title; empty before a first view
    quint64 m_filledAt = 0;  ///< count of the changes that the list shows
    bool m_daysSeen = false; ///< the keys have been on the days
    QString ListSql;         ///< of the list
    bool UnpaidView = false; ///< the list has the unpaid lines
    qint32 ReturnIndex = 0;  ///< position to select after a refresh, from 1
};
