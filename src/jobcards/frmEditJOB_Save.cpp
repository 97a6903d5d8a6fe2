// Save, Print and Delete of the job card.
#include "core/Session.h"
#include "core/Settings.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "jobcards/frmEditJOB.h"
#include "messaging/modSMS.h"
#include "messaging/swSMS.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui_frmEditJOB.h"

#include <QScopeGuard>

namespace {

constexpr qint32 OfferSmsSetting = 3;
constexpr qint32 PrintAfterSaveSetting = 14;

} // namespace

void frmEditJOB::Command1_Click()
{
    if (ui->cmbClient->text().isEmpty()) {
        refuse(QStringLiteral("Please Select Client!"), ui->cmbClient);
        return;
    }
    if (ui->lvItems->rowCount() == 0) {
        refuse(QStringLiteral("Please Add Item!"), ui->Command4);
        return;
    }
    if (ui->txtAmountPaid->text().isEmpty())
        ui->txtAmountPaid->setText(QStringLiteral("0"));
    if (values::Val(ui->txtAmountPaid->text()) > 0 && ComboFindIndex(*ui->cmbAccount) < 0) {
        refuse(QStringLiteral("Please Select Receipt Account!"), ui->cmbAccount);
        return;
    }
    if (m_card.EditMode == QStringLiteral("N")) {
        SaveNew();
        if (values::Val(GetSetting(PrintAfterSaveSetting, QStringLiteral("0"))) == 1)
            Command2_Click();
    } else {
        SaveEdit();
    }
    offerSms();
}

void frmEditJOB::refuse(const QString& message, QWidget* field)
{
    ShowMsg(message);
    field->setFocus();
}

/// Throws OperatorError for a number or an amount that no card can hold.
JobCardHead frmEditJOB::head() const
{
    JobCardHead head;
    if (m_card.EditMode == QStringLiteral("N"))
        head.Number = values::CLng(values::Val(ui->txtJOBID->text()));
    head.Date = ui->JobDate->value();
    head.Client = ui->cmbClient->text();
    head.DeliveryDate = ui->DateDel->value();
    head.TrialDate = ui->DateTrial->value();
    head.Total = Currency::fromDouble(values::Val(ui->txtAmountDue->text()));
    head.Paid = Currency::fromDouble(values::Val(ui->txtAmountPaid->text()));
    if (head.Paid < Currency())
        throw OperatorError(QStringLiteral("The amount received can't be below 0. Nothing has been saved."));
    head.Delivered = ui->chJobStatus->isChecked();
    head.Remark = ui->txtRemark->text();
    head.ReceiptAccount = ui->cmbAccount->text();
    head.Cancelled = ui->chStatus->isChecked();
    head.CancelReason = ui->txtCancel->text();
    return head;
}

void frmEditJOB::SaveNew()
{
    {
        // A save that breaks off behind the head leaves a stored card, too.
        const auto show = qScopeGuard([this] { showMode(); });
        m_card.SaveNew(head());
    }
    ShowMsg(QStringLiteral("New Job Created."));
}

void frmEditJOB::SaveEdit()
{
    m_card.SaveEdit(head());
    session.RefreshLists = true;
    CardChanged = true;
    ShowMsg(QStringLiteral("Job Edited."));
}

void frmEditJOB::offerSms()
{
    if (GetSetting(OfferSmsSetting, QStringLiteral("No")) == QStringLiteral("No"))
        return;
    if (!ShowMsg(QStringLiteral("This Job has been registered.\r\nWould you like to Inform Client via SMS?"),
                 2))
        return;
    SendSmsToClient(*swSMS1, ui->cmbClient->text(), 0,
                    MakeJobRegisteredSms(m_card.CurrentJobID, values::Val(ui->txtAmount->text())));
}

/// A card that isn't stored has no paper yet: nothing comes.
void frmEditJOB::Command2_Click()
{
    if (m_card.EditMode == QStringLiteral("E"))
        PrintJobCard(m_card.CurrentJobID);
}

void frmEditJOB::Command7_Click()
{
    if (m_card.EditMode == QStringLiteral("N"))
        return;
    if (!ShowMsg(QStringLiteral("Are you sure to Delete!"), 2))
        return;
    m_card.Delete();
    session.RefreshLists = true;
    CardChanged = true;
    ShowMsg(QStringLiteral("Deleted."));
    unload();
}
