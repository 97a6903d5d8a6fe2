#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmAbout;
}

/// What the program is and which database it runs on.
class frmAbout : public forms::Screen
{
    Q_OBJECT
public:
    frmAbout();
    ~frmAbout() override;

protected:
    void Form_Load() override;

private:
    std::unique_ptr<Ui::frmAbout> ui;
};
