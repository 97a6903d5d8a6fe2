#include "accounts/LedgerAccount.h"

#include "core/store/Codes.h"
#include "core/store/DE.h"
#include "core/store/Rows.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

QString query(qint16 id) { return u"Select * from accounts where id=%1"_s.arg(id); }

} // namespace

LedgerAccount LedgerAccount::read(qint16 id)
{
    LedgerAccount account{.id = id, .title = {}};
    withRows(query(id), [&account](ado::Recordset& row) {
        account.title = row["Title"].text();
        account.nature = row["Nature"].integer();
        account.isFixed = row["ReadOnly"].integer() == 1;
    });
    return account;
}

void LedgerAccount::save()
{
    const auto fill = [this](ado::Recordset& row) {
        row["Title"] = title;
        row["Type"] = AccountType::Ledger;
        row["Nature"] = nature;
    };
    DE.connection().writeBatch([&] {
        if (id != 0)
            changeRow(query(id), fill);
        else
            id = values::toInt16(addRow(u"accounts"_s, fill), u"Account number"_s); // else the row goes again
    });
}

void LedgerAccount::remove() const { DE.connection().Execute(u"Delete from Accounts where id=%1"_s.arg(id)); }

bool LedgerAccount::isInUse() const
{
    return any(u"Select ID from Postings where AccID=%1"_s.arg(id)) ||
           any(u"Select ID from Postings where RefID=%1"_s.arg(id));
}
