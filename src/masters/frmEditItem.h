#pragma once

#include "masters/EditMaster.h"

#include <memory>

namespace Ui {
class frmEditItem;
}

/// Adds and edits a garment of the catalogue: its fees, its capacity and the template of its measurements,
/// one a line.
class frmEditItem : public EditMaster
{
    Q_OBJECT
public:
    frmEditItem();
    ~frmEditItem() override;

protected:
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void clear() override;
    void read(ado::Recordset& row) override;
    void write(ado::Recordset& row) override;
    bool isInUse(qint16 id) override;

    void tidyTemplateBox();

    const std::unique_ptr<Ui::frmEditItem> ui;
};
