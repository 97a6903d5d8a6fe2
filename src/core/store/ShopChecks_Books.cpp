#include "core/store/ShopChecks.h"

using namespace Qt::StringLiterals;

namespace shopcheck {

namespace {

const QString openAndSave =
    u"Open the card, see that client, date and amounts are right, and save: it is posted anew."_s;

/// Columns of each group of postings that ought to be one pair of an entry: number, one of its rows.
QString entryPairs(const QString& condition)
{
    return u"Select VID, min(Id), particulars from Postings where Vtype=2 group by VID, (sr+1)/2 having "_s +
           condition;
}

std::vector<Check> pairs()
{
    const QString half = u"count(*)=1"_s;
    const QString unequal = u"count(*)=2 and count(distinct sr)=2 and abs(total(Amount))>=0.005"_s;
    const QString two = u"count(*)=4 and total(sr=1)=2 and total(sr=2)=2 and abs(total(Amount))<0.005"_s;
    // Of two vouchers of one number a payroll stays, as its garments name it.
    const QString later =
        u"(Select Id from Postings where Vtype=2 and VID=%1 and sr=%2 order by isPayroll, Id desc limit 1)"_s;
    return {
        {u"Select VID from Postings as p where Vtype=1 and exists (Select 1 from JOBS where Id=p.VID) "
         "group by VID, (sr+1)/2 having count(*)<>2 or abs(total(Amount))>=0.005"_s,
         u"The postings of job card %1 do not make up pairs."_s, openAndSave},
        {entryPairs(half),
         u"Half of voucher %1 (%3) is not there."_s,
         u"Mend: it is written anew from the other half: the same amount, on the opposite account."_s,
         {u"Insert into Postings (VID, Vtype, sr, Date, AccID, RefID, particulars, Remark, Amount, "
          "Status, isPayroll) Select VID, Vtype, case (sr & 1) when 1 then sr+1 else sr-1 end, Date, "
          "RefID, AccID, particulars, Remark, -Amount, Status, isPayroll from Postings where Id=%2"_s}},
        {entryPairs(unequal), u"The postings of voucher %1 do not make up pairs."_s,
         u"Open it in the Day Book, see that the amount is right, and save: both halves are written anew."_s},
        {entryPairs(two),
         u"Two vouchers have the one number %1: only the first opens."_s,
         u"Mend: one of them gets the next free number."_s,
         {u"Update Postings set VID=(Select max(VID)+1 from Postings where Vtype=2) where Id in (%1, %2)"_s
              .arg(later.arg(u"%1"_s, u"1"_s), later.arg(u"%1"_s, u"2"_s))}},
        {entryPairs(u"not (%1) and not (%2) and not (%3) and (count(*)<>2 or count(distinct sr)<>2)"_s.arg(
             half, unequal, two)),
         u"The postings of voucher %1 (%3) do not make up pairs."_s,
         u"Open it in the Day Book, note what it says, delete it, and enter it anew."_s}};
}

std::vector<Check> cardsInTheBooks()
{
    const QString posted = u"(Select 1 from Postings where VID=c.Id and Vtype=1 and sr=1)"_s;
    return {
        {u"Select Id, ClintName, AmountDue from JOBS as c where (AmountDue<>0 or AmountPaid<>0) and not exists "_s +
             posted,
         u"Job card %1 (%2, %3) is not in the books."_s, openAndSave},
        {u"Select c.Id, AmountDue, -p.Amount from JOBS as c, Postings as p where p.VID=c.Id and "
         "p.Vtype=1 and p.sr=1 and abs(AmountDue+p.Amount)>=0.005 and abs(p.Amount+(Select "
         "total(Amount) from JOBS_DETAIL where JobID=c.Id))>=0.005"_s,
         u"Job card %1 comes to %2, the books say %3."_s, openAndSave},
        {u"Select c.Id, AmountPaid, (Select total(-Amount) from Postings where VID=c.Id and Vtype=1 and "
         "sr=3) as Booked from JOBS as c where exists "_s +
             posted + u" and abs(AmountPaid-Booked)>=0.005"_s,
         u"With job card %1 came %2, the books say %3."_s,
         u"Open the card, see that the amount received and its account are right, and save: it is posted anew."_s},
        {u"Select c.Id, c.ClintName from JOBS as c where exists (Select 1 from Accounts where Id=c.ClintID) and exists (Select 1 from Postings as p where p.VID=c.Id and p.Vtype=1 and (p.Date<>c.DATE or case p.sr when 1 then p.AccID<>c.ClintID or p.RefID<>%1 when 2 then p.RefID<>c.ClintID or p.AccID<>%1 when 3 then p.AccID<>c.CashAccID or p.RefID<>c.ClintID when 4 then p.AccID<>c.ClintID or p.RefID<>c.CashAccID end))"_s
             .arg(u"(Select min(Id) from Accounts where Title='Sales')"_s),
         u"Job card %1 (%2) is in the books under another client, account or day."_s, openAndSave},
        {u"Select Id, ClintName, case Status when 0 then 'stands, but not all of its postings count' "
         "else 'is cancelled, but is charged in the books' end from JOBS as c where exists (Select 1 "
         "from Postings where VID=c.Id and Vtype=1 and (Status<>0)<>(c.Status<>0))"_s,
         u"Job card %1 (%2) %3."_s, openAndSave},
        {u"Select VID, -Amount, (Select Title from Accounts where Id=p.AccID) from Postings as p where "
         "Vtype=1 and sr=(Select min(sr) from Postings where VID=p.VID and Vtype=1) and not exists "
         "(Select 1 from JOBS where Id=p.VID) and not exists (Select 1 from JOBS_DETAIL where "
         "JobID=p.VID)"_s,
         u"Job card %1 (%3, %2) is in the books, but not there."_s,
         u"Mend: it is taken out of the books."_s,
         {u"Delete from Postings where VID=%1 and Vtype=1"_s}},
    };
}

std::vector<Check> entries()
{
    return {
        {u"Select VID, particulars from Postings where Vtype=2 and Status<>0 group by VID"_s,
         u"Voucher %1 (%2) does not count with all its postings."_s,
         u"Mend: it counts, on both of its accounts."_s,
         {u"Update Postings set Status=0 where VID=%1 and Vtype=2"_s}},
        {u"Select a.VID, a.particulars from Postings as a, Postings as b where a.Vtype=2 and b.Vtype=2 "
         "and b.VID=a.VID and a.sr=1 and b.sr=2 and (a.Date<>b.Date or a.AccID<>b.RefID or "
         "a.RefID<>b.AccID) and (Select count(*) from Postings where VID=a.VID and Vtype=2)=2"_s,
         u"The halves of voucher %1 (%2) have different days or accounts."_s,
         u"Open it in the Day Book, see that date and accounts are right, and save: both halves are written anew."_s},
    };
}

const Check sumOfAll{
    u"Select Total from (Select total(Amount) as Total from Postings) where abs(Total)>=0.005"_s,
    u"All postings together come to %1, not to zero."_s,
    u"What is named above tells where; it is right when that is."_s};

} // namespace

const std::vector<Check>& bookChecks()
{
    static const std::vector<Check> all = [] {
        std::vector<Check> checks = pairs();
        for (const auto& some : {cardsInTheBooks(), entries()})
            checks.insert(checks.end(), some.begin(), some.end());
        checks.push_back(sumOfAll);
        return checks;
    }();
    return all;
}

const std::vector<Check>& wageChecks()
{
    static const QString payroll =
        u"(Select 1 from Postings where VID=l.PayrollID and Vtype=2 and isPayroll<>0)"_s;
    static const std::vector<Check> all{
        {u"Select JobID, ItemSr, WorkerName from JOBS_DETAIL where MarkAsPaid>0 and PayrollID=0"_s,
         u"%1/%2 (%3) is marked as paid without a payroll."_s,
         u"If it was not marked by hand, and its card did not come back from a copy of the shop, open it in "
         "the JOB Register, take the mark off, and save."_s,
         {},
         true},
        {u"Select JobID, ItemSr, PayrollID, Id from JOBS_DETAIL as l where PayrollID>0 and not exists "_s +
             payroll,
         u"%1/%2 was paid by payroll %3, which is not in the books."_s,
         u"Mend: it is unpaid again; the next payroll pays it."_s,
         {u"Update JOBS_DETAIL set MarkAsPaid=0, PayrollID=0 where Id=%4"_s}},
        {u"Select p.VID, p.Amount, l.Wages, (Select Title from Accounts where Id=p.AccID) from Postings "
         "as p, (Select PayrollID, round(total(WorkerWagesDue), 2) as Wages from JOBS_DETAIL where "
         "PayrollID>0 group by PayrollID) as l where p.VID=l.PayrollID and p.Vtype=2 and p.sr=1 and "
         "p.isPayroll<>0 and abs(p.Amount-Wages)>=0.01"_s,
         u"Payroll %1 of %4 came to %2, the wages of its garments to %3."_s,
         u"A wage was changed or a garment deleted since. Open the garment in the JOB Register and put "
         "its wage right, or the payroll in the worker's Account Book and its amount; save."_s},
    };
    return all;
}

} // namespace shopcheck
