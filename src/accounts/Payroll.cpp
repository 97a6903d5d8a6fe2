#include "accounts/Payroll.h"

#include "core/store/DE.h"

using namespace Qt::StringLiterals;

void payroll::Release(qint32 number)
{
    ado::Recordset& lines = DE.rsJOBS_DETAIL;
    lines.Open(u"Select * from jobs_detail where PayrollID=%1"_s.arg(number));
    for (; !lines.AtEOF(); lines.MoveNext()) {
        lines["MarkAsPaid"] = 0;
        lines["PayrollID"] = 0;
    }
    lines.UpdateBatch();
    lines.Close();
}
