#include "jobcards/WageOfReturned.h"

#include "core/store/Rows.h"

using namespace Qt::StringLiterals;

namespace differences {

namespace {

struct OpenPayroll
{
    qint32 number;
    double left; ///< what it came to, less the wages of the garments that it has now
};

std::vector<OpenPayroll> payrollsOf(qint32 worker)
{
    std::vector<OpenPayroll> found;
    each(u"Select p.VID, p.Amount-(Select total(WorkerWagesDue) from JOBS_DETAIL where PayrollID=p.VID) "
         "from postings as p where p.isPayroll=1 and p.Vtype=2 and p.sr=1 and p.AccID=%1 order by p.Id"_s.arg(
             worker),
         [&found](ado::Recordset& row) {
             found.push_back({row[0].integer(), row[1].number()});
         });
    return found;
}

bool livingLineIsPaid(const Row& line, qint32 card)
{
    const auto number = [&line](const QString& field) { return line[field].toInt(); };
    return any(
        u"Select Id from JOBS_DETAIL where JobID=%1 and MarkAsPaid<>0 and "
        "((Id=%2 and (ClintID=%3 or ItemID=%4)) or (ItemSr=%5 and ClintID=%3 and ItemID=%4))"_s.arg(card)
            .arg(number(u"id"_s))
            .arg(number(u"clintid"_s))
            .arg(number(u"itemid"_s))
            .arg(number(u"itemsr"_s)));
}

} // namespace

Payment paymentOf(const Row& line, const Kept& kept)
{
    constexpr double leastCoin = 0.005;
    const std::vector<OpenPayroll> payrolls = payrollsOf(line[u"workerid"_s].toInt());
    const double wage = line[u"workerwagesdue"_s].toDouble();
    const auto hasPlace = [wage](const OpenPayroll& payroll) { return payroll.left > wage - leastCoin; };
    const qint32 own = line[u"payrollid"_s].toInt();
    if (line[u"markaspaid"_s].toInt() != 0) {
        if (own == 0)
            return {true, 0};
        for (const OpenPayroll& payroll : payrolls)
            if (payroll.number == own)
                return {true, hasPlace(payroll) ? own : 0};
    }
    if (livingLineIsPaid(line, kept.number))
        return {true, 0};
    for (const OpenPayroll& payroll : payrolls)
        if (wage > 0 && !kept.payrolls.contains(payroll.number) && hasPlace(payroll))
            return {true, payroll.number};
    return {};
}

} // namespace differences
