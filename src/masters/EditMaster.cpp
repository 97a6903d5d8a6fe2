#include "masters/EditMaster.h"

#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Session.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui/swTextBox.h"

#include <QLabel>
#include <QPushButton>

EditMaster::EditMaster(Kind kind, ado::Recordset& recordset)
    : m_kind(std::move(kind))
    , m_recordset(recordset)
{
}

void EditMaster::setControls(const Controls& controls)
{
    m_controls = controls;
    on(controls.save, &QPushButton::clicked, &EditMaster::save);
    on(controls.remove, &QPushButton::clicked, &EditMaster::remove);
}

void EditMaster::AddNew()
{
    do {
        m_addAnother = false;
        m_controls.txtName->setText({});
        clear();
        show(QStringLiteral("N"), m_kind.titleNew);
    } while (m_addAnother);
}

void EditMaster::Edit(qint16 id)
{
    m_id = id;
    m_recordset.Open(QStringLiteral("Select * from %1 where id=%2").arg(m_kind.table).arg(id));
    m_keptName = m_recordset[m_kind.nameField].text();
    m_controls.txtName->setText(m_keptName);
    read(m_recordset);
    m_recordset.Close();
    show(QStringLiteral("E"), m_kind.titleEdit);
}

void EditMaster::show(const QString& mode, const QString& title)
{
    m_mode = mode;
    m_controls.lblTitle->setText(title);
    m_controls.txtName->setFocus();
    showModal();
}

void EditMaster::Form_Load() { SetFormLanguage(*this); }

void EditMaster::save()
{
    const bool isNew = m_mode == QLatin1String("N");
    const QString name = m_controls.txtName->Text();
    if (name.isEmpty()) {
        ShowMsg(m_kind.nameMissing);
        m_controls.txtName->setFocus();
        return;
    }
    if ((isNew || name.toUpper() != m_keptName.toUpper()) && isTaken(name)) {
        ShowMsg(QStringLiteral("Duplicate!"));
        m_controls.txtName->setFocus();
        return;
    }

    DE.connection().writeBatch([&] {
        QString sql = QStringLiteral("Select * from ") + m_kind.table;
        if (!isNew)
            sql += QStringLiteral(" where id=%1").arg(m_id);
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
        ShowMsg(m_kind.edited);
    }
}

bool EditMaster::isTaken(const QString& name)
{
    return FieldValueExists(name, m_kind.nameField, QStringLiteral("ID"), m_kind.table, m_recordset)
               .toLongLong() > 0;
}

bool EditMaster::addsAnotherAfter(const QString&) { return true; }

void EditMaster::remove()
{
    if (m_mode != QLatin1String("E") || !ShowMsg(QStringLiteral("Are you sure?"), 2))
        return;
    if (isInUse(m_id)) {
        ShowMsg(QStringLiteral("Cant't Delete!"));
        return;
    }
    DE.connection().Execute(QStringLiteral("Delete from %1 where id=%2").arg(m_kind.table).arg(m_id));
    ShowMsg(QStringLiteral("Deleted."));
    session.RefreshLists = true;
    unload();
}

bool EditMaster::hasRows(ado::Recordset& recordset, const QString& sql)
{
    recordset.Open(sql);
    const bool any = recordset.RecordCount() >= 1;
    recordset.Close();
    return any;
}
