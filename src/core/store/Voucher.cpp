#include "core/store/Voucher.h"

#include "core/store/DE.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

/// Sets what both lines of a pair share, and the side of one, on the current row of `DE.rspostings`.
void setLine(const PostingPair& pair, bool first)
{
    ado::Recordset& line = DE.rspostings;
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
    ado::Recordset& vouchers = DE.rspostings;
    vouchers.Open(sql);
    qint32 last = 0;
    if (!vouchers.AtEOF()) {
        vouchers.MoveLast();
        last = vouchers[field].integer();
    }
    vouchers.Close();
    return last;
}

} // namespace

QString Voucher::where() const { return u" where vid=%1 and vtype=%2"_s.arg(m_number).arg(qint32(m_type)); }

void Voucher::AddPair(const PostingPair& pair, PostingMarks marks)
{
    ado::Recordset& line = DE.rspostings;
    line.Open(u"Select * from Postings order by ID"_s);
    for (const bool first : {true, false}) {
        line.AddNew();
        line["VID"] = m_number;
        line["vType"] = m_type;
        line["Sr"] = ++m_lastLine;
        setLine(pair, first);
        line["Status"] = int(marks.cancelled);
        line["isPayroll"] = int(marks.payroll);
        line.Update();
    }
    line.Close();
}

void Voucher::ChangePair(const PostingPair& pair)
{
    ado::Recordset& line = DE.rspostings;
    for (const int sr : {1, 2}) {
        line.Open(u"Select * from Postings"_s + where() + u" and sr=%1"_s.arg(sr));
        if (sr == 2)
            line.MoveLast();
        setLine(pair, sr == 1);
        line.Update();
        line.Close();
    }
}

void Voucher::Delete() { DE.connection().Execute(u"Delete from Postings"_s + where()); }

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
