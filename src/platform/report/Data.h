#pragma once

#include <QString>
#include <QVariant>
#include <map>
#include <vector>

namespace ado {
class Recordset;
}

namespace report {

/// One row of what a report prints: values by field name, in any case, and the rows that belong below it.
class Row
{
public:
    void set(const QString& field, const QVariant& value) { m_values[field.toLower()] = value; }
    /// Throws std::logic_error for a field that the row does not have. A row without any field stands for no
    /// row at all and has null in all of them.
    QVariant value(const QString& field) const;

    std::vector<Row> details;

private:
    std::map<QString, QVariant> m_values;
};

/// Reads all rows of an open recordset, from its first; of a hierarchical one also the rows of `chapter`
/// below each. A report holds its rows for itself: nothing of the file is open while it is looked at.
std::vector<Row> readRows(ado::Recordset& rows, const QString& chapter = {});

/// A value as a field shows it: by a pattern of dates ("dd-MMM-yyyy") or of numbers ("0.00",
/// "#,##0.00;(#,##0.00)"). Values that were staged as text are read first; what is no date or number, and a
/// null, prints as it stands.
QString formatted(const QVariant& value, const QString& format);

} // namespace report
