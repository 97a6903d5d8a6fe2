#include "masters/frmEditClients.h"

#include "core/store/DE.h"
#include "core/store/References.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "masters/ClientFolder.h"
#include "masters/Records.h"
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
    ui->dateDob->look(values::Looks::Birth, session.WorkingDate);
    ui->dateDob->setMayBeEmpty(true);
    onKeyPress(ui->dateDob, [](int& key) { key = EnterAsTab(key); });
    on(ui->dateDob, &forms::DatePicker::changed, [this] { showDob(false); });
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
    showDob(true);
}

/// What becomes of the date of birth: a new client's begins with the working date, which is stored when
/// nobody changes it; such a date is dimmed.
void frmEditClients::showDob(bool offered)
{
    const QDate dob = ui->dateDob->value();
    QString hint;
    if (offered)
        hint = u"Unless it is changed, %1 is stored  ·  Del: no date"_s.arg(dateText(dob));
    else if (!dob.isValid())
        hint = u"Empty: no date of birth is stored"_s;
    else if (dob > session.WorkingDate)
        hint = u"This day is still to come"_s;
    ui->lblDobHint->setText(hint);
    ui->lblDobHint->setVisible(!hint.isEmpty());
    ui->dateDob->setProperty("unset", offered);
    ui->dateDob->style()->unpolish(ui->dateDob);
    ui->dateDob->style()->polish(ui->dateDob);
}

void frmEditClients::read(ado::Recordset& row)
{
    ui->txtAddress->setText(row["ADDRESS"].text());
    ui->txtCity->setText(row["CITY"].text());
    ui->txtState->setText(row["STATE"].text());
    ui->txtMobile->setText(row["MOBILE"].text());
    ui->dateDob->setValue(row["DOB"].date());
    showDob(false);
}

void frmEditClients::write(ado::Recordset& row)
{
    ui->dateDob->settle(); // a date that is still being typed is chosen, too
    ClientFields{ui->txtAddress->Text(), ui->txtCity->Text(), ui->txtState->Text(), ui->txtMobile->Text(),
                 ui->dateDob->value()}
        .writeTo(row);
}

bool frmEditClients::isInUse(qint16 id) { return isClientInUse(id); }

bool frmEditClients::addsAnotherAfter(const QString& name)
{
    m_newTitle = name;
    return !m_fromJobCard;
}
