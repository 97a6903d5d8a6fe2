#pragma once

#include "core/store/Codes.h"
#include "platform/forms/Screen.h"

#include <QDate>
#include <memory>
#include <vector>

class Currency;
class PictureBox;
class QLabel;
class QPushButton;
class QRadioButton;
class swSMS;

namespace Ui {
class frmEditWorkerAssign;
}

/// One garment of a job card in the workshop: who makes it, how far it is, what the worker gets for it, where
/// it lies. The save that completes a card's last line offers the message to the client; the one that
/// delivers the last line closes the card.
class frmEditWorkerAssign : public forms::Screen
{
    Q_OBJECT
public:
    frmEditWorkerAssign();
    ~frmEditWorkerAssign() override;

    /// Opens on a line of a job card. Throws ado::NoCurrentRecordError, with nothing shown, when the line, or
    /// its client, item or worker, is gone.
    void ShowEdit(qint32 LineID);
    /// Shows the rating of the worker who stands in the box; 0 for none.
    void RateWorker();
    void showRating(qint16 rating);

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyPress(int& key) override;

private:
    /// A state that the line can be given here, and the day on which it last came into it.
    struct State
    {
        QRadioButton* option;
        LineState state;
        QLabel* date; ///< null: the state has no day
    };
    std::vector<State> states() const;

    void showLine();
    static void showPicture(PictureBox& pic, QPushButton& print, QString& imgPath, const QString& link);
    void showLastJob();
    void showWages(bool shown);
    QString chosenWorker() const;
    qint32 jobID() const;

    void save();
    void writeLine(const QString& worker);
    void giveFeedback();
    void offerSms();
    void toggleWages();

    std::unique_ptr<Ui::frmEditWorkerAssign> ui;
    std::unique_ptr<swSMS> swSMS1;

    qint32 LineID = 0;
    QDate LineDate;
    qint32 LineItemID = 0;
    qint32 LineClientID = 0;
    QString Img1Path; ///< empty while there is no such picture
    QString Img2Path;
    QString m_ratedWorker;
};
