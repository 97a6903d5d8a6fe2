#include "registers/Dues.h"

#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"

using namespace Qt::StringLiterals;

namespace {

/// The column of what was booked to the client in the last days.
QString bookedSince(const QDate& day, int days)
{
    return u", -sum(case when Amount<0 and Date>=%1 then Amount else 0 end) as Since%2"_s
        .arg(sqlDate(day.addDays(-days)))
        .arg(days);
}

void spread(Due& due, ado::Recordset& row)
{
    Currency counted;
    int age = Due::UpTo30Days;
    for (const char* since : {"Since30", "Since60", "Since90"}) {
        const Currency upTo = std::min(due.amount, Currency::fromDouble(row[since].number()));
        due.byAge[size_t(age++)] = upTo - counted;
        counted = upTo;
    }
    due.byAge[Due::Older] = due.amount - counted;
}

} // namespace

std::vector<Due> readDues(const QDate& day)
{
    std::vector<Due> dues;
    each(u"Select Accounts.ID, Title, -sum(Amount) as Due"_s + bookedSince(day, 30) + bookedSince(day, 60) +
             bookedSince(day, 90) + u" from Accounts, Postings"_s + whereType(AccountType::Client) +
             u" and accID=Accounts.ID and "_s + countsUpTo(day) +
             u" group by Accounts.ID having sum(Amount)<0 order by Title"_s,
         [&dues](ado::Recordset& row) {
             Due due;
             due.client = row["ID"].integer();
             due.title = row["Title"].text();
             due.amount = Currency::fromDouble(row["Due"].number());
             if (due.amount <= Currency())
                 return;
             spread(due, row);
             dues.push_back(std::move(due));
         });
    return dues;
}
