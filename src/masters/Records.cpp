#include "masters/Records.h"

#include "core/store/Codes.h"
#include "platform/values/Literals.h"
#include "platform/values/Numbers.h"

#include <QStringList>

using namespace Qt::StringLiterals;

void ClientFields::writeTo(ado::Recordset& row) const
{
    row["Type"] = AccountType::Client;
    row["Address"] = address;
    row["City"] = city;
    row["State"] = state;
    row["Mobile"] = mobile;
    row["dob"] = birth.isValid() ? QVariant(birth) : ado::Null;
}

void ItemFields::writeTo(ado::Recordset& row) const
{
    row["Fees"] = fees;
    row["WorkerFees"] = workerFees;
    row["ItemDetails"] = details;
    row["ProdcutionCap"] = capacity;
    row["OpPendingOrders"] = pending;
}

QString tidyTemplate(const QString& details)
{
    static const QString lineBreak = u"\r\n"_s;
    return details.split(lineBreak, Qt::SkipEmptyParts).join(lineBreak);
}

QString numberText(const QString& typed) { return values::CStr(values::Val(typed)); }
