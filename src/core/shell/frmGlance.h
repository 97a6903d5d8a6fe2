#pragma once

#include "core/store/ShopMoment.h"
#include "platform/forms/Screen.h"
#include "registers/ShopFigures.h"

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class frmGlance;
}

/// The shop in figures on the working date, which opens the day. Each figure, bar and row leads to the list
/// behind it; what is shown is read anew whenever the screen comes forward.
class frmGlance : public forms::Screen
{
    Q_OBJECT
public:
    frmGlance();
    ~frmGlance() override;

    /// Reads and shows the figures. Throws ado::DatabaseError.
    void fill();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int& key) override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void showDay();
    void showDue();
    void showMoney();
    void showDues();
    void showWorkers();
    void showRoom();
    void openOverdue();
    void openDueDay(int day);
    /// One of the lists that a figure stands for.
    struct Way
    {
        QString text;
        std::function<void()> open;
    };
    void choose(QWidget& figure, const std::vector<Way>& ways);
    void openTaken();
    void openAccounts();
    QDate firstDay() const;
    QDate lastDay() const;
    void openWeek(int week);
    void openDebtor();
    void openWorker();
    void print();

    const std::unique_ptr<Ui::frmGlance> ui;
    figures::Shop m_shop;
    QDate m_day;
    std::optional<ShopMoment> m_filledAt;
    int m_daysBack = 0; ///< from the working date to the day that is shown
};
