#include "core/store/Contacts.h"

#include "core/store/Codes.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"

using namespace Qt::StringLiterals;

QString GetClientMobile(const QString& title, qint16 id)
{
    const QString clients = u"Select * from Accounts"_s + whereType(AccountType::Client);
    QString mobile;
    const auto take = [&mobile](ado::Recordset& client) { mobile = client["Mobile"].text(); };
    if (!title.isEmpty())
        firstRow(clients + u" and Title='"_s + sqlText(title) + u'\'', take);
    if (id > 0)
        firstRow(clients + u" and ID="_s + QString::number(id), take);
    return mobile;
}

QString GetClientContact(qint16 id)
{
    QString contact;
    if (id > 0)
        firstRow(
            u"Select * from Accounts where ID="_s + QString::number(id), [&contact](ado::Recordset& account) {
                contact =
                    contactText(account["Mobile"].text(), account["Address"].text(), account["City"].text());
            });
    return contact;
}

QString contactText(const QString& mobile, const QString& address, const QString& city)
{
    const QString contact = mobile + u"   "_s + address + u"   "_s + city + u"    "_s;
    return contact.trimmed().isEmpty() ? u"No Information Found"_s : contact;
}

AccountContact AccountContact::of(qint32 id)
{
    AccountContact contact;
    withRows(u"Select * from Accounts where ID="_s + QString::number(id),
             [&contact](ado::Recordset& account) {
                 contact.title = account["Title"].text();
                 for (const char* field : {"Address", "City", "Mobile"})
                     if (const QString text = account[field].text().simplified(); !text.isEmpty())
                         contact.lines << text;
             });
    return contact;
}
