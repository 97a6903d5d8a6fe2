#pragma once

#include "platform/values/Literals.h"
#include "registers/LineRegister.h"

#include <memory>

namespace Ui {
class frmWorkerJobRegister;
}
class DetailsPanel;

/// The job register, the shop's main work list: item lines of job cards by worker, dates, state, card or
/// client, and what is done with them.
class frmWorkerJobRegister : public LineRegister
{
    Q_OBJECT
public:
    frmWorkerJobRegister();
    ~frmWorkerJobRegister() override;

    void ExecuteSQL() override;
    /// Keep the lines of a cutting mark, with or without a worker; each takes the text of the condition.
    void RemoveUnwanted2(const QString& condition);
    void RemoveUnwanted3(const QString& condition);
    /// Delivers the whole card of the selected row, without a question.
    void DeliverJobCard();

protected:
    void Form_KeyPress(int& key) override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;
    QString searchText() const override;
    QString order() const override;
    forms::ListView::Row rowOf(const RegisterLine& line, LineNames& names) const override;
    void applyCondition(const QString& condition) override;
    void quickFind() override;
    QString otherDaysHint() const override;

private:
    enum Column { ClientColumn = 2, WorkerColumn = 6 };

    // Filling
    QString workerSearch(const QString& workerId) const;
    void fillDetails();

    // Criteria
    void showOverview();

    // Actions on the selected row
    void askMenu(int row, const QPoint& place);
    void markCuttingDone();
    void markCompleted();
    void markAlteration();
    void markDelivered();
    void deliverWholeCard();
    void openJobCard();
    void openClientAccount();
    void openClientFolder();
    void takeMoney();
    QString selectedClient() const;
    qint32 selectedJob() const;
    QString askLocation();
    bool asked(const QString& question) const;
    void writeDelivered(qint32 job);
    void mark(qint32 line, LineState state, const QString& location = {});
    void refreshAfterMark();

    const std::unique_ptr<Ui::frmWorkerJobRegister> ui;
    DetailsPanel* m_details;
};
