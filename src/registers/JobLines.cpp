#include "registers/JobLines.h"

#include "core/store/Contacts.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Key, typename Ask>
const QString& knownOr(QHash<Key, QString>& known, const Key& key, Ask ask)
{
    auto found = known.find(key);
    if (found == known.end())
        found = known.insert(key, ask(key));
    return *found;
}

qint32 markOf(const ado::Reader::Column& mark) { return mark.isNull() ? noMark : mark.integer(); }

} // namespace

QString statusName(qint32 state)
{
    switch (state) {
    case 0:
        return u"Uncompleted"_s;
    case 1:
        return u"Completed"_s;
    case 2:
        return u"Delivered"_s;
    case 3:
        return u"Alteration"_s;
    case 4:
        return u"Canceled"_s;
    default:
        return {};
    }
}

QString cuttingName(qint32 mark)
{
    switch (mark) {
    case 0:
        return u"Not Done"_s;
    case 1:
        return u"Done"_s;
    default:
        return {};
    }
}

QString daysAhead(const QDate& date) { return QString::number(session.WorkingDate.daysTo(date)); }

void LineNames::readClients(const std::vector<RegisterLine>& lines, size_t row)
{
    const QString clients = m_blocks.unread(
        row, lines.size(), [&lines](size_t line) { return lines[line].client; },
        [this](qint32 client) { return m_accounts.contains(client); });
    if (clients.isEmpty())
        return;
    ado::Reader accounts = readRows(u"Select * from Accounts where ID in (%1)"_s.arg(clients));
    const auto id = accounts["ID"], title = accounts["Title"], mobile = accounts["Mobile"],
               address = accounts["Address"], city = accounts["City"];
    while (accounts.next()) {
        m_accounts.insert(id.integer(), title.text());
        m_contacts.insert(id.integer(), contactText(mobile.text(), address.text(), city.text()));
    }
    if (!tellsBalances())
        return;
    const QHash<qint32, double> balances = GetBalances(clients, m_balancesUpTo);
    for (auto balance = balances.cbegin(); balance != balances.cend(); ++balance)
        m_balances.insert(balance.key(), balanceText(balance.value()));
}

const QString& LineNames::account(qint32 id) { return knownOr(m_accounts, id, GetAccountTitle); }

const QString& LineNames::contact(qint32 id)
{
    return knownOr(m_contacts, id, [](qint32 account) {
        return GetClientContact(values::toInt16(account, u"Client number"_s));
    });
}

const QString& LineNames::item(qint32 id) { return knownOr(m_items, id, GetItemName); }

const QString& LineNames::balance(qint32 client)
{
    return knownOr(m_balances, client, [this](qint32 account) {
        return balanceText(GetBalance(values::toInt16(account, u"Client number"_s), m_balancesUpTo));
    });
}

const QString& LineNames::date(const QDate& day) { return knownOr(m_dates, day, dateText); }

bool LineNames::isAccount(qint32 id)
{
    if (m_isAccount.empty()) {
        m_isAccount.resize(1);
        ado::Reader accounts = readRows(u"Select ID from Accounts order by Type"_s); // from the index alone
        for (const auto number = accounts["ID"]; accounts.next();) {
            const auto place = size_t(number.integer());
            m_isAccount.resize(std::max(m_isAccount.size(), place + 1));
            m_isAccount[place] = true;
        }
    }
    return id > 0 && size_t(id) < m_isAccount.size() && m_isAccount[size_t(id)];
}

void LineNames::require(const RegisterLine& line)
{
    if (!isAccount(line.client))
        account(line.client);
    item(line.item);
    worker(line.worker);
}

void readLines(const QString& query, LineNames& names, const std::function<void(RegisterLine)>& take)
{
    ado::Reader rows = readRows(query);
    const auto id = rows["ID"], card = rows["JobID"], place = rows["ItemSr"], booked = rows["Date"],
               promised = rows["JobDelDate"], client = rows["ClintID"], item = rows["ItemID"],
               worker = rows["WorkerID"], state = rows["DoneByWorker"], cutting = rows["CuttingStatus"],
               remark = rows["Remarks"], location = rows["Loc"];
    while (rows.next()) {
        RegisterLine line{.id = id.integer(),
                          .code = {card.integer(), place.integer()},
                          .booked = booked.date(),
                          .promised = promised.date(),
                          .client = client.integer(),
                          .item = item.integer(),
                          .worker = worker.integer(),
                          .state = markOf(state),
                          .cutting = markOf(cutting),
                          .remark = remark.text(),
                          .location = location.isNull() ? QString() : location.text()};
        names.require(line);
        take(std::move(line));
    }
}
