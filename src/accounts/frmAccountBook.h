#pragma once

#include "accounts/Book.h"
#include "accounts/BookLines.h"

#include <memory>

class frmTransiction;
class swSMS;
enum class SmsWay;
namespace Ui {
class frmAccountBook;
}

/// The ledger of one account over some days: where the shop looks up what a client owes, what a worker is
/// owed, what went through a ledger account. From here vouchers are entered and opened, the statement is
/// printed and the client informed of the balance by SMS.
class frmAccountBook : public Book
{
    Q_OBJECT
public:
    frmAccountBook();
    ~frmAccountBook() override;

    /// Opens the book of a client on the working date.
    void ShowAccount(const QString& title);
    /// Opens the book of an account that is neither a client nor a worker.
    void ShowLedgerAccount(const QString& title, const QDate& from, const QDate& to);
    /// Fills the accounts of the kind chosen.
    void loadList();
    void ExecuteSQL() override;

protected:
    void Form_Load() override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;
    void openSelected() override;

private:
    void showBook(AccountBook book, const QString& account);
    bool accountChosen();
    void view();
    void addEntry();
    void takeMoney();
    void showSaved(const frmTransiction& entry);
    void openWages();
    void openDayBook();
    void sendBalance(SmsWay way);
    void printStatement();
    void printReceipt();

    const std::unique_ptr<Ui::frmAccountBook> ui;
    swSMS* const swSMS1;
    std::shared_ptr<AccountBook> m_book = std::make_shared<AccountBook>(); ///< on the list, with its balances

    // What the book on the list is of; empty before the first view.
    QString m_account;
    QString m_period;
};
