// Save, Print and Delete of the job card.
#include "core/store/SerialNumber.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "jobcards/frmEditJOB.h"
#include "messaging/modSMS.h"
#include "messaging/swSMS.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui_frmEditJOB.h"

using namespace Qt::StringLiterals;

void frmEditJOB::save()
{
    if (ui->cmbClient->text().isEmpty()) {
        refuse(u"Please Select Client!"_s, ui->cmbClient);
        return;
    }
    if (ui->lvItems->rowCount() == 0) {
        refuse(u"Please Add Item!"_s, ui->Command4);
        return;
    }
    if (ui->txtAmountPaid->text().isEmpty())
        ui->txtAmountPaid->setText(u"0"_s);
    if (values::Val(ui->txtAmountPaid->text()) > 0 && ComboFindIndex(*ui->cmbAccount) < 0) {
        refuse(u"Please Select Receipt Account!"_s, ui->cmbAccount);
        return;
    }
    if (isNew()) {
        SaveNew();
        if (IsOn(settings::PrintAfterSave))
            print();
    } else {
        SaveEdit();
    }
    ui->Command2->setFocus(); // Enter once more must not save once more
    offerSms();
}

void frmEditJOB::refuse(const QString& message, QWidget* field)
{
    ShowMsg(message);
    field->setFocus();
}

/// The head as it stands on the screen, without its number and amounts.
JobCardHead frmEditJOB::typedHead() const
{
    JobCardHead head;
    head.Date = ui->JobDate->value();
    head.Client = ui->cmbClient->text();
    head.DeliveryDate = ui->DateDel->value();
    head.TrialDate = ui->DateTrial->value();
    head.Delivered = ui->chJobStatus->isChecked();
    head.Remark = ui->txtRemark->text();
    head.ReceiptAccount = ui->cmbAccount->text();
    head.Cancelled = ui->chStatus->isChecked();
    head.CancelReason = ui->txtCancel->text();
    return head;
}

/// Throws OperatorError for a number or an amount that no card can hold.
JobCardHead frmEditJOB::head() const
{
    JobCardHead head = typedHead();
    if (isNew()) {
        const auto number = readSerialNumber(ui->txtJOBID->text());
        if (!number) {
            ui->txtJOBID->setFocus();
            throw serialNumberRefused(u"JOB ID"_s);
        }
        head.Number = *number;
    }
    head.Total = Currency::fromDouble(values::Val(ui->txtAmountDue->text()), u"Total Amount"_s);
    head.Paid = Currency::fromDouble(values::Val(ui->txtAmountPaid->text()), u"Amount Received"_s);
    if (head.Paid < Currency())
        throw OperatorError(u"The amount received can't be below 0. Nothing has been saved."_s);
    return head;
}

void frmEditJOB::SaveNew()
{
    m_card.SaveNew(head());
    showMode();
    ShowMsg(u"New Job Created."_s);
}

void frmEditJOB::SaveEdit()
{
    m_card.SaveEdit(head());
    session.RefreshLists = true;
    CardChanged = true;
    ShowMsg(u"Job Edited."_s);
}

void frmEditJOB::offerSms()
{
    if (!IsOn(settings::SmsAfterRegistration))
        return;
    const SmsWay way = AskSms(u"This Job has been registered.\r\nWould you like to Inform Client via SMS?"_s);
    if (way == SmsWay::None)
        return;
    TellClient(*swSMS1, way, ui->cmbClient->text(),
               MakeJobRegisteredSms(m_card.CurrentJobID, values::Val(ui->txtAmount->text())));
}

/// A card that isn't stored has no paper yet: nothing comes.
void frmEditJOB::print()
{
    if (m_card.EditMode == RecordMode::Stored)
        PrintJobCard(m_card.CurrentJobID);
}

void frmEditJOB::remove()
{
    if (m_card.EditMode == RecordMode::New)
        return;
    if (!ShowMsg(u"Are you sure to Delete!"_s, 2))
        return;
    m_card.Delete();
    session.RefreshLists = true;
    CardChanged = true;
    ShowMsg(u"Deleted."_s);
    unload();
}
