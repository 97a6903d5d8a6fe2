#pragma once

#include "core/store/Codes.h"
#include "platform/forms/Screen.h"

#include <QString>
#include <memory>

namespace Ui {
class frmEditAccount;
}

/// Adds and edits a ledger account. The accounts that the shop begins with ("Wages", "Sales" ...) are found
/// by their titles when vouchers are made, so they can be neither changed nor deleted.
class frmEditAccount : public forms::Screen
{
    Q_OBJECT
public:
    frmEditAccount();
    ~frmEditAccount() override;

    void ShowAddNew();
    /// Throws ado::NoCurrentRecordError when there is no account of this id.
    void ShowEdit(qint16 id);

protected:
    void Form_Load() override;
    void Form_KeyPress(int& key) override;

private:
    void save();
    bool isDuplicate();
    void remove();

    const std::unique_ptr<Ui::frmEditAccount> ui;
    qint16 AccountID = 0; ///< 0 for a new account
    RecordMode AccountMode = RecordMode::New;
    QString AccountTitle;       ///< as read or last saved
    qint16 AccountReadOnly = 0; ///< 1 for an account that the shop began with
};
