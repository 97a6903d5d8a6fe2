#include "jobcards/LastOrder.h"

#include "core/store/Rows.h"

using namespace Qt::StringLiterals;

namespace {

const QString LineBreak = u"\r\n"_s;

} // namespace

Measurements Measurements::split(const QString& names, const QString& values)
{
    if (names.isEmpty() && values.isEmpty())
        return {};
    return {names.split(LineBreak), values.split(LineBreak)};
}

QString Measurements::nameText() const { return names.join(LineBreak); }

QString Measurements::valueText() const { return values.join(LineBreak); }

std::optional<LastOrder> LastOrder::of(qint32 item, qint32 client)
{
    std::optional<LastOrder> last;
    lastRow(u"Select * from JOBS_DETAIL where ItemID=%1 and ClintID=%2"_s.arg(item).arg(client),
            [&last](ado::Recordset& line) {
                last = LastOrder{.day = line["Date"].date(),
                                 .measurements = Measurements::split(line["ItemDetails"].text(),
                                                                     line["ItemDetailsValue"].text()),
                                 .clientRemark = {}};
                if (!line["ClientRemarks"].isNull())
                    last->clientRemark = line["ClientRemarks"].text();
            });
    return last;
}

QStringList measurementTemplate(qint32 item)
{
    QStringList lines;
    firstRow(u"Select * from Items where id=%1"_s.arg(item), [&lines](ado::Recordset& row) {
        lines = row["ItemDetails"].text().split(LineBreak, Qt::SkipEmptyParts);
    });
    return lines;
}
