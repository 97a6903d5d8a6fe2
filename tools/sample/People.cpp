#include "sample/People.h"

#include "core/store/DE.h"
#include "sample/Names.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

constexpr int ledgerType = 2;
constexpr int workerType = 1;
constexpr int clientType = 0;

struct LedgerAccount
{
    const char* title;
    bool expense;
};

/// Behind the built-in ones, in the order of their numbers.
constexpr LedgerAccount ledgerAccounts[] = {{"Bank", false},
                                            {"Capital", false},
                                            {"Shop Rent", true},
                                            {"Electricity", true},
                                            {"Machine Repairs", true}};
constexpr int builtIn = 4;

/// Gives names until one is free.
class Titles
{
public:
    QString title(Random& random, Name (*make)(Random&, int), bool* woman)
    {
        for (int again = 0;; ++again) {
            const Name name = make(random, again);
            if (m_taken.contains(name.title.toLower()))
                continue;
            m_taken.insert(name.title.toLower());
            *woman = name.woman;
            return name.title;
        }
    }

private:
    QSet<QString> m_taken;
};

void describe(Person& person, Random& random, const QDate& lastDay)
{
    const Place home = place(random);
    person.address = home.address;
    person.city = home.city;
    person.state = home.state;
    if (!random.chance(4))
        person.mobile = mobile(random);
    if (random.chance(85))
        person.birthday = lastDay.addDays(-random.between(18 * 365, 68 * 365));
}

/// The span in which a worker is with the shop: those who are there at once follow each other.
void employ(Worker& worker, int number, const Plan& plan)
{
    const int tenure = plan.days * plan.workersAtOnce / plan.workers;
    const int turns = (plan.workers + plan.workersAtOnce - 1) / plan.workersAtOnce;
    const int turn = number % turns;
    worker.from = plan.firstDay().addDays(turn * tenure);
    worker.to = turn == turns - 1 ? plan.lastDay : worker.from.addDays(tenure - 1);
}

Craft craftOf(int number)
{
    static constexpr Craft crafts[] = {Craft::Light, Craft::Ladies, Craft::Heavy, Craft::Light,
                                       Craft::Ladies};
    return crafts[number % 5];
}

void add(ado::Recordset& accounts, const Person& person, int type)
{
    accounts.AddNew();
    accounts["Title"] = person.title;
    accounts["Type"] = type;
    accounts["Address"] = person.address;
    accounts["City"] = person.city;
    accounts["State"] = person.state;
    accounts["Mobile"] = person.mobile;
    accounts["dob"] = person.birthday.isValid() ? QVariant(person.birthday) : ado::Null;
    accounts.Update();
    if (accounts["ID"].integer() != person.account)
        qFatal("the account of %s has another number than planned", qPrintable(person.title));
}

} // namespace

People invitePeople(const Plan& plan, Random& random)
{
    People people;
    Titles titles;
    qint32 next = builtIn + static_cast<qint32>(std::size(ledgerAccounts)) + 1;
    for (int i = 0; i < plan.workers; ++i) {
        Worker worker;
        worker.account = next++;
        worker.title = titles.title(random, workerName, &worker.woman);
        describe(worker, random, plan.lastDay);
        worker.craft = craftOf(i * plan.workersAtOnce / plan.workers);
        worker.quality = random.between(2, 5);
        employ(worker, i, plan);
        people.workers.push_back(worker);
    }
    for (int i = 0; i < plan.clients; ++i) {
        Client client;
        client.account = next++;
        client.title = titles.title(random, personName, &client.woman);
        describe(client, random, plan.lastDay);
        if (i % 90 == 40) // in a small shop too somebody is to be greeted
            client.birthday = plan.lastDay.addYears(-(20 + i % 37));
        client.size = random.between(86, 114);
        people.clients.push_back(client);
    }
    return people;
}

void writeAccounts(const People& people)
{
    ado::Recordset& accounts = DE.rsaccounts;
    accounts.Open(u"Select * from Accounts"_s);
    for (const LedgerAccount& ledger : ledgerAccounts) {
        accounts.AddNew();
        accounts["Title"] = QString::fromLatin1(ledger.title);
        accounts["Type"] = ledgerType;
        accounts["Nature"] = int(ledger.expense);
        accounts.Update();
    }
    for (const Worker& worker : people.workers)
        add(accounts, worker, workerType);
    for (const Client& client : people.clients)
        add(accounts, client, clientType);
    accounts.Close();
}

} // namespace sample
