#include "core/store/ShopChecks.h"

using namespace Qt::StringLiterals;

namespace shopcheck {

namespace {

const QString allOfCard =
    u"Id, DATE, ClintID, ClintName, DeliveryDate, ClientDeliveryDate, TrialDate, appeared, appearedDate, "
    "AmountDue, AmountPaid, JobFinished, Remark, CashAccID, Status, CancelReason"_s;

std::vector<Check> numbers()
{
    return {
        {u"Select Id, count(*) from JOBS group by "_s + allOfCard + u" having count(*)>1"_s,
         u"Job card %1 stands there %2 times, the same in everything."_s,
         u"Mend: one of them stays."_s,
         {u"Delete from JOBS where Id=%1 and rowid not in (Select min(rowid) from JOBS where Id=%1 group by "_s +
          allOfCard + u')'}},
        {u"Select b.Id, b.ClintName, max(b.rowid) from JOBS as b group by b.Id having count(*)>1 and "
         "count(*)=(Select count(*) from (Select distinct "_s +
             allOfCard + u" from JOBS where Id=b.Id))"_s,
         u"The number %1 is that of two job cards: only the first opens."_s,
         u"Mend: the later one (%2) gets the next free number; garments and postings stay with the first."_s,
         {u"Update JOBS set Id=(Select max(Id)+1 from JOBS) where rowid=%3"_s}}};
}

/// Garments whose card is gone. Where one card of the client stands without garments and comes to the same,
/// they are its own.
std::vector<Check> garmentsWithoutCard()
{
    const QString orphans = u"Select ItemName, ClintName, JobID, %1 from JOBS_DETAIL as l where not "
                            "exists (Select 1 from JOBS where Id=l.JobID) and %1 is %2"_s;
    const QString bare =
        u"(Select c.Id from JOBS as c where c.ClintID=l.ClintID and not exists (Select 1 from "
        "JOBS_DETAIL where JobID=c.Id) and not exists (Select 1 from Postings where VID=l.JobID and "
        "Vtype=1) and abs(c.AmountDue-(Select total(Amount) from JOBS_DETAIL where "
        "JobID=l.JobID))<0.005 limit 1)"_s;
    const QString posted = u"(Select %1 from Postings where VID=%2 and Vtype=1 and sr=%3 limit 1)"_s;
    const auto fromBooks = [&](const QString& value, int line, const QString& otherwise) {
        return u"coalesce(%1, %2)"_s.arg(posted.arg(value, u"%3"_s, QString::number(line)), otherwise);
    };
    const QString what = u"%1 of %2 stands on job card %3, which is not there."_s;
    return {{orphans.arg(bare, u"not null"_s),
             what,
             u"Mend: it goes to job card %4 of this client, which has no garments and comes to the same."_s,
             {u"Update JOBS_DETAIL set JobID=%4 where JobID=%3"_s}},
            {orphans.arg(bare, u"null"_s),
             what,
             u"Mend: job card %3 is written anew from its garments and from what the books hold of it."_s,
             {u"Insert into JOBS ("_s + allOfCard +
              u") Select %3, DATE, ClintID, ClintName, JobDelDate, Null, DATE, 0, Null, "_s +
              fromBooks(u"-Amount"_s, 1, u"(Select total(Amount) from JOBS_DETAIL where JobID=%3)"_s) +
              u", "_s + fromBooks(u"-Amount"_s, 3, u"0"_s) + u", 0, '', "_s +
              fromBooks(u"AccID"_s, 3, u"0"_s) + u", "_s + fromBooks(u"Status"_s, 1, u"0"_s) +
              u", '' from JOBS_DETAIL where Id=(Select min(Id) from JOBS_DETAIL where JobID=%3)"_s}}};
}

/// The card's total, what its garments come to, and what the books say: where two of them agree, the third is
/// wrong.
std::vector<Check> totals()
{
    const QString sums =
        u"Select c.Id, AmountDue, Garments, Booked from JOBS as c, (Select JobID, total(Amount) as "
        "Garments from JOBS_DETAIL group by JobID) as l left join (Select VID, -Amount as Booked from "
        "Postings where Vtype=1 and sr=1) as p on p.VID=c.Id where l.JobID=c.Id and "
        "abs(AmountDue-Garments)>=0.005 and "_s;
    const QString right = u"abs(coalesce(Booked, AmountDue)-Garments)<0.005"_s;
    return {{sums + right,
             u"Job card %1 comes to %2; its garments and the books say %3."_s,
             u"Mend: the card's total becomes %3."_s,
             {u"Update JOBS set AmountDue=%3 where Id=%1"_s}},
            {sums + u"not "_s + right, u"Job card %1 comes to %2, its garments to %3."_s,
             u"Open the card. A garment that was copied on a stored card counts in the total alone. Type "
             "the total that is right, or press Enter on a garment and put it right; then save."_s}};
}

std::vector<Check> garments()
{
    return {
        {u"Select l.JobID, l.ItemSr, l.ItemName, l.ClintName, c.ClintName from JOBS_DETAIL as l, JOBS as "
         "c where c.Id=l.JobID and l.ClintID<>c.ClintID and exists (Select 1 from Accounts where "
         "Id=c.ClintID)"_s,
         u"%1/%2 (%3) is of %4, its card of %5."_s,
         u"Open the card, see that the client is right, and save: its garments take him."_s},
        {u"Select JobID, ItemSr, count(*) from JOBS_DETAIL group by JobID, ItemSr having count(*)>1"_s,
         u"%3 garments have the one code %1/%2."_s,
         u"Open the card. If one stands there twice, remove it. Save: its garments are numbered anew."_s},
        // A quantity of one and a half is stored as 2 and charged as it was typed.
        {u"Select JobID, ItemSr, ItemName, Amount, QNT, FEES from JOBS_DETAIL where "
         "abs(Amount-QNT*FEES)>=0.5*abs(FEES)+0.005"_s,
         u"%1/%2 (%3) comes to %4, %5 times %6 is something else."_s,
         u"Open the card, press Enter on the garment, see that quantity and fee are right, press OK, and save."_s},
        {u"Select JobID, ItemSr, ItemName, DoneByWorker from JOBS_DETAIL where DoneByWorker not between 0 and 4"_s,
         u"%1/%2 (%3) is in a state that does not exist (%4)."_s,
         u"Open the garment in the JOB Register, choose its state, and save."_s},
        {u"Select JobID, ItemSr, ItemName, case DoneByWorker when 1 then 'completed' when 2 then "
         "'delivered' else 'in alteration' end from JOBS_DETAIL where case DoneByWorker when 1 then "
         "CompletedDate when 2 then DelToCustDate when 3 then AltDate else '' end is null"_s,
         u"%1/%2 (%3) is %4, but no day is known."_s,
         u"Open the garment in the JOB Register on the working date that it was, and save: that date is kept."_s},
    };
}

const Check noGarments{
    u"Select Id, ClintName from JOBS as c where not exists (Select 1 from JOBS_DETAIL where JobID=c.Id) "
    "and not exists (Select 1 from JOBS_DETAIL as l where l.ClintID=c.ClintID and not exists (Select 1 "
    "from JOBS where Id=l.JobID))"_s,
    u"Job card %1 (%2) has no garments."_s, u"Open the card and add them, or delete it."_s};

/// A garment that came back for alteration does not open its card again.
const Check deliveredWithOpenLines{
    u"Select c.Id, c.ClintName, count(*) from JOBS as c, JOBS_DETAIL as l where l.JobID=c.Id and "
    "c.JobFinished=1 and l.DoneByWorker not in (2, 4) and l.DelToCustDate is null group by c.Id"_s,
    u"Job card %1 (%2) is marked as delivered, %3 of its garments never were."_s,
    u"Open the card, take the mark \"Delivered\" off, and save. Or mark the garments in the JOB Register."_s};

const Check unknownCardState{
    u"Select Id, ClintName from JOBS where Status not in (0, 1) or JobFinished not in (0, 1)"_s,
    u"Job card %1 (%2) is in a state that does not exist."_s,
    u"Open the card, see that its marks \"Delivered\" and \"Cancel\" are right, and save."_s};

const Check unknownTrialState{u"Select Id, ClintName from JOBS where appeared not in (0, 1, 2)"_s,
                              u"The trial of job card %1 (%2) is in a state that does not exist."_s,
                              u"Mend: the client has not appeared for it."_s,
                              {u"Update JOBS set appeared=0 where Id=%1"_s}};

} // namespace

const std::vector<Check>& cardChecks()
{
    static const std::vector<Check> all = [] {
        std::vector<Check> checks = numbers();
        for (const auto& some : {garmentsWithoutCard(), totals(), garments()})
            checks.insert(checks.end(), some.begin(), some.end());
        for (const Check& one : {noGarments, deliveredWithOpenLines, unknownCardState, unknownTrialState})
            checks.push_back(one);
        return checks;
    }();
    return all;
}

} // namespace shopcheck
