#pragma once

#include "platform/ado/Recordset.h"
#include "platform/forms/Screen.h"

#include <QVariant>
#include <memory>

namespace Ui {
class frmFeedBack;
}
class QLabel;

/// The client's opinion of one finished item: a score from 0 to 5 and a free text, kept on its line.
class frmFeedBack : public forms::Screen
{
    Q_OBJECT
public:
    /// For a line of a job; with `readOnly` 1 nothing can be saved.
    frmFeedBack(qint32 lineId, qint16 readOnly);
    ~frmFeedBack() override;

    /// Shows as many stars as the score says. A score that is not 0 to 5 leaves them as they are.
    void ChangeStars();
    /// The score saved last; null when none was.
    QVariant saved() const { return m_saved; }

protected:
    /// Throws ado::NoCurrentRecordError for a line that is not there.
    void Form_Load() override;

private:
    QList<QLabel*> starPictures() const;
    void save();

    const std::unique_ptr<Ui::frmFeedBack> ui;
    const qint32 m_lineId;
    QVariant m_saved;
};

/// Opens the feedback of a line; with `readOnly` 1 it cannot be saved. `result` is the score saved, and stays
/// as it is when none was. Throws ado::NoCurrentRecordError for a line that is not there.
void GiveFeedback(qint32 lineId, qint16 readOnly, QVariant& result);
