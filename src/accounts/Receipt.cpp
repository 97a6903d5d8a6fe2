#include "accounts/Receipt.h"

#include "core/store/Codes.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

std::vector<qint32> cardsNamed(const QString& remark)
{
    static const QRegularExpression naming(
        u"(?<!credit )(?<!debit )(?<!by )(?:\\b(?:jobs?|cards?)\\b|#)"
        "(?:[\\s#:.-]|\\b(?:jobs?|cards?|nos?|numbers?|ids?)\\b)*"
        "(\\d+(?:/\\d+)?(?:\\s*(?:,|;|&|\\+|\\band\\b)[\\s#]*\\d+(?:/\\d+)?\\b)*)"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression oneCard(u"(\\d+)(?:/\\d+)?"_s);
    std::vector<qint32> cards;
    for (const auto& named : naming.globalMatch(remark)) {
        for (const auto& card : oneCard.globalMatch(named.capturedView(1))) {
            bool fits = false;
            const qint32 number = card.capturedView(1).toInt(&fits);
            if (fits && std::find(cards.begin(), cards.end(), number) == cards.end())
                cards.push_back(number);
        }
    }
    return cards;
}

namespace {

/// Names the payer, the balance and the cards: only what this payer ordered counts as paid.
void fillPayer(Receipt& receipt, qint32 payer, const QString& remark)
{
    receipt.payer = GetAccountTitle(payer);
    const bool isClient =
        any(u"Select id from Accounts where id=%1 and type=%2"_s.arg(payer).arg(qint32(AccountType::Client)));
    if (!isClient)
        return;
    receipt.balance = GetBalance(values::toInt16(payer), receipt.date);
    for (const qint32 card : cardsNamed(remark)) {
        if (any(u"Select id from Jobs where id=%1 and ClintID=%2"_s.arg(card).arg(payer)))
            receipt.cards.push_back(card);
    }
}

} // namespace

Receipt receiptOf(qint32 posting)
{
    Receipt receipt;
    qint32 payer = 0;
    QString remark;
    const bool found =
        firstRow(u"Select * from Postings where id=%1"_s.arg(posting), [&](ado::Recordset& line) {
            if (line["particulars"].text() != "Receipt"_L1)
                throw OperatorError(u"Only a voucher of the type Receipt has a receipt to print."_s);
            const bool isCard = line["vType"].integer() == qint32(VoucherType::Job);
            const double amount = line["Amount"].number();
            const bool isMain = line["Sr"].integer() % 2 == 1;
            if (!isCard && isMain != (amount > 0))
                throw OperatorError(u"This voucher gives money back. No receipt is printed of it."_s);
            receipt.number = (isCard ? u"Job Card %1"_s : u"%1"_s).arg(line["VID"].integer());
            receipt.date = line["Date"].date();
            receipt.amount = std::abs(amount);
            payer = line[amount > 0 ? "accID" : "refID"].integer();
            remark = line["Remark"].text();
        });
    if (!found)
        throw OperatorError(u"This receipt is no longer there."_s);
    fillPayer(receipt, payer, remark);
    return receipt;
}
