#include "registers/ReminderScreen.h"

#include "core/store/Session.h"
#include "messaging/frmByPhone.h"
#include "messaging/swSMS.h"
#include "platform/forms/MessageBox.h"
#include "ui/modLang.h"
#include "ui/swTextBoxMultiLine.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int numberColumn = 2;

} // namespace

ReminderScreen::ReminderScreen(const Setting& text, const QString& greeting)
    : m_text(text)
    , m_default(session.ShownShopName + u"\r\n"_s + greeting)
    , swSMS1(new swSMS(this))
{
}

void ReminderScreen::setControls(const Controls& controls)
{
    m_controls = controls;
    on(controls.show, &QPushButton::clicked, &ReminderScreen::show);
    on(controls.save, &QPushButton::clicked, [this] { SetSetting(m_text, m_controls.message->Text()); });
    on(controls.send, &QPushButton::clicked, &ReminderScreen::send);
    on(controls.byPhone, &QPushButton::clicked, &ReminderScreen::showByPhone);
}

void ReminderScreen::Form_Load()
{
    SetFormLanguage(*this);
    useScreenHeight();
    resetDays();
    m_controls.message->setText(GetSetting(m_text, m_default));
    m_controls.list->setFocus();
    forms::guarded(this, [this] { fill(); });
}

void ReminderScreen::fill()
{
    forms::ListView& list = *m_controls.list;
    list.refreshRows(read());
    if (list.selectedRow() < 0)
        list.selectRow(0);
}

void ReminderScreen::show()
{
    if (!daysAccepted())
        return;
    fill();
    m_controls.list->setFocus();
}

/// The operator reads that it has been sent whatever became of it at the port, where no answer is read.
void ReminderScreen::send()
{
    const int row = m_controls.list->selectedRow();
    if (row < 0)
        return;
    if (SendSmsToNumber(*swSMS1, m_controls.list->cell(row, numberColumn), m_controls.message->Text()))
        forms::plainMessage(this, u"Message Sent"_s);
}

void ReminderScreen::showByPhone()
{
    if (const int row = m_controls.list->selectedRow(); row >= 0)
        ShowByPhone(this, m_controls.list->cell(row, numberColumn), m_controls.message->Text());
}
