#include "planning/PendingOrders.h"

#include "core/store/Codes.h"
#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

void countLines(const QString& condition, qint32& count)
{
    count = one(u"Select count(QNT) from Jobs_Detail where "_s + condition +
                u" and DoneByWorker=%1"_s.arg(qint32(LineState::Uncompleted)));
}

} // namespace

void GetPendingOrders(qint16 itemId, qint32& count) { countLines(u"ItemID=%1"_s.arg(itemId), count); }

void GetOrdersToday(qint16 itemId, const QDate& date, qint32& count)
{
    countLines(u"ItemID=%1 and date=#%2#"_s.arg(itemId).arg(values::CStr(date)), count);
}

void predictDelivery(std::vector<ItemLoad>& loads)
{
    each(u"Select * from items order by name"_s, [&](ado::Recordset& items) {
        const QString name = items["Name"].text();
        const qint32 capacity = items["ProdcutionCap"].integer();
        if (capacity == 0)
            return;
        const qint16 item = values::toInt16(items["ID"].integer(), u"Item number"_s);
        qint32 open = 0;
        GetPendingOrders(item, open);
        qint32 today = 0;
        GetOrdersToday(item, session.WorkingDate, today);
        const qint32 pending = values::toInt32(qint64(items["OpPendingOrders"].integer()) + open,
                                               u"Pending orders of "_s + name);
        const qint32 waiting = values::CInt(double(pending) / capacity, u"Days of work on "_s + name) + 1;
        loads.push_back({name, capacity, pending, today, waiting, session.WorkingDate.addDays(waiting)});
    });
}
