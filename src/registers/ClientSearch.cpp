#include "registers/ClientSearch.h"

#include "core/store/Lookups.h"
#include "core/store/MobileNumber.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString mobileField = u"Mobile"_s;
const QString nameField = u"Title"_s;
constexpr qsizetype fewestDigitsAsName = 3; // fewer are in nearly every number

/// The condition that the digits of a client's number hold these. Most numbers are stored as digits alone;
/// the others are stripped of what stands between.
QString holdsDigits(const QString& digits, bool atBeginning)
{
    QString stripped = mobileField;
    for (const QChar between : u" -+()./,"_s)
        stripped = u"replace(%1, '%2', '')"_s.arg(stripped, between);
    const QString wanted = atBeginning ? u"=1"_s : u">0"_s;
    return u"(instr(Mobile, '%1')%2 or (Mobile glob '*[^0-9]*' and instr(%3, '%1')%2))"_s.arg(digits, wanted,
                                                                                              stripped);
}

/// The condition that a client's number holds what was typed; empty for a text that is no part of one.
QString holdsNumber(const QString& text, qsizetype fewest)
{
    const NumberPart part = numberPart(text);
    if (part.digits.size() < fewest)
        return {};
    QString condition = u" or "_s + holdsDigits(part.digits, false);
    if (!part.dialled.isEmpty())
        condition += u" or "_s + holdsDigits(part.dialled, true);
    return condition;
}

/// The clients for whom a condition holds, in the order in which they came to the shop, behind those that
/// are found already.
void addFound(std::vector<FoundClient>& found, const QString& condition)
{
    const size_t before = found.size();
    ado::Reader clients = readRows(u"Select * from Accounts "_s + whereType(AccountType::Client) +
                                   u" and ("_s + condition + u")"_s);
    const auto id = clients["ID"], title = clients["Title"], address = clients["Address"],
               city = clients["City"], mobile = clients["Mobile"];
    while (clients.next()) {
        const qint32 client = id.integer();
        const auto end = found.begin() + qsizetype(before);
        if (std::none_of(found.begin(), end,
                         [client](const FoundClient& other) { return other.id == client; }))
            found.push_back({client, title.text(), address.text(), city.text(), mobile.text()});
    }
}

} // namespace

std::vector<FoundClient> searchClients(const QString& field, const QString& text)
{
    std::vector<FoundClient> found;
    QString condition = field + u" like '%"_s + sqlText(text) + u"%'"_s;
    if (field == mobileField)
        condition += holdsNumber(text, 1);
    if (field == nameField) {
        condition += holdsNumber(text, fewestDigitsAsName);
        if (const qint32 card = cardNumber(text); card != 0)
            addFound(found, u"ID in (Select ClintID from JOBS where Id=%1)"_s.arg(card));
    }
    addFound(found, condition);
    return found;
}
