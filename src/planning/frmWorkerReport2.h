#pragma once

#include "platform/forms/Screen.h"
#include "platform/values/Literals.h"

#include <memory>

namespace Ui {
class frmWorkerReport2;
}

/// How many lines of the days chosen each worker has, whatever their state; the operator can pick one of the
/// workers.
class frmWorkerReport2 : public forms::Screen
{
    Q_OBJECT
public:
    /// `sql` selects one worker's lines; "%id" in it stands for the worker's id. `range` tells the operator
    /// which lines these are.
    explicit frmWorkerReport2(const QString& sql, const QString& range = {});
    ~frmWorkerReport2() override;

    /// Counts the lines of one worker. Throws OverflowError beyond 16 bits.
    /// The worker picked, or "-1000".
    QString chosen() const { return m_chosen; }

protected:
    void Form_Load() override;

private:
    void fill();
    void choose();

    const std::unique_ptr<Ui::frmWorkerReport2> ui;
    const QString m_sql;
    QString m_chosen = u"-1000"_s;
};

/// Shows the workers with their numbers of lines; `result` is the name of the one picked, or "-1000". `sql`
/// selects one worker's lines, with "%id" for the worker's id; `range` tells which these are.
void ShowWorkerOverView(const QString& sql, QString& result, const QString& range = {});
