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

} // namespace

qint32 markOf(const ado::Field& field) { return field.isNull() ? noMark : field.integer(); }

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

void LineNames::readAll(const QString& query)
{
    const QString lines = query.left(query.indexOf(u" order by "_s));
    for (const char* who : {"ClintID", "WorkerID"}) {
        each(u"Select * from Accounts where ID in (Select %1 from (%2))"_s.arg(QLatin1String(who), lines),
             [&](ado::Recordset& accounts) {
                 const qint32 id = accounts["ID"].integer();
                 m_accounts.insert(id, accounts["Title"].text());
                 m_contacts.insert(id, ContactOf(accounts));
             });
    }
    if (!m_balancesUpTo.isValid())
        return;
    const QHash<qint32, double> balances =
        GetBalances(u"Select ClintID from (%1)"_s.arg(lines), m_balancesUpTo);
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

void LineNames::know(const RegisterLine& line)
{
    account(line.client);
    item(line.item);
    worker(line.worker);
    if (!tellsBalances())
        return;
    balance(line.client);
    contact(line.client);
    if (line.worker != 0)
        contact(line.worker);
}

void readLines(const QString& query, LineNames& names, const std::function<void(RegisterLine)>& take)
{
    names.readAll(query);
    each(query, [&](ado::Recordset& row) {
        RegisterLine line{.id = row["ID"].integer(),
                          .code = {row["JobID"].integer(), row["ItemSr"].integer()},
                          .booked = row["Date"].date(),
                          .promised = row["JobDelDate"].date(),
                          .client = row["ClintID"].integer(),
                          .item = row["ItemID"].integer(),
                          .worker = row["WorkerID"].integer(),
                          .state = markOf(row["DoneByWorker"]),
                          .cutting = markOf(row["CuttingStatus"]),
                          .remark = row["Remarks"].text(),
                          .location = row["Loc"].isNull() ? QString() : row["Loc"].text()};
        names.know(line);
        take(std::move(line));
    });
}
