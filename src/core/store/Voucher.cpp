#include "core/store/Voucher.h"

#include "core/store/DE.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"
#include "platform/values/Numbers.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Sets what both lines of a pair share, and the side of one.
void setLine(ado::Recordset& line, const PostingPair& pair, bool first)
{
    line["particulars"] = pair.particulars;
    line["Date"] = pair.date;
    line["accID"] = first ? pair.account : pair.opposite;
    line["refID"] = first ? pair.opposite : pair.account;
    line["Remark"] = pair.remark;
    line["Amount"] = first ? pair.amount : -pair.amount;
}

/// The value of a field in the last row of the query; 0 when there is none.
qint32 lastOf(const QString& sql, const char* field)
{
    qint32 last = 0;
    lastRow(sql, [&](ado::Recordset& voucher) { last = voucher[field].integer(); });
    return last;
}

} // namespace

QString Voucher::where() const { return u" where vid=%1 and vtype=%2"_s.arg(m_number).arg(qint32(m_type)); }

PairRows Voucher::AddPair(const PostingPair& pair, PostingMarks marks)
{
    const auto add = [&](bool first) {
        return addRow(u"Postings"_s, [&](ado::Recordset& line) {
            line["VID"] = m_number;
            line["vType"] = m_type;
            line["Sr"] = ++m_lastLine;
            setLine(line, pair, first);
            line["Status"] = int(marks.cancelled);
            line["isPayroll"] = int(marks.payroll);
        });
    };
    PairRows rows;
    rows.first = add(true);
    rows.second = add(false);
    return rows;
}

/// The lines 1 and 2 of each entry that has the number, in the order in which they were entered.
std::vector<PairRows> Voucher::pairs() const
{
    std::vector<PairRows> found;
    each(u"Select ID, Sr from Postings"_s + where() + u" and sr in (1, 2) order by ID"_s,
         [&found](ado::Recordset& line) {
             const qint32 id = line["ID"].integer();
             if (line["Sr"].integer() == 1) {
                 found.push_back({.first = id});
                 return;
             }
             const auto half = std::find_if(found.begin(), found.end(),
                                            [](const PairRows& rows) { return rows.second == 0; });
             if (half != found.end())
                 half->second = id;
         });
    return found;
}

PairRows Voucher::Pair(qint32 posting) const
{
    const std::vector<PairRows> all = pairs();
    for (const PairRows& rows : all)
        if (posting != 0 && (rows.first == posting || rows.second == posting))
            return rows;
    return all.empty() ? PairRows() : all.front();
}

StoredPair Voucher::Read(const PairRows& rows)
{
    StoredPair stored;
    withRows(u"Select * from Postings where id=%1"_s.arg(rows.first), [&stored](ado::Recordset& line) {
        stored.pair = {.particulars = line["particulars"].text(),
                       .date = line["Date"].date(),
                       .account = line["accID"].integer(),
                       .opposite = line["refID"].integer(),
                       .amount = line["Amount"].money(),
                       .remark = line["Remark"].text()};
        stored.payroll = line["isPayroll"].integer() > 0;
    });
    return stored;
}

void Voucher::ChangePair(const PairRows& rows, const PostingPair& pair)
{
    for (const bool first : {true, false})
        changeRow(u"Select * from Postings where id=%1"_s.arg(first ? rows.first : rows.second),
                  [&](ado::Recordset& line) { setLine(line, pair, first); });
}

void Voucher::Delete() { DE.connection().Execute(u"Delete from Postings"_s + where()); }

void Voucher::Delete(const PairRows& rows)
{
    if (pairs().size() < 2)
        Delete();
    else
        DE.connection().Execute(
            u"Delete from Postings where id in (%1, %2)"_s.arg(rows.first).arg(rows.second));
}

QString Voucher::description() const
{
    QString text;
    firstRow(u"Select * from Postings"_s + where(), [&text](ado::Recordset& line) {
        const QString kind = line["isPayroll"].integer() > 0 ? u"payroll"_s : line["particulars"].text();
        text = u"a %1 of %2"_s.arg(kind, moneyText(std::abs(line["Amount"].number())));
    });
    return text;
}

qint32 Voucher::NextEntryNumber()
{
    return values::toInt32(
        qint64(lastOf(u"Select * from Postings where vtype=2 and sr=1 order by vID"_s, "vid")) + 1,
        u"Next voucher number"_s);
}

qint16 Voucher::NextPayrollNumber()
{
    qint64 number = qint64(lastOf(u"Select * from Postings where vtype=2 order by vID"_s, "ID")) + 1;
    while (lastOf(u"Select * from Postings where vtype=2 and vid=%1"_s.arg(number), "ID") > 0)
        ++number;
    return values::toInt16(number, u"Next payroll number"_s);
}
