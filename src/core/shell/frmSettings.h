#pragma once

#include "platform/forms/Screen.h"

#include <QHash>
#include <memory>

class CopyList;
class QLineEdit;
class swTextBoxMultiLine;

namespace Ui {
class frmSettings;
}

/// The options of the shop, on four tabs. "&Save" writes all of them at once; the backup folder alone is
/// written when it is picked.
class frmSettings : public forms::Screen
{
    Q_OBJECT
public:
    frmSettings();
    ~frmSettings() override;

    /// Opens the screen on the page of the backup.
    void ShowBackup();

protected:
    void Form_Load() override;
    void Form_KeyPress(int& key) override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void showDraft(swTextBoxMultiLine& box, const QString& text);
    QString draft(const swTextBoxMultiLine& box) const;
    void limitSmsTitle(int& key);
    void selectPicture(QLineEdit& box);
    void loadDefaultDrafts();
    void save();
    bool numbersFit();
    bool paymentArrives();
    bool draftsArrive();
    void selectBackupFolder();
    void openBackupFolder();
    QString chosenBackupFolder();
    void backUp();
    void restore();
    void look();
    void restoreCopy();
    QString chosenCopy();
    void restoreFrom(const QString& archive);
    void checkShop();
    void makeNewBooks();
    void showLastBackup();
    void goTo(QWidget& field);
    void showWhetherHindi();
    void writeSettings();

    const std::unique_ptr<Ui::frmSettings> ui;
    QHash<const swTextBoxMultiLine*, QString> m_shownDrafts;
    CopyList* m_copies;
};
