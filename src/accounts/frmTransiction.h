#pragma once

#include "core/store/Codes.h"
#include "core/store/Voucher.h"
#include "platform/forms/Screen.h"
#include "platform/values/Currency.h"

#include <QString>
#include <memory>

namespace Ui {
class frmTransiction;
}

/// Enters, corrects and deletes a voucher of the ledger: money moved between the account from which the
/// operator came (the main account) and an opposite one. A voucher is two lines with these accounts swapped
/// and opposite amounts, so all lines of the ledger always sum to zero. A negative amount debits the line's
/// account, a positive one credits it.
class frmTransiction : public forms::Screen
{
    Q_OBJECT
public:
    frmTransiction();
    ~frmTransiction() override;

    /// Opens a new voucher of an account. `saved` is -1 when something was saved or deleted, else 0.
    void ShowAddNew(const QString& accountTitle, qint16& saved);
    /// Opens a new receipt of an account: what it owes on the working date into the shop's cash, all of it to
    /// be changed. `saved` as above.
    void ShowReceipt(const QString& accountTitle, qint16& saved);
    /// Opens an entry voucher or payroll by its number; of several that were given the same number, the one
    /// that has the posting. Throws ado::NoCurrentRecordError when there is none.
    void ShowEdit(qint32 vid, qint16& saved, qint32 posting = 0);
    /// The number of the voucher on the screen, once it is stored.
    qint32 number() const { return EntryID; }
    /// The number that follows the highest entry voucher.
    void GetNewNum(qint32& n);
    /// Write the voucher on the screen. Throw OperatorError for a number or an amount that no voucher can
    /// have, and ado::DatabaseError; nothing is written then.
    void SaveNew();
    void SaveEdit();

protected:
    void Form_Load() override;

private:
    void startNew(const QString& accountTitle);
    void open(RecordMode mode, const QString& title);
    void fillAccounts();
    void mirrorAmount();
    void applyLabels();
    void save();
    bool settleNumber();
    PostingPair pair() const;
    void remove();
    void printReceipt();

    const std::unique_ptr<Ui::frmTransiction> ui;
    RecordMode EntryMode = RecordMode::New;
    qint16 EntrySaved = 0;     ///< -1 after a save or a delete
    qint32 EntryID = 0;        ///< the voucher's number
    PairRows m_rows;           ///< what a save changes and a delete takes: the rows opened or added here
    qint16 EntryIsPayroll = 0; ///< -1 for a payroll
    QString EntryAccount;      ///< the main account's title; the save goes by it, whatever the combo shows
};
