#include "masters/frmEditItem.h"

#include "core/store/DE.h"
#include "core/store/References.h"
#include "masters/Records.h"
#include "platform/values/Numbers.h"
#include "ui_frmEditItem.h"

using namespace Qt::StringLiterals;

namespace {

Currency money(const swTextBox& box, const QString& field)
{
    return Currency::fromDouble(values::Val(box.Text()), field);
}

} // namespace

frmEditItem::frmEditItem()
    : EditMaster({.table = u"Items"_s,
                  .nameField = u"Name"_s,
                  .titleNew = u"Add New Item"_s,
                  .titleEdit = u"Edit Item"_s,
                  .nameMissing = u"Please Enter Item Name!"_s,
                  .added = u"New Item Added."_s,
                  .edited = u"Item Edited."_s},
                 DE.rsITEMS)
    , ui(std::make_unique<Ui::frmEditItem>())
{
    ui->setupUi(this);
    setControls({ui->lblTitle, ui->txtName, ui->Command1, ui->Command2});
    ui->txtItemDetails->setNextOnSecondEnter(ui->txtFees);
    onLostFocus(ui->txtItemDetails, [this] { tidyTemplateBox(); });
}

frmEditItem::~frmEditItem() = default;

void frmEditItem::clear()
{
    ui->txtItemDetails->setText(u"Measurement 1\r\nMeasurement 2\r\nMeasurement 3=Default Value"_s);
    for (swTextBox* box : {ui->txtFees, ui->txtWorkerFees, ui->txtProductionCap, ui->txtPendingOrdersBal})
        box->setText({});
}

void frmEditItem::read(ado::Recordset& row)
{
    ui->txtFees->setText(row["Fees"].money().toString());
    ui->txtWorkerFees->setText(row["WorkerFees"].money().toString());
    ui->txtItemDetails->setText(row["ItemDetails"].text());
    ui->txtProductionCap->setText(row["ProdcutionCap"].text());
    ui->txtPendingOrdersBal->setText(row["OpPendingOrders"].text());
}

/// Ctrl+Enter leaves the template from any line.
void frmEditItem::Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers)
{
    if (key != forms::key::Enter || !modifiers.testFlag(Qt::ControlModifier) ||
        !ui->txtItemDetails->hasFocus())
        return;
    key = 0;
    ui->txtFees->setFocus();
}

void frmEditItem::tidyTemplateBox() { ui->txtItemDetails->setText(tidyTemplate(ui->txtItemDetails->Text())); }

void frmEditItem::write(ado::Recordset& row)
{
    ItemFields{money(*ui->txtFees, u"Fees"_s), money(*ui->txtWorkerFees, u"Worker's Fees"_s),
               ui->txtItemDetails->Text(), numberText(ui->txtProductionCap->Text()),
               numberText(ui->txtPendingOrdersBal->Text())}
        .writeTo(row);
}

bool frmEditItem::isInUse(qint16 id) { return isItemInUse(id); }
