#include "masters/EditMaster.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "platform/values/Titles.h"
#include "ui/ModOtherFUN.h"
#include "ui/boxes.h"
#include "ui/modLang.h"
#include "ui/swTextBox.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

EditMaster::EditMaster(Kind kind, ado::Recordset& recordset)
    : m_kind(std::move(kind))
    , m_recordset(recordset)
{
}

void EditMaster::setControls(const Controls& controls)
{
    m_controls = controls;
    boxes::writeTitles(*controls.txtName);
    on(controls.save, &QPushButton::clicked, &EditMaster::save);
    on(controls.remove, &QPushButton::clicked, &EditMaster::remove);
}

void EditMaster::AddNew()
{
    do {
        m_addAnother = false;
        m_controls.txtName->setText({});
        clear();
        show(RecordMode::New, m_kind.titleNew);
    } while (m_addAnother);
}

void EditMaster::Edit(qint16 id)
{
    m_id = id;
    m_recordset.Open(u"Select * from %1 where id=%2"_s.arg(m_kind.table).arg(id));
    m_keptName = m_recordset[m_kind.nameField].text();
    m_controls.txtName->setText(m_keptName);
    read(m_recordset);
    m_recordset.Close();
    show(RecordMode::Stored, m_kind.titleEdit);
}

void EditMaster::show(RecordMode mode, const QString& title)
{
    m_mode = mode;
    m_controls.lblTitle->setText(title);
    m_controls.txtName->setFocus();
    showModal();
}

void EditMaster::Form_Load() { SetFormLanguage(*this); }

void EditMaster::save()
{
    const bool isNew = m_mode == RecordMode::New;
    const QString name = values::title(m_controls.txtName->Text());
    if (name.isEmpty()) {
        ShowMsg(m_kind.nameMissing);
        m_controls.txtName->setFocus();
        return;
    }
    if ((isNew || values::foldedTitle(name) != values::foldedTitle(m_keptName)) && isTaken(name)) {
        ShowMsg(u"Duplicate!"_s);
        m_controls.txtName->setFocus();
        return;
    }

    DE.connection().writeBatch([&] {
        QString sql = u"Select * from "_s + m_kind.table;
        if (!isNew)
            sql += u" where id=%1"_s.arg(m_id);
        m_recordset.Open(sql);
        if (isNew)
            m_recordset.AddNew();
        m_recordset[m_kind.nameField] = name;
        write(m_recordset);
        m_recordset.UpdateBatch();
        m_recordset.Close();
    });
    session.RefreshLists = true;

    if (isNew) {
        ShowMsg(m_kind.added);
        m_addAnother = addsAnotherAfter(name);
        unload();
    } else {
        m_keptName = name;
        m_controls.txtName->setText(name);
        ShowMsg(m_kind.edited);
    }
}

bool EditMaster::isTaken(const QString& name)
{
    return FieldValueExists(name, m_kind.nameField, u"ID"_s, m_kind.table, m_recordset).toLongLong() > 0;
}

bool EditMaster::addsAnotherAfter(const QString&) { return true; }

void EditMaster::remove()
{
    if (m_mode != RecordMode::Stored || !ShowMsg(u"Are you sure?"_s, 2))
        return;
    if (isInUse(m_id)) {
        ShowMsg(u"Cant't Delete!"_s);
        return;
    }
    DE.connection().Execute(u"Delete from %1 where id=%2"_s.arg(m_kind.table).arg(m_id));
    ShowMsg(u"Deleted."_s);
    session.RefreshLists = true;
    unload();
}
