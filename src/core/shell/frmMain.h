#pragma once

#include "platform/forms/Screen.h"

#include <QElapsedTimer>
#include <memory>

class CopyAtStart;
class Wallpaper;

namespace Ui {
class frmMain;
}

/// The main screen: the shop's commands, its working date and its wall. The program ends with it.
class frmMain : public forms::Screen
{
    Q_OBJECT
public:
    frmMain();
    ~frmMain() override;

    /// Does beforehand what the first showing would take time for and no shop is needed for.
    void prepare();
    /// Asks for the login where one is set, then shows the screen. False when no login was made.
    static bool start(std::unique_ptr<frmMain> screen);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int& key) override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;
    void Form_Unload() override;

private:
    void SetWall();
    void RefershINFO();
    void changeWorkingDate();
    void showWhetherToday();
    void showLastBackup();
    void gatherCode(int& key);
    bool takesCodeFromDate();

    std::unique_ptr<Ui::frmMain> ui;
    const bool m_looks; ///< at the shop as it was: leaving it ends nothing
    Wallpaper* MyWall;
    CopyAtStart* m_copyAtStart;
    QString m_scanned;        ///< of a line's code, so far
    bool m_dateTaken = false; ///< the working date stands selected; what is typed now is the screen's
    QElapsedTimer m_sinceCharacter;
};
