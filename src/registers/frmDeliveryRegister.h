#pragma once

#include "registers/LineRegister.h"

#include <memory>

namespace Ui {
class frmDeliveryRegister;
}

/// What is due out: item lines of job cards in the order of their delivery dates.
class frmDeliveryRegister : public LineRegister
{
    Q_OBJECT
public:
    frmDeliveryRegister();
    ~frmDeliveryRegister() override;

protected:
    void Form_Activate() override;
    void Form_KeyPress(int& key) override;
    QString order() const override;
    forms::ListView::Row rowOf(const RegisterLine& line, LineNames& names) const override;
    void quickFind() override;
    QString otherDaysHint() const override;

private:
    enum Column { StatusColumn = 8 };

    void chooseDays(int mode);

    const std::unique_ptr<Ui::frmDeliveryRegister> ui;
};
