#include "core/store/ShopChecks.h"

using namespace Qt::StringLiterals;

namespace shopcheck {

namespace {

/// A text of SQL that gives `name`, with the number behind it where `table` has that name already.
QString freeName(const QString& table, const QString& column, const QString& name, const QString& number)
{
    return u"(%3 || case when exists (Select 1 from %1 as o where titlekey(o.%2)=titlekey(%3)) then ' (' || %4 || ')' else '' end)"_s
        .arg(table, column, name, number);
}

/// The number for an account or item that is put back: its own, where it can be one.
QString ownNumber(const QString& number)
{
    return u"case when %1 between 1 and 32767 then %1 end"_s.arg(number);
}

/// A shop's built-in accounts have the first four numbers, and are looked up by these names.
const Check builtInAccounts{
    u"Select n.Id, n.Title, n.Nature, coalesce(a.Title, 'gone') from (Select 1 as Id, 'Wages' as Title, "
    "1 as Nature union all Select 2, 'Sales', 0 union all Select 3, 'Purchase', 1 union all Select 4, "
    "'Cash', 0) as n left join Accounts as a on a.Id=n.Id where a.Id is null or a.Title<>n.Title or "
    "a.Type<>2 or a.readonly<>1"_s,
    u"The shop's own account \"%2\" is not as it must be (\"%4\")."_s,
    u"Mend: account %1 is \"%2\" again, as in every shop."_s,
    {u"Update Accounts set Title=Title || ' (' || Id || ')' where Title='%2' and Id<>%1"_s,
     u"Insert into Accounts (Id, Title, Type, Nature, readonly) Select %1, '%2', 2, %3, 1 where not "
     "exists (Select 1 from Accounts where Id=%1)"_s,
     u"Update Accounts set Title='%2', Type=2, readonly=1 where Id=%1"_s}};

const Check unknownAccountType{
    u"Select Id, Title from Accounts where Type not in (0, 1, 2)"_s,
    u"Account %1 (%2) is neither a client, a worker nor an account of the books."_s,
    u"Mend: it becomes a worker or a client where job cards name it so, else an account of the books."_s,
    {u"Update Accounts set Type=case when exists (Select 1 from JOBS_DETAIL where WorkerID=%1) then 1 "
     "when exists (Select 1 from JOBS where ClintID=%1) then 0 else 2 end where Id=%1"_s}};

const Check accountsOfOneName{
    u"Select b.Title, b.Id, a.Id from Accounts as b, (Select titlekey(Title) as k, min(Id) as Id from "
    "Accounts group by titlekey(Title) having count(*)>1) as a where titlekey(b.Title)=a.k and "
    "b.Id>a.Id"_s,
    u"\"%1\" is the name of two accounts, %3 and %2: only the first can be opened."_s,
    u"Mend: the other one becomes \"%1 (%2)\"; all that is his stays his."_s,
    {u"Update Accounts set Title=Title || ' (' || Id || ')' where Id=%2"_s}};

const Check itemsOfOneName{
    u"Select b.NAME, b.Id, a.Id from ITEMS as b, (Select titlekey(NAME) as k, min(Id) as Id from ITEMS "
    "group by titlekey(NAME) having count(*)>1) as a where titlekey(b.NAME)=a.k and b.Id>a.Id"_s,
    u"\"%1\" is the name of two items, %3 and %2: only the first can be opened."_s,
    u"Mend: the other one becomes \"%1 (%2)\"; its garments stay its own."_s,
    {u"Update ITEMS set NAME=NAME || ' (' || Id || ')' where Id=%2"_s}};

std::vector<Check> clientsGone()
{
    const QString gone = u"not exists (Select 1 from Accounts where Id=c.ClintID)"_s;
    const QString sameName = u"(Select min(Id) from Accounts where Type=0 and Title=c.ClintName)"_s;
    const QString what = u"The client of job card %1 (%2) is not there."_s;
    return {
        {u"Select Id, ClintName, %1 from JOBS as c where %2 and %1 is not null"_s.arg(sameName, gone),
         what,
         u"Mend: the card is given to the client of this name, who is there under another number."_s,
         {u"Update JOBS set ClintID=%3 where Id=%1"_s}},
        {u"Select Id, ClintName, ClintID from JOBS as c where %2 and %1 is null"_s.arg(sameName, gone),
         what,
         u"Mend: the client is put back under the name on the card; address and mobile number are lost."_s,
         {u"Insert into Accounts (Id, Title, Type, Nature, readonly) Select %1, %2, 0, 0, 0 from JOBS where Id=%3"_s
              .arg(ownNumber(u"ClintID"_s), freeName(u"Accounts"_s, u"Title"_s, u"ClintName"_s, u"ClintID"_s),
                   u"%1 limit 1"_s)}}};
}

std::vector<Check> itemsGone()
{
    const QString gone = u"not exists (Select 1 from ITEMS where Id=l.ItemID)"_s;
    const QString sameName = u"(Select min(Id) from ITEMS where NAME=l.ItemName)"_s;
    const QString what = u"The item of %1/%2 (%3) is not in the catalogue."_s;
    const QString columns = u"Select JobID, ItemSr, ItemName, Id, "_s;
    return {{columns + u"%1 from JOBS_DETAIL as l where %2 and %1 is not null"_s.arg(sameName, gone),
             what,
             u"Mend: the garment takes the item of this name, which is there under another number."_s,
             {u"Update JOBS_DETAIL set ItemID=%5 where Id=%4"_s}},
            {columns + u"ItemID from JOBS_DETAIL as l where %2 and %1 is null"_s.arg(sameName, gone),
             what,
             u"Mend: the item is put back with this garment's name, fee, wage and measurements."_s,
             {u"Insert into ITEMS (Id, NAME, ItemDetails, FEES, WorkerFees) Select %1, %2, ItemDetails, "
              "FEES, WorkerWagesDue from JOBS_DETAIL where Id=%3"_s.arg(
                  ownNumber(u"ItemID"_s), freeName(u"ITEMS"_s, u"NAME"_s, u"ItemName"_s, u"ItemID"_s),
                  u"%4"_s)}}};
}

std::vector<Check> workersGone()
{
    const QString gone = u"WorkerID<>0 and not exists (Select 1 from Accounts where Id=l.WorkerID)"_s;
    const QString sameName = u"(Select min(Id) from Accounts where Type=1 and Title=l.WorkerName)"_s;
    const QString what = u"The worker of %1/%2 (%3) is not there."_s;
    const QString columns = u"Select JobID, ItemSr, WorkerName, Id, "_s;
    const QString name = u"coalesce(nullif(WorkerName, ''), 'Worker')"_s;
    return {
        {columns + u"%1 from JOBS_DETAIL as l where %2 and %1 is not null"_s.arg(sameName, gone),
         what,
         u"Mend: the garment is given to the worker of this name, who is there under another number."_s,
         {u"Update JOBS_DETAIL set WorkerID=%5 where Id=%4"_s}},
        {columns + u"WorkerID from JOBS_DETAIL as l where %2 and %1 is null"_s.arg(sameName, gone),
         what,
         u"Mend: the worker is put back under this name; address and mobile number are lost."_s,
         {u"Insert into Accounts (Id, Title, Type, Nature, readonly) Select %1, %2, 1, 0, 0 from JOBS_DETAIL where Id=%3"_s
              .arg(ownNumber(u"WorkerID"_s), freeName(u"Accounts"_s, u"Title"_s, name, u"WorkerID"_s),
                   u"%4"_s)}}};
}

/// The account that took the money is asked for by its number whenever the card opens, also where nothing is
/// received any more.
std::vector<Check> receiptAccountsGone()
{
    const QString query =
        u"Select Id, CashAccID from JOBS as c where CashAccID>0 and AmountPaid%1 and not exists (Select "
        "1 from Accounts where Id=c.CashAccID)"_s;
    const QString what = u"The account that took the money of job card %1 is not there."_s;
    return {
        {query.arg(u"=0"_s),
         what,
         u"Mend: the card, with which no money came, no longer names it."_s,
         {u"Update JOBS set CashAccID=0 where Id=%1"_s}},
        {query.arg(u"<>0"_s),
         what,
         u"Mend: \"Account %2\" is put back among the accounts; give it its name there."_s,
         {u"Insert into Accounts (Id, Title, Type, Nature, readonly) values (%2, 'Account %2', 2, 0, 0)"_s}}};
}

/// A posting whose account or opposite account is gone. The other half of its pair names both, too.
std::vector<Check> postedAccountsGone()
{
    const QString what = u"An account of voucher %1 (%2) is not there."_s;
    const QString query = u"Select p.VID, p.particulars, p.Id, o.%2 from Postings as p, Postings as o "
                          "where o.VID=p.VID and o.Vtype=p.Vtype and (o.sr+1)/2=(p.sr+1)/2 and "
                          "o.sr<>p.sr and not exists (Select 1 from Accounts where Id=p.%1) and exists "
                          "(Select 1 from Accounts where Id=o.%2)"_s;
    const QString fromOther = u"Mend: it is taken from the other half of the voucher, which names it too."_s;
    // Its kind and, where a card has it, its name are known from what still points at it.
    const QString name = u"coalesce((Select ClintName from JOBS where ClintID=%3 limit 1), 'Account %3')"_s;
    const QString takeLast =
        u"Update Postings set %1=(Select max(Id) from Accounts) where %1=%3 and %3 not between 1 and 32767"_s;
    return {
        {query.arg(u"AccID"_s, u"RefID"_s), what, fromOther, {u"Update Postings set AccID=%4 where Id=%3"_s}},
        {query.arg(u"RefID"_s, u"AccID"_s), what, fromOther, {u"Update Postings set RefID=%4 where Id=%3"_s}},
        {u"Select min(VID), particulars, AccID, min(sr), Vtype from Postings as p where not exists "
         "(Select 1 from Accounts where Id=p.AccID) and not exists (Select 1 from Postings as o, "
         "Accounts as a where a.Id=o.RefID and o.VID=p.VID and o.Vtype=p.Vtype and "
         "(o.sr+1)/2=(p.sr+1)/2 and o.sr<>p.sr) group by AccID"_s,
         what,
         u"Mend: an account is put in its place, so that its book opens; give it its name in Masters."_s,
         {u"Insert into Accounts (Id, Title, Type, Nature, readonly) Select "_s + ownNumber(u"%3"_s) +
              u", "_s + freeName(u"Accounts"_s, u"Title"_s, name, u"%3"_s) +
              u", case when %5=1 and %4 in (2, 3) then 2 when '%2'='Wages' then 1 else 0 end, 0, 0"_s,
          takeLast.arg(u"AccID"_s), takeLast.arg(u"RefID"_s)}}};
}

/// A date is kept as its year, month and day. `instead` finds another where the column must have one.
Check unreadableDate(const QString& table, const QString& column, const QString& whose,
                     const QString& instead)
{
    const QString day =
        instead.isEmpty() ? u"Null"_s : u"coalesce(%1, date('now', 'localtime'))"_s.arg(instead);
    const QString remedy = instead.isEmpty()
                               ? u"Mend: it is left empty."_s
                               : u"Mend: it becomes the day of what belongs to it, else today."_s;
    return {u"Select cast(%2 as text), Id, %3 from %1 as t where %2 is not null and (date(%2, '+0 days') "
            "is null or date(%2, '+0 days')<>substr(%2, 1, 10))"_s.arg(table, column, whose),
            u"A date of %3 is none: \"%1\"."_s,
            remedy,
            {u"Update %1 set %2=%3 where Id=%4"_s.arg(table, column, day, u"%2"_s)}};
}

std::vector<Check> unreadableDates()
{
    const auto real = [](const QString& column, const QString& from) {
        return u"(Select %1 from %2 and date(%1, '+0 days')=substr(%1, 1, 10) limit 1)"_s.arg(column, from);
    };
    const QString card = u"'job card ' || t.Id"_s;
    const QString line = u"t.JobID || '/' || t.ItemSr"_s;
    const QString cardsDay = real(u"c.DATE"_s, u"JOBS as c where c.Id=JOBS_DETAIL.JobID"_s);
    std::vector<Check> checks;
    checks.push_back(unreadableDate(u"JOBS"_s, u"DATE"_s, card,
                                    real(u"p.Date"_s, u"Postings as p where p.VID=JOBS.Id and p.Vtype=1"_s) +
                                        u", "_s +
                                        real(u"l.DATE"_s, u"JOBS_DETAIL as l where l.JobID=JOBS.Id"_s)));
    for (const QString& column : {u"DeliveryDate"_s, u"TrialDate"_s})
        checks.push_back(
            unreadableDate(u"JOBS"_s, column, card, real(u"c.DATE"_s, u"JOBS as c where c.Id=JOBS.Id"_s)));
    for (const QString& column : {u"ClientDeliveryDate"_s, u"appearedDate"_s})
        checks.push_back(unreadableDate(u"JOBS"_s, column, card, {}));
    for (const QString& column : {u"DATE"_s, u"CuttingDate"_s})
        checks.push_back(unreadableDate(u"JOBS_DETAIL"_s, column, line, cardsDay));
    checks.push_back(unreadableDate(u"JOBS_DETAIL"_s, u"JobDelDate"_s, line,
                                    real(u"c.DeliveryDate"_s, u"JOBS as c where c.Id=JOBS_DETAIL.JobID"_s) +
                                        u", "_s + cardsDay));
    for (const QString& column : {u"CompletedDate"_s, u"AltDate"_s, u"DelToCustDate"_s})
        checks.push_back(unreadableDate(u"JOBS_DETAIL"_s, column, line, {}));
    checks.push_back(unreadableDate(
        u"Postings"_s, u"Date"_s, u"'voucher ' || t.VID || ' (' || t.particulars || ')'"_s,
        real(u"o.Date"_s, u"Postings as o where o.VID=Postings.VID and o.Vtype=Postings.Vtype"_s)));
    checks.push_back(unreadableDate(u"Accounts"_s, u"DOB"_s, u"'the client ' || t.Title"_s, {}));
    return checks;
}

} // namespace

const std::vector<Check>& recordChecks()
{
    static const std::vector<Check> all = [] {
        std::vector<Check> checks{builtInAccounts, unknownAccountType};
        for (const auto& some : {unreadableDates(), clientsGone(), itemsGone(), workersGone(),
                                 receiptAccountsGone(), postedAccountsGone()})
            checks.insert(checks.end(), some.begin(), some.end());
        checks.push_back(accountsOfOneName);
        checks.push_back(itemsOfOneName);
        return checks;
    }();
    return all;
}

} // namespace shopcheck
