#pragma once

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

/// What a receipt says of money that came in.
struct Receipt
{
    QString number; ///< the voucher's; of money that was taken with a card, "Job Card 7"
    QDate date;
    QString payer; ///< the account that is credited
    double amount = 0;
    std::vector<qint32> cards; ///< the payer's cards that the remark names
    /// Of a client: the balance at the end of that day. Negative: it is still due.
    std::optional<double> balance;
};

/// The receipt that a posting belongs to. Throws OperatorError for one that is gone, is of another kind of
/// voucher, or gives money back.
Receipt receiptOf(qint32 posting);

/// The cards that a remark names, in its order, each once: the numbers behind "job", "card" or "#", several
/// by commas or "and"; of a line's code ("12/2") its card. A card that pays is none ("credit card 4711").
std::vector<qint32> cardsNamed(const QString& remark);
