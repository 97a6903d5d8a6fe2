#include "core/store/ShopProfile.h"

#include "core/store/DE.h"
#include "core/store/Rows.h"
#include "core/store/Session.h"

using namespace Qt::StringLiterals;

namespace {

const QString query = u"Select * from Shop where id=1"_s;
const QString anyShop = u"Select * from Shop"_s;
const QString firstName = u"KORVANE"_s;

void addShop()
{
    DE.connection().writeBatch([] {
        if (!any(anyShop)) // another first start may have been quicker
            addRow(u"Shop"_s, [](ado::Recordset& shop) { shop["Name"] = firstName; });
    });
}

} // namespace

ShopProfile ShopProfile::read()
{
    ShopProfile profile;
    withRows(query, [&profile](ado::Recordset& shop) {
        profile = {shop["Name"].text(), shop["Address1"].text(), shop["Address2"].text(),
                   shop["Address3"].text(), shop["Contacts"].text()};
    });
    return profile;
}

void ShopProfile::write() const
{
    changeRow(query, [this](ado::Recordset& shop) {
        shop["Name"] = name;
        shop["Address1"] = address1;
        shop["Address2"] = address2;
        shop["Address3"] = address3;
        shop["Contacts"] = contacts;
    });
}

QString loadShopProfile()
{
    const bool found = firstRow(anyShop, [](ado::Recordset& shop) {
        const auto take = [&shop](const char* field, QString& line) {
            if (!shop[field].isNull())
                line = shop[field].text();
        };
        session.ShopName = shop["Name"].text();
        take("Contacts", session.ShopContacts);
        take("Address1", session.ShopAddress1);
        take("Address2", session.ShopAddress2);
        take("Address3", session.ShopAddress3);
    });
    if (found)
        return session.ShopName;
    if (session.LookedAt.isEmpty())
        addShop();
    return firstName;
}
