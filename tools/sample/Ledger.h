#pragma once

#include "sample/Cards.h"

#include <QString>
#include <vector>

namespace sample {

/// An entry voucher or a payroll: two postings. A positive amount credits the main account.
struct Voucher
{
    QDate date;
    const char* particulars;
    int main = 0;
    int reference = 0;
    int amount = 0; ///< rupees
    QString remark;
    std::vector<Line*> wages; ///< of a payroll: the lines that it covers
};

/// What was paid besides the money taken with the cards: receipts of balances, payrolls and their payments,
/// advances, the shop's costs, what went to the bank. In the order of their numbers, from 1; the lines of
/// `cards` get the number of their payroll.
std::vector<Voucher> keepBooks(const Plan& plan, const People& people, std::vector<Card>& cards,
                               Random& random);

} // namespace sample
