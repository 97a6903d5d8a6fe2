#include "registers/ClientSearch.h"

#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"

using namespace Qt::StringLiterals;

std::vector<FoundClient> searchClients(const QString& field, const QString& text)
{
    std::vector<FoundClient> found;
    each(u"Select * from Accounts "_s + whereType(AccountType::Client) + u" and "_s + field + u" like '%"_s +
             sqlText(text) + u"%'"_s,
         [&found](ado::Recordset& client) {
             found.push_back({client["Title"].text(), client["Address"].text(), client["City"].text(),
                              client["Mobile"].text()});
         });
    return found;
}
