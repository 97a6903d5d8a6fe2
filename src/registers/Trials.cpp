#include "registers/Trials.h"

#include "core/store/Contacts.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/values/Numbers.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

QString cardQuery(qint32 job) { return u"Select * from Jobs where id=%1"_s.arg(job); }

void enterState(ado::Recordset& card, TrialState state)
{
    card["appeared"] = state;
    card["appearedDate"] = state == TrialState::Appeared ? QVariant(session.WorkingDate) : ado::Null;
}

} // namespace

namespace trials {

QString statusText(ado::Recordset& card)
{
    switch (card["appeared"].isNull() ? -1 : card["appeared"].integer()) {
    case qint32(TrialState::Appeared):
        return u"Appeared ["_s + dateText(card["appearedDate"].date()) + u" ]"_s;
    case qint32(TrialState::NotAppeared):
        return u"Not Appeared"_s;
    case qint32(TrialState::Canceled):
        return u"Trial Canceled"_s;
    default:
        return {};
    }
}

std::vector<Trial> read(const QString& cards)
{
    struct Client
    {
        QString title;
        QString mobile;
    };
    QHash<qint32, Client> clients;
    std::vector<Trial> found;
    each(cards, [&](ado::Recordset& card) {
        const qint32 id = card["ClintID"].integer();
        auto client = clients.find(id);
        if (client == clients.end()) {
            const QString title = GetAccountTitle(id);
            const qint16 number = values::toInt16(id, u"Client number"_s);
            client = clients.insert(id, {title, GetClientMobile(title, number)});
        }
        found.push_back({card["ID"].integer(), client->title, card["TrialDate"].date(), statusText(card),
                         client->mobile});
    });
    return found;
}

void setState(qint32 job, TrialState state)
{
    changeRow(cardQuery(job), [state](ado::Recordset& card) { enterState(card, state); });
}

void setDay(qint32 job, const QDate& day)
{
    changeRow(cardQuery(job), [&day](ado::Recordset& card) {
        enterState(card, TrialState::NotAppeared);
        card["TrialDate"] = day;
    });
}

} // namespace trials
