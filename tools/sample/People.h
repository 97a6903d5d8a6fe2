#pragma once

#include "sample/Catalogue.h"
#include "sample/Plan.h"
#include "sample/Random.h"

#include <QDate>
#include <QString>
#include <vector>

namespace sample {

/// The numbers of the ledger accounts: the four that every shop has, then those of this one.
namespace account {
inline constexpr int wages = 1;
inline constexpr int sales = 2;
inline constexpr int purchase = 3;
inline constexpr int cash = 4;
inline constexpr int bank = 5;
inline constexpr int capital = 6;
inline constexpr int rent = 7;
inline constexpr int electricity = 8;
inline constexpr int repairs = 9;
} // namespace account

struct Person
{
    qint32 account = 0; ///< `Accounts.Id`
    QString title;
    bool woman = false;
    QString address;
    QString city;
    QString state;
    QString mobile;
    QDate birthday; ///< invalid: not told
};

struct Client : Person
{
    int size = 100; ///< percent of the usual measures
};

struct Worker : Person
{
    Craft craft = Craft::Light;
    int quality = 3; ///< the score that the work earns, about
    QDate from;      ///< works for the shop in this span
    QDate to;
};

struct People
{
    std::vector<Worker> workers;
    std::vector<Client> clients; ///< in the order in which they came first
};

/// Everybody of the shop, with the account numbers that they will get.
People invitePeople(const Plan& plan, Random& random);

/// Adds the ledger accounts, the workers and the clients to the shop.
void writeAccounts(const People& people);

} // namespace sample
