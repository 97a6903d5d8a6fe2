#include "accounts/BookLines.h"

#include "accounts/VoucherTag.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

const QString blank = u" "_s;

/// Reads postings: `add` appends the line of each. `account` is the column of the account that the line
/// names; one that is gone has an empty title.
void readPostings(
    const QString& condition, const QString& order, const char* account,
    const std::function<void(ado::Recordset& posting, const QString& day, const QString& title)>& add)
{
    const QString column = QLatin1String(account);
    const QHash<qint32, QString> titles =
        GetAccountTitles(u"Select "_s + column + u" from Postings where "_s + condition);
    QHash<QDate, QString> days;
    each(u"Select * from Postings where "_s + condition + order, [&](ado::Recordset& postings) {
        const QDate date = postings["Date"].date();
        QString& day = days[date];
        if (day.isNull())
            day = dateText(date);
        add(postings, day, titles.value(postings[account].integer()));
    });
}

QString tagOf(ado::Recordset& posting)
{
    return VoucherTag{posting["VID"].integer(), posting["vType"].code<VoucherType>()}.text();
}

} // namespace

AccountBook::AccountBook(qint32 account, const QDate& from, const QDate& to)
{
    const qint16 id = values::toInt16(account, u"The number of the account"_s);
    OpeningBalance = GetBalance(id, from.addDays(-1));
    addBalance(u"Balance B/F "_s, OpeningBalance);
    addPostings(account, from, to);
    PeriodNegative = GetNegativeTotal(id, from, to);
    PeriodPositive = GetPositiveTotal(id, from, to);
    lines.push_back({{blank, blank, blank, u"Current Total "_s, moneyText(-PeriodNegative),
                      moneyText(PeriodPositive), blank}});
    ClosingBalance = GetBalance(id, to);
    addBalance(u"Balance C/F "_s, ClosingBalance);
}

/// A balance of nothing has no row.
void AccountBook::addBalance(const QString& particulars, double balance)
{
    if (balance == 0)
        return;
    const bool debit = balance < 0;
    lines.push_back({{blank,
                      blank,
                      {},
                      particulars,
                      debit ? moneyText(-balance) : blank,
                      debit ? blank : moneyText(balance),
                      blank}});
}

void AccountBook::addPostings(qint32 account, const QDate& from, const QDate& to)
{
    readPostings(u"status=0 and AccID=%1 and date between "_s.arg(account) + sqlDates(from, to),
                 u"    order by date,vid"_s, "refID",
                 [this](ado::Recordset& posting, const QString& day, const QString& title) {
                     const double amount = posting["Amount"].number();
                     const bool debit = amount < 0;
                     lines.push_back({{day, posting["VID"].text(), posting["particulars"].text(), title,
                                       debit ? moneyText(-amount) : blank, debit ? blank : moneyText(amount),
                                       posting["Remark"].text()},
                                      tagOf(posting),
                                      amount,
                                      posting["ID"].integer()});
                 });
}

std::vector<BookLine> daybook::read(const QDate& from, const QDate& to)
{
    std::vector<BookLine> lines;
    readPostings(u"status=0 and sr=1 and date between "_s + sqlDates(from, to), u"  order by date,vid "_s,
                 "accID", [&lines](ado::Recordset& posting, const QString& day, const QString& title) {
                     lines.push_back(
                         {{day, posting["VID"].text(), posting["particulars"].text(), title,
                           moneyText(std::abs(posting["Amount"].number())), posting["Remark"].text()},
                          tagOf(posting),
                          posting["Amount"].number(),
                          posting["ID"].integer()});
                 });
    lines.push_back({{blank, blank, blank, u"Total Vouchers : %1"_s.arg(lines.size()), blank, blank}});
    return lines;
}

void stageStatement(const AccountBook& book)
{
    DE.connection().writeBatch([&book] {
        DE.connection().Execute(u"Delete * from Accountbook"_s);
        withRows(u"Select * from Accountbook"_s, [&book](ado::Recordset& staged) {
            for (const BookLine& line : book.lines) {
                if (!line.isPosting())
                    continue;
                const double amount = shownMoney(line.amount);
                staged.AddNew();
                staged["Date"] = line.cells[AccountBook::Date];
                staged["VID"] = line.cells[AccountBook::Number];
                staged["vaucher"] = line.cells[AccountBook::Voucher];
                staged["particulars"] = line.cells[AccountBook::Particulars];
                staged["debit"] = amount < 0 ? -amount : 0.0;
                staged["credit"] = amount < 0 ? 0.0 : amount;
                staged["Remark"] = line.cells[AccountBook::Remark];
                staged.Update();
            }
        });
    });
}
