#include "masters/frmEditClients.h"

#include "core/store/Codes.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "masters/ClientFolder.h"
#include "ui/ModOtherFUN.h"
#include "ui/boxes.h"
#include "ui_frmEditClients.h"

#include <QStyle>

using namespace Qt::StringLiterals;

frmEditClients::frmEditClients()
    : EditMaster({.table = u"Accounts"_s,
                  .nameField = u"Title"_s,
                  .titleNew = u"Add New Client"_s,
                  .titleEdit = u"Edit Client Information"_s,
                  .nameMissing = u"Please Enter Client Name!"_s,
                  .added = u"New Client Created."_s,
                  .edited = u"Client Information Updated."_s},
                 DE.rsaccounts)
    , ui(std::make_unique<Ui::frmEditClients>())
{
    ui->setupUi(this);
    setControls({ui->lblTitle, ui->txtName, ui->Command1, ui->Command2});
    ui->dateDob->setLatest(session.WorkingDate);
    onKeyPress(ui->dateDob, [](int& key) { key = EnterAsTab(key); });
    on(ui->dateDob, &forms::DatePicker::changed, [this] { setDobKnown(true); });
}

frmEditClients::~frmEditClients() = default;

void frmEditClients::AddNewFromJobCard(QString& result, const QString& typedName)
{
    m_fromJobCard = true;
    m_typedName = typedName;
    m_newTitle.clear();
    AddNew();
    result = m_newTitle;
}

void frmEditClients::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    if (key != forms::key::F3)
        return;
    key = 0;
    showClientFolder(ui->txtName->Text());
}

void frmEditClients::clear()
{
    ui->txtName->setText(boxes::capitalized(m_typedName));
    for (swTextBox* box : {ui->txtAddress, ui->txtCity, ui->txtState, ui->txtMobile})
        box->setText({});
    ui->dateDob->setValue(session.WorkingDate);
    setDobKnown(true);
}

/// A picker always shows a date; one that is nobody's birthday is dimmed, and a hint says so.
void frmEditClients::setDobKnown(bool known)
{
    m_dobKnown = known;
    ui->lblDobHint->setVisible(!known);
    ui->dateDob->setProperty("unset", !known);
    ui->dateDob->style()->unpolish(ui->dateDob);
    ui->dateDob->style()->polish(ui->dateDob);
}

void frmEditClients::read(ado::Recordset& row)
{
    ui->txtAddress->setText(row["ADDRESS"].text());
    ui->txtCity->setText(row["CITY"].text());
    ui->txtState->setText(row["STATE"].text());
    ui->txtMobile->setText(row["MOBILE"].text());
    ui->dateDob->setValue(row["DOB"].isNull() ? session.WorkingDate : row["DOB"].date());
    setDobKnown(!row["DOB"].isNull());
}

void frmEditClients::write(ado::Recordset& row)
{
    row["Type"] = AccountType::Client;
    row["Address"] = ui->txtAddress->Text();
    row["City"] = ui->txtCity->Text();
    row["State"] = ui->txtState->Text();
    row["Mobile"] = ui->txtMobile->Text();
    ui->dateDob->settle(); // a date that is still being typed is chosen, too
    if (m_dobKnown)
        row["dob"] = ui->dateDob->value();
}

bool frmEditClients::isInUse(qint16 id)
{
    return hasRows(DE.rsJOBS_DETAIL, u"Select * from JOBS_DETAIL where ClintID=%1"_s.arg(id));
}

bool frmEditClients::addsAnotherAfter(const QString& name)
{
    m_newTitle = name;
    return !m_fromJobCard;
}
