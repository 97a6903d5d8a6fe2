#pragma once

#include "masters/EditMaster.h"

#include <memory>

namespace Ui {
class frmEditClients;
}

/// Adds and edits a client of the shop, who is an account of the ledger at the same time.
class frmEditClients : public EditMaster
{
    Q_OBJECT
public:
    frmEditClients();
    ~frmEditClients() override;

    /// Adds one client, called from a job card; `result` is the client's title, or empty if none was added.
    /// The name begins with what was typed on the card.
    void AddNewFromJobCard(QString& result, const QString& typedName = {});

protected:
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void clear() override;
    void read(ado::Recordset& row) override;
    void write(ado::Recordset& row) override;
    bool isInUse(qint16 id) override;
    bool addsAnotherAfter(const QString& name) override;

    void showDob(bool offered);

    const std::unique_ptr<Ui::frmEditClients> ui;
    bool m_fromJobCard = false;
    QString m_typedName;
    QString m_newTitle;
};
