#pragma once

#include "core/store/Settings.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Screen.h"

class QPushButton;
class swSMS;
class swTextBoxMultiLine;

/// Base of the screens that remind clients: a list of whom, a text that the shop keeps, and its way to the
/// client of the selected row.
class ReminderScreen : public forms::Screen
{
    Q_OBJECT
protected:
    struct Controls
    {
        forms::ListView* list;
        QPushButton* show;
        swTextBoxMultiLine* message;
        QPushButton* save;
        QPushButton* send;
        QPushButton* byPhone;
    };

    ReminderScreen(const Setting& text, const QString& greeting);
    /// For the constructor.
    void setControls(const Controls& controls);

    /// Lists who is to be reminded on the working date, and shows the text.
    void Form_Load() override;

    /// Chooses the working date.
    virtual void resetDays() = 0;
    /// Refuses days that make no sense.
    virtual bool daysAccepted() { return true; }
    /// Who is to be reminded. Throws ado::DatabaseError.
    virtual std::vector<forms::ListView::Row> read() = 0;

    /// Lists them anew; the row that was selected stays so, else it is the first.
    void fill();

private:
    void show();
    void send();
    void showByPhone();

    const Setting m_text;
    const QString m_default;
    Controls m_controls{};
    swSMS* const swSMS1;
};
