#pragma once

#include "jobcards/UnsavedCards.h"
#include "platform/forms/Screen.h"
#include "ui/TypedName.h"

#include <memory>

namespace Ui {
class frmEditJOB;
}
class swSMS;

/// The job card: its head, its item lines and its money. Works on one card at a time; nothing reaches the
/// file before Save.
class frmEditJOB : public forms::Screen
{
    Q_OBJECT
public:
    explicit frmEditJOB(QWidget* parent = nullptr);
    ~frmEditJOB() override;

    /// Opens the screen on a new card, and on another one each time the operator asks for it. Throws
    /// DatabaseError when it cannot be prepared.
    void ShowAddNew();
    /// Opens the screen on a stored card; true when the card was saved or deleted on it. Throws
    /// DatabaseError, with nothing shown, when the card cannot be read.
    bool ShowEdit(qint32 JobID);

    /// The number for the next card.
    qint32 GetNewNum() const { return JobCard::GetNewNum(); }
    /// Adds up the lines and shows the total and what is left to pay. An empty list leaves the amounts as
    /// they are.
    void DoTotal();
    /// Write the card as it stands on the screen. Throw OperatorError.
    void SaveNew();
    void SaveEdit();

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyPress(int& key) override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void showCardsAskedFor();
    void openWith(const std::function<void()>& fill);
    void showNewCard();
    void showStoredCard(qint32 JobID);
    void showHead(const JobCardHead& head);
    void showMode();
    void fillClients();

    void typeClient(int& key);
    void leaveClient();
    void greetClient();
    void limitPaid();
    void showBalance();
    double garments() const;
    void showGarments();

    QStringList lineCells(int row) const;
    void showLines();
    void appendLine();
    int selectedLine() const;
    void editLine();

    void save();
    void print();
    void startNewCard();
    void addLine();
    void goToMoney();
    void removeLine();
    void clearLines();
    void remove();
    void toggleCancelReason();
    void quickFind();
    void copyLine();
    void hideCancelReason();

    bool isNew() const;
    JobCardDraft draft() const;
    void showDraft(const JobCardDraft& draft);
    void keepUnsaved();
    void undo();
    void showHelp();
    QString notice() const;

    JobCardHead typedHead() const;
    JobCardHead head() const;
    void refuse(const QString& message, QWidget* field);
    void offerSms();

    std::unique_ptr<Ui::frmEditJOB> ui;
    std::unique_ptr<swSMS> swSMS1;
    TypedName m_typedClient;
    QString m_measured; ///< the client whose measurements the lines began with
    JobCard m_card;
    bool CardChanged = false;
    std::optional<JobCardDraft> m_blank; ///< a new card as it was when it opened
    bool m_anotherCard = false;          ///< New was pressed: a fresh card follows this one
};
