#pragma once

#include "core/store/Codes.h"
#include "platform/ado/Recordset.h"
#include "platform/forms/Screen.h"

#include <QString>

class QLabel;
class QPushButton;
class swTextBox;

/// Base of the screens that add and edit one record of the masters: a client, a worker or an item. A title is
/// taken once in its table, without regard to case; a record that a job line or the ledger refers to is kept.
class EditMaster : public forms::Screen
{
    Q_OBJECT
public:
    /// Adds records, one after the other, until the operator leaves with Esc.
    void AddNew();
    /// Opens a record by its id. Throws ado::NoCurrentRecordError when there is none.
    void Edit(qint16 id);

protected:
    /// The words and the table of one kind of record.
    struct Kind
    {
        QString table;
        QString nameField; ///< the field of the title
        QString titleNew, titleEdit;
        QString nameMissing, added, edited; ///< messages
    };
    /// The controls that all these screens have.
    struct Controls
    {
        QLabel* lblTitle;
        swTextBox* txtName;
        QPushButton* save;
        QPushButton* remove;
    };

    /// `recordset` is the shared recordset to use for `kind.table`.
    EditMaster(Kind kind, ado::Recordset& recordset);
    /// To be called once the controls stand.
    void setControls(const Controls& controls);

    void Form_Load() override;

    /// Puts the fields, other than the name, to what a new record begins with.
    virtual void clear() = 0;
    /// Takes the fields, other than the name, from the current row, and writes them to it.
    virtual void read(ado::Recordset& row) = 0;
    virtual void write(ado::Recordset& row) = 0;
    /// Whether other records refer to the record, so that it must stay.
    virtual bool isInUse(qint16 id) = 0;
    /// Whether another record is to be added after the one of this name; the screen has done its work
    /// otherwise.
    virtual bool addsAnotherAfter(const QString& name);

private:
    void show(RecordMode mode, const QString& title);
    void save();
    void remove();
    bool isTaken(const QString& name);

    const Kind m_kind;
    ado::Recordset& m_recordset;
    Controls m_controls{};
    RecordMode m_mode = RecordMode::New;
    qint16 m_id = 0;
    QString m_keptName; ///< the name as it stands in the table
    bool m_addAnother = false;
};
