#include "masters/ClientFolder.h"

#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"

using namespace Qt::StringLiterals;

namespace {

std::function<void(const QString&)>& opener()
{
    static std::function<void(const QString&)> show;
    return show;
}

std::function<void(const QString&, const QString&)>& booksOpener()
{
    static std::function<void(const QString&, const QString&)> show;
    return show;
}

} // namespace

void showOldBooks(const QString& file, const QString& client)
{
    if (booksOpener())
        booksOpener()(file, client);
}

void setOldBooks(std::function<void(const QString&, const QString&)> show)
{
    booksOpener() = std::move(show);
}

void showClientFolder(const QString& client)
{
    if (client.isEmpty() || !opener())
        return;
    QString title;
    const bool known = firstRow(u"Select * from Accounts"_s + whereType(AccountType::Client) +
                                    u" and Title='"_s + sqlText(client) + u'\'',
                                [&title](ado::Recordset& row) { title = row["Title"].text(); });
    if (known)
        opener()(title);
}

void setClientFolder(std::function<void(const QString&)> show) { opener() = std::move(show); }
