#include "jobcards/ItemCounts.h"

#include "core/store/Rows.h"

using namespace Qt::StringLiterals;

std::vector<ItemCount> countByItem(const QString& condition)
{
    std::vector<ItemCount> counts;
    each(u"Select Name, Lines from Items, (Select ItemID, count(QNT) as Lines from JOBS_Detail where "_s +
             condition + u" group by ItemID) where ItemID=Items.ID and Lines>0 order by titlekey(Name)"_s,
         [&counts](ado::Recordset& row) {
             counts.push_back({row[0].text(), row[1].integer()});
         });
    return counts;
}
