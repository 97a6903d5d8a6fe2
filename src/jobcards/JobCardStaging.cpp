#include "jobcards/JobCardStaging.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "platform/values/Dates.h"

using namespace Qt::StringLiterals;

void StageJobCard(qint32 JobID)
{
    const QString number = QString::number(JobID);
    DE.connection().writeBatch(
        [&] {
            DE.connection().Execute(u"Delete * from tmpHead"_s);
            DE.connection().Execute(u"Delete * from tmpbody"_s);

            withRows(u"Select * from Jobs where id="_s + number, [JobID](ado::Recordset& job) {
                AddPrintHead(JobID, job["Date"].date(), GetAccountTitle(job["ClintID"].integer()),
                             job["DeliveryDate"].date(), job["trialdate"].date(), job["AmountDue"].money(),
                             job["AmountPaid"].money());
            });

            each(u"Select * from Jobs_Detail where jobid="_s + number, [&](ado::Recordset& lines) {
                AddPrintBody(JobID, lines["QNT"].integer(), GetItemName(lines["ItemID"].integer()),
                             lines["Remarks"].text(), lines["Fees"].money(), lines["Amount"].money());
            });
        },
        {});
}

void AddPrintHead(qint32 JobID, const QDate& date, const QString& name, const QDate& deliveryDate,
                  const QDate& trialDate, Currency due, Currency paid)
{
    addRow(u"TMPHEAD"_s, [&](ado::Recordset& head) {
        head["Date"] = values::CStr(date);
        head["JobID"] = JobID;
        head["Name"] = name;
        head["DelDate"] = values::CStr(deliveryDate);
        head["trialdate"] = values::CStr(trialDate);
        head["AmountDue"] = due.toString();
        head["AmountPaid"] = paid.toString();
        head["Amount"] = (due - paid).toString();
    });
}

void AddPrintBody(qint32 JobID, qint32 quantity, const QString& itemName, const QString& remarks,
                  Currency fees, Currency amount)
{
    addRow(u"TMPbody"_s, [&](ado::Recordset& body) {
        body["JobID"] = JobID;
        body["QNT"] = quantity;
        body["ItemName"] = itemName;
        body["Remarks"] = remarks;
        body["fess"] = fees.toString();
        body["Amount"] = amount.toString();
    });
}
