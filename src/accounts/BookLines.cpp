#include "accounts/BookLines.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

const QString blank = u" "_s;

/// Reads postings. `account` is the column of the account that a line names.
void readPostings(std::vector<BookLine>& lines, const QString& condition, const QString& order,
                  const char* account)
{
    ado::Reader postings = readRows(u"Select * from Postings where "_s + condition + order);
    const auto id = postings["ID"], number = postings["VID"], type = postings["vType"],
               date = postings["Date"], kind = postings["particulars"], named = postings[account],
               remark = postings["Remark"], amount = postings["Amount"];
    while (postings.next()) {
        BookLine line{.posting = id.integer(),
                      .voucher = {number.integer(), type.code<VoucherType>()},
                      .date = date.date(),
                      .kind = kind.text(),
                      .account = named.integer(),
                      .remark = remark.text()};
        const double sum = amount.number();
        (sum < 0 ? line.debit : line.credit) = std::abs(sum);
        lines.push_back(std::move(line));
    }
}

QString figure(const std::optional<double>& amount) { return amount ? moneyText(*amount) : blank; }

} // namespace

RowTitles titlesOf(const std::vector<BookLine>& lines)
{
    return {lines.size(), [&lines](size_t row) { return lines[row].account; }};
}

BookLine withTitle(BookLine line, const QString& title)
{
    if (line.account != 0)
        line.title = title;
    return line;
}

AccountBook::AccountBook(qint32 account, const QDate& from, const QDate& to)
{
    const qint16 id = values::toInt16(account, u"The number of the account"_s);
    OpeningBalance = GetBalance(id, from.addDays(-1));
    addBalance(u"Balance B/F "_s, OpeningBalance);
    readPostings(lines, u"status=0 and AccID=%1 and date between "_s.arg(account) + sqlDates(from, to),
                 u"    order by date,vid"_s, "refID");
    PeriodNegative = GetNegativeTotal(id, from, to);
    PeriodPositive = GetPositiveTotal(id, from, to);
    lines.push_back(
        {.kind = blank, .title = u"Current Total "_s, .debit = -PeriodNegative, .credit = PeriodPositive});
    ClosingBalance = GetBalance(id, to);
    addBalance(u"Balance C/F "_s, ClosingBalance);
}

/// A balance of nothing has no row.
void AccountBook::addBalance(const QString& particulars, double balance)
{
    if (balance == 0)
        return;
    BookLine line{.title = particulars};
    (balance < 0 ? line.debit : line.credit) = std::abs(balance);
    lines.push_back(line);
}

QStringList AccountBook::cells(const BookLine& line)
{
    if (!line.isPosting())
        return {blank, blank, line.kind, line.title, figure(line.debit), figure(line.credit), blank};
    return {dateText(line.date), QString::number(line.voucher.number),
            line.kind,           line.title,
            figure(line.debit),  figure(line.credit),
            line.remark};
}

std::vector<BookLine> daybook::read(const QDate& from, const QDate& to)
{
    std::vector<BookLine> lines;
    readPostings(lines, u"status=0 and sr=1 and date between "_s + sqlDates(from, to),
                 u"  order by date,vid "_s, "accID");
    lines.push_back({.title = u"Total Vouchers : %1"_s.arg(lines.size())});
    return lines;
}

QStringList daybook::cells(const BookLine& line)
{
    if (!line.isPosting())
        return {blank, blank, blank, line.title, blank, blank};
    return {dateText(line.date),
            QString::number(line.voucher.number),
            line.kind,
            line.title,
            moneyText(line.debit.value_or(line.credit.value_or(0))),
            line.remark};
}

void stageStatement(const AccountBook& book)
{
    DE.connection().writeBatch([&book] {
        DE.connection().Execute(u"Delete * from Accountbook"_s);
        withRows(u"Select * from Accountbook"_s, [&book](ado::Recordset& staged) {
            RowTitles titles = titlesOf(book.lines);
            for (size_t row = 0; row < book.lines.size(); ++row) {
                const BookLine& line = book.lines[row];
                if (!line.isPosting())
                    continue;
                staged.AddNew();
                staged["Date"] = dateText(line.date);
                staged["VID"] = line.voucher.number;
                staged["vaucher"] = line.kind;
                staged["particulars"] = titles.of(row);
                staged["debit"] = shownMoney(line.debit.value_or(0));
                staged["credit"] = shownMoney(line.credit.value_or(0));
                staged["Remark"] = line.remark;
                staged.Update();
            }
        });
    });
}
