// The new card that is left without saving it, and how it comes back.
#include "jobcards/frmEditJOB.h"
#include "ui_frmEditJOB.h"

using namespace Qt::StringLiterals;

bool frmEditJOB::isNew() const { return m_card.EditMode == RecordMode::New; }

JobCardDraft frmEditJOB::draft() const
{
    return {.Number = ui->txtJOBID->isModified() ? ui->txtJOBID->text() : QString(),
            .Head = typedHead(),
            .Total = ui->txtAmountDue->text(),
            .Paid = ui->txtAmountPaid->text(),
            .Rows = m_card.JobRows};
}

void frmEditJOB::showDraft(const JobCardDraft& draft)
{
    const QString offered = QString::number(GetNewNum());
    showHead(draft.Head);
    ui->txtJOBID->setText(draft.Number.isEmpty() ? offered : draft.Number);
    ui->txtJOBID->setModified(!draft.Number.isEmpty());
    ui->txtAmountDue->setText(draft.Total);
    ui->txtAmountPaid->setText(draft.Paid);
    m_card.Clear();
    m_card.JobRows = draft.Rows;
    showLines();
    showBalance();
}

void frmEditJOB::keepUnsaved()
{
    if (!m_blank || !isNew())
        return;
    if (JobCardDraft left = draft(); !left.isBlank(*m_blank))
        unsavedCards.keep(std::move(left));
}

/// Takes back the typing in the box where there is some to take back; else brings back the card that was left
/// unsaved.
void frmEditJOB::undo()
{
    auto* box = qobject_cast<QLineEdit*>(focusWidget());
    if (box && box->isUndoAvailable()) {
        box->undo();
        return;
    }
    if (!isNew() || unsavedCards.isEmpty())
        return;
    std::optional<JobCardDraft> current = draft();
    if (current->isBlank(*m_blank))
        current.reset();
    showDraft(unsavedCards.take(std::move(current)));
    showHelp();
    ui->cmbClient->closeUp();
    ui->lvItems->setFocus();
    greetClient();
}

void frmEditJOB::showHelp()
{
    const bool any = isNew() && !unsavedCards.isEmpty();
    if (any)
        ui->lblUnsaved->setText(u"Ctrl+Z brings back the unsaved card "_s +
                                unsavedCards.last().description());
    ui->lblUnsaved->setVisible(any);
    ui->lblHelp->setNotice(notice());
}

/// What the operator should know of the client's name and of the dates.
QString frmEditJOB::notice() const
{
    if (const QString& nobody = m_typedClient.unknown(); !nobody.isEmpty())
        return u"Nobody begins with '%1'  ·  Ctrl+A adds"_s.arg(nobody);
    const bool measured = m_card.JobRows.RowCount() > 0 && !m_measured.isEmpty();
    if (measured && ui->cmbClient->text() != m_measured)
        return u"The garments keep the measurements of "_s + m_measured;
    return typedHead().dateNotice();
}
