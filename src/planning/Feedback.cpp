#include "planning/Feedback.h"

#include "core/store/Rows.h"

using namespace Qt::StringLiterals;

namespace {

QString lineQuery(qint32 lineId)
{
    return u"Select * from Jobs_Detail where id="_s + QString::number(lineId);
}

std::optional<QString> textOf(const ado::Field& field)
{
    return field.isNull() ? std::nullopt : std::optional(field.text());
}

} // namespace

Feedback Feedback::of(qint32 lineId)
{
    Feedback feedback;
    withRows(lineQuery(lineId), [&feedback](ado::Recordset& line) {
        feedback = {textOf(line["Score"]), textOf(line["ClientFeedBack"])};
    });
    return feedback;
}

void writeFeedback(qint32 lineId, qint16 score, const QString& text)
{
    changeRow(lineQuery(lineId), [&](ado::Recordset& line) {
        line["Score"] = score;
        line["ClientFeedBack"] = text;
    });
}
