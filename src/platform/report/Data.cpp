#include "platform/report/Data.h"

#include "platform/ado/Recordset.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace report {

namespace {

std::vector<Row> allRows(ado::Recordset& rows, const QString& chapter)
{
    std::vector<Row> result;
    if (rows.RecordCount() == 0)
        return result;
    for (rows.MoveFirst(); !rows.AtEOF(); rows.MoveNext()) {
        Row row;
        for (int i = 0; i < rows.FieldCount(); ++i)
            row.set(rows.FieldName(i), rows[i].value());
        if (!chapter.isEmpty())
            row.details = allRows(rows.Chapter(chapter), {});
        result.push_back(std::move(row));
    }
    return result;
}

bool isOfDates(const QString& format) { return format.contains(u'y', Qt::CaseInsensitive); }

} // namespace

QVariant Row::value(const QString& field) const
{
    const auto found = m_values.find(field.toLower());
    if (found != m_values.end())
        return found->second;
    if (!m_values.empty())
        throw std::logic_error(u"No field %1 in the report's rows"_s.arg(field).toStdString());
    return {};
}

std::vector<Row> readRows(ado::Recordset& rows, const QString& chapter) { return allRows(rows, chapter); }

QString formatted(const QVariant& value, const QString& format)
{
    if (format.isEmpty() || value.isNull())
        return value.toString();
    if (isOfDates(format)) {
        const QDate date =
            value.typeId() == QMetaType::QDate ? value.toDate() : values::readDate(value.toString());
        return date.isValid() ? values::Format(date, format) : value.toString();
    }
    bool isNumber = false;
    const double number = value.toString().toDouble(&isNumber);
    return isNumber ? values::Format(number, format) : value.toString();
}

} // namespace report
