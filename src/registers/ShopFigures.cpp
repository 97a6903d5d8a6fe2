#include "registers/ShopFigures.h"

#include "core/store/Lookups.h"
#include "core/store/Rows.h"
#include "core/store/SerialNumber.h"
#include "core/store/Texts.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace figures {

namespace {

constexpr int daysAhead = 14;
constexpr int recentDays = 30;
constexpr int weeks = 12;
constexpr size_t largestDebtors = 10;

QString state(LineState state) { return QString::number(qint32(state)); }

/// The lines that nobody has fetched yet.
QString inShop()
{
    return u"DoneByWorker in (%1, %2, %3)"_s.arg(state(LineState::Uncompleted), state(LineState::Completed),
                                                 state(LineState::Alteration));
}

void add(InShop& lines, ado::Recordset& row)
{
    const int count = row["Lines"].integer();
    switch (row["DoneByWorker"].code<LineState>()) {
    case LineState::Uncompleted:
        lines.uncompleted += count;
        break;
    case LineState::Alteration:
        lines.alteration += count;
        break;
    default:
        lines.ready += count;
    }
}

void readDue(Shop& shop, const QDate& day)
{
    shop.due.resize(daysAhead);
    each(u"Select JobDelDate, DoneByWorker, count(*) as Lines from JOBS_DETAIL where JobDelDate between "_s +
             sqlDates(day, day.addDays(daysAhead - 1)) + u" and "_s + inShop() +
             u" group by JobDelDate, DoneByWorker"_s,
         [&](ado::Recordset& row) { add(shop.due[size_t(day.daysTo(row["JobDelDate"].date()))], row); });
    each(
        u"Select DoneByWorker, count(*) as Lines, min(JobDelDate) as Since from JOBS_DETAIL where JobDelDate<"_s +
            sqlDate(day) + u" and "_s + inShop() + u" group by DoneByWorker"_s,
        [&](ado::Recordset& row) {
            add(shop.overdue, row);
            const QDate since = row["Since"].date();
            if (!shop.overdue.since.isValid() || since < shop.overdue.since)
                shop.overdue.since = since;
        });
}

void readDay(Shop& shop, const QDate& day)
{
    each(u"Select appeared, count(*) as Cards from Jobs where TrialDate="_s + sqlDate(day) +
             u" group by appeared"_s,
         [&](ado::Recordset& row) {
             const int cards = row["Cards"].integer();
             shop.trials.all += cards;
             if (row["appeared"].code<TrialState>() == TrialState::NotAppeared)
                 shop.trials.notAppeared += cards;
         });
    const std::vector<Birthday> born = birthdays(day);
    shop.birthdays =
        int(std::count_if(born.begin(), born.end(), [](const auto& b) { return !b.underAYear; }));
    shop.newCards = one(u"Select count(*) from Jobs where Date="_s + sqlDate(day));
    each(u"Select min(Date), max(Date) from Jobs"_s, [&](ado::Recordset& row) {
        if (row[0].isNull())
            return;
        shop.firstDay = row[0].date();
        shop.lastDay = row[1].date();
    });
    shop.clients = one(u"Select count(*) from Accounts"_s + whereType(AccountType::Client));
    shop.ledgerAccounts = one(u"Select count(*) from Accounts"_s + whereType(AccountType::Ledger));
}

/// What clients paid on some days, by day and account: debits of the accounts that keep money.
QString payments(const QDate& from, const QDate& to)
{
    return u"Select Postings.Date as Day, Kept.Title as Title, -sum(Amount) as Paid from Postings, Accounts "
           "as Kept, Accounts as Payer where Kept.ID=AccID and Payer.ID=RefID and Kept.Type=%1 and "
           "Kept.Nature=%2 and Kept.Title<>'Sales' and Payer.Type=%3 and Postings.Status=0 and Amount<0 and "
           "Postings.Date between %4 group by Postings.Date, Kept.Title"_s.arg(qint32(AccountType::Ledger))
               .arg(qint32(AccountNature::Income))
               .arg(qint32(AccountType::Client))
               .arg(sqlDates(from, to));
}

void readMoney(Shop& shop, const QDate& day)
{
    const QDate first = day.addDays(1 - 7 * weeks);
    for (int week = 0; week < weeks; ++week)
        shop.weeks.push_back({first.addDays(7 * week), {}, {}});
    const auto weekOf = [&](const QDate& date) -> Week& {
        return shop.weeks[size_t(first.daysTo(date) / 7)];
    };
    each(u"Select Date as Day, sum(Amount) as Booked from Postings where AccID in (Select ID from Accounts "
         "where Title='Sales') and Vtype=%1 and Status=0 and Date between %2 group by Date"_s
             .arg(qint32(VoucherType::Job))
             .arg(sqlDates(first, day)),
         [&](ado::Recordset& row) {
             weekOf(row["Day"].date()).booked += Currency::fromDouble(row["Booked"].number());
         });
    each(payments(first, day), [&](ado::Recordset& row) {
        const QDate date = row["Day"].date();
        const Currency paid = Currency::fromDouble(row["Paid"].number());
        weekOf(date).taken += paid;
        if (date == day)
            shop.taken.push_back({row["Title"].text(), paid});
    });
}

void sumDues(Dues& dues, const QDate& day)
{
    for (const Due& due : readDues(day)) {
        for (size_t age = 0; age < due.byAge.size(); ++age)
            dues.byAge[age] += due.byAge[age];
        ++dues.clients;
        dues.largest.push_back({due.title, due.amount});
    }
    std::stable_sort(dues.largest.begin(), dues.largest.end(),
                     [](const auto& left, const auto& right) { return left.due > right.due; });
    dues.largest.resize(std::min(dues.largest.size(), largestDebtors));
}

void readWorkers(Shop& shop, const QDate& day)
{
    QHash<qint32, size_t> places;
    each(u"Select ID, Title from Accounts"_s + whereType(AccountType::Worker) + u" order by Title"_s,
         [&](ado::Recordset& row) {
             places.insert(row["ID"].integer(), shop.workers.size());
             shop.workers.push_back({.name = row["Title"].text()});
         });
    const auto ofWorker = [&](ado::Recordset& row) -> WorkerLoad* {
        const auto place = places.constFind(row["WorkerID"].integer());
        return place == places.constEnd() ? nullptr : &shop.workers[*place];
    };
    each(u"Select WorkerID, DoneByWorker, count(*) as Lines, min(Date) as Since from JOBS_DETAIL where "
         "DoneByWorker in (%1, %2) group by WorkerID, DoneByWorker"_s.arg(state(LineState::Uncompleted),
                                                                          state(LineState::Alteration)),
         [&](ado::Recordset& row) {
             WorkerLoad* worker = ofWorker(row);
             if (!worker)
                 return;
             if (row["DoneByWorker"].code<LineState>() == LineState::Alteration) {
                 worker->alteration = row["Lines"].integer();
                 return;
             }
             worker->inHand = row["Lines"].integer();
             worker->since = row["Since"].date();
         });
    int finished = 0;
    QSet<QDate> days;
    each(
        u"Select WorkerID, CompletedDate, count(*) as Lines from JOBS_DETAIL where CompletedDate between "_s +
            sqlDates(day.addDays(1 - recentDays), day) + u" group by WorkerID, CompletedDate"_s,
        [&](ado::Recordset& row) {
            const int lines = row["Lines"].integer();
            finished += lines;
            days.insert(row["CompletedDate"].date());
            if (WorkerLoad* worker = ofWorker(row))
                worker->finished += lines;
        });
    shop.finishedADay = days.isEmpty() ? 0 : double(finished) / double(days.size());
}

Room roomOf(const QString& table, qint64 limit) { return {one(u"Select max(ID) from "_s + table), limit}; }

constexpr qint64 highestNumber = std::numeric_limits<qint16>::max();
Room roomOfLines() { return roomOf(u"JOBS_DETAIL"_s, highestNumber); }
Room roomOfAccounts() { return roomOf(u"Accounts"_s, highestNumber); }
Room roomOfPostings() { return roomOf(u"Postings"_s, HighestSerialNumber); }

} // namespace

Shop read(const QDate& day)
{
    Shop shop;
    readDue(shop, day);
    readDay(shop, day);
    readMoney(shop, day);
    sumDues(shop.dues, day);
    readWorkers(shop, day);
    shop.lines = roomOfLines();
    shop.accounts = roomOfAccounts();
    shop.postings = roomOfPostings();
    return shop;
}

Room scarcestRoom()
{
    const Room rooms[] = {roomOfLines(), roomOfAccounts(), roomOfPostings()};
    return *std::max_element(std::begin(rooms), std::end(rooms), [](const Room& left, const Room& right) {
        return left.percent() < right.percent();
    });
}

std::vector<Birthday> birthdays(const QDate& day)
{
    std::vector<Birthday> born;
    each(u"select * from  Accounts"_s + whereType(AccountType::Client) +
             u" and month(dob) between %1 and %1 and day(dob) between  %2 and %2"_s.arg(day.month())
                 .arg(day.day()),
         [&](ado::Recordset& client) {
             const QDate dob = client["dob"].date();
             born.push_back({client["ID"].integer(), client["Title"].text(), dob, client["Mobile"].text(),
                             dob > day.addYears(-1)});
         });
    return born;
}

} // namespace figures
