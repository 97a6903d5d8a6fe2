#include "accounts/Payroll.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/Texts.h"
#include "core/store/Voucher.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

/// Marks the lines as paid, if each of them is still owed as it was listed.
void markPaid(const wages::Scope& scope, const std::vector<wages::Line>& lines, qint16 number)
{
    QHash<qint32, const wages::Line*> listed;
    for (const wages::Line& line : lines)
        listed.insert(line.id, &line);
    withRows(wages::linesOf(scope, wages::Which::Unpaid), [&](ado::Recordset& owed) {
        for (; !owed.AtEOF(); owed.MoveNext()) {
            const auto line = listed.constFind(owed["ID"].integer());
            if (line == listed.cend() || (*line)->wage != owed["WorkerWagesDue"].money())
                continue;
            listed.erase(line);
            owed["MarkAsPaid"] = 1;
            owed["PayrollID"] = number;
        }
        for (const wages::Line& line : lines)
            if (listed.contains(line.id))
                throw OperatorError(
                    u"Job %1 has been paid, changed or deleted since these lines were listed.\n"
                    "View the lines again, then make the payroll."_s.arg(line.job));
        owed.UpdateBatch();
    });
}

} // namespace

qint16 payroll::Create(const wages::Scope& scope, const std::vector<wages::Line>& lines, const QDate& date)
{
    const QString total = moneyText(lines.back().balance.toDouble());
    qint16 number = 0;
    DE.connection().writeBatch([&] {
        number = Voucher::NextPayrollNumber();
        markPaid(scope, lines, number);
        const PostingPair pair{
            .particulars = u"Wages"_s,
            .date = date,
            .account = scope.worker,
            .opposite = GetAccountID(u"Wages"_s),
            .amount = Currency::fromDouble(values::Val(total), u"Amount"_s),
            .remark = u"Wages [ From :%1 To %2 ]"_s.arg(dateText(scope.from), dateText(scope.to))};
        Voucher(VoucherType::Entry, number).AddPair(pair, {.payroll = true});
    });
    return number;
}

void payroll::Release(qint32 number)
{
    changeRows(wages::linesOfPayroll(number), [](ado::Recordset& line) {
        line["MarkAsPaid"] = 0;
        line["PayrollID"] = 0;
    });
}
