#include "registers/JobLines.h"

#include "core/Lookups.h"
#include "core/Session.h"
#include "messaging/modSMS.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

namespace {

template <typename Ask>
const QString& knownOr(QHash<qint32, QString>& known, qint32 id, Ask ask)
{
    auto found = known.find(id);
    if (found == known.end())
        found = known.insert(id, ask(id));
    return *found;
}

} // namespace

qint32 markOf(const ado::Field& field) { return field.isNull() ? noMark : field.integer(); }

QString statusName(qint32 state)
{
    switch (state) {
    case 0:
        return QStringLiteral("Uncompleted");
    case 1:
        return QStringLiteral("Completed");
    case 2:
        return QStringLiteral("Delivered");
    case 3:
        return QStringLiteral("Alteration");
    case 4:
        return QStringLiteral("Canceled");
    default:
        return {};
    }
}

QString cuttingName(qint32 mark)
{
    switch (mark) {
    case 0:
        return QStringLiteral("Not Done");
    case 1:
        return QStringLiteral("Done");
    default:
        return {};
    }
}

QString lineDate(const QDate& date) { return values::Format(date, QStringLiteral("DD-MMM-YYYY")); }

QString daysAhead(const QDate& date) { return QString::number(session.WorkingDate.daysTo(date)); }

QString balanceText(double balance)
{
    const QString size = values::Format(std::abs(balance), QStringLiteral("0.00"));
    if (balance > 0)
        return size + QStringLiteral(" Cr");
    return balance < 0 ? QString(size + QStringLiteral(" Dr")) : QStringLiteral("None");
}

const QString& LineNames::account(qint32 id) { return knownOr(m_accounts, id, GetAccountTitle); }

const QString& LineNames::contact(qint32 id)
{
    return knownOr(m_contacts, id, [](qint32 account) { return GetClientContact(values::toInt16(account)); });
}

const QString& LineNames::item(qint32 id) { return knownOr(m_items, id, GetItemName); }

const QString& LineNames::balance(qint32 client)
{
    return knownOr(m_balances, client, [this](qint32 account) {
        return balanceText(GetBalance(values::toInt16(account), m_balancesUpTo));
    });
}
