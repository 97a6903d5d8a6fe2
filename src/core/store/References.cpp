#include "core/store/References.h"

#include "core/store/Rows.h"

using namespace Qt::StringLiterals;

bool isClientInUse(qint16 id) { return any(u"Select ID from JOBS_DETAIL where ClintID=%1"_s.arg(id)); }

bool isWorkerInUse(qint16 id)
{
    return any(u"Select ID from JOBS_DETAIL where WorkerID=%1"_s.arg(id)) ||
           any(u"Select ID from Postings where AccID=%1"_s.arg(id));
}

bool isItemInUse(qint16 id) { return any(u"Select ID from JOBS_DETAIL where ItemID=%1"_s.arg(id)); }
