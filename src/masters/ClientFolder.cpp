#include "masters/ClientFolder.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Texts.h"

using namespace Qt::StringLiterals;

namespace {

std::function<void(const QString&)>& opener()
{
    static std::function<void(const QString&)> show;
    return show;
}

} // namespace

void showClientFolder(const QString& client)
{
    if (client.isEmpty() || !opener())
        return;
    ado::Recordset& clients = DE.rsaccounts;
    clients.Open(u"Select * from Accounts"_s + whereType(AccountType::Client) + u" and Title='"_s +
                 sqlText(client) + u'\'');
    const bool known = !clients.AtEOF();
    const QString title = known ? clients["Title"].text() : QString();
    clients.Close();
    if (known)
        opener()(title);
}

void setClientFolder(std::function<void(const QString&)> show) { opener() = std::move(show); }
