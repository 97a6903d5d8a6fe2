#pragma once

#include "platform/values/Currency.h"
#include "registers/Dues.h"

#include <QDate>
#include <QString>
#include <vector>

/// The shop in figures, as it stands at the end of a day. Each figure is the number of what one of the lists
/// shows, read here with one statement for all.
namespace figures {

/// Lines that are still in the shop, by how far they are.
struct InShop
{
    int uncompleted = 0;
    int alteration = 0;
    int ready = 0;

    int notReady() const { return uncompleted + alteration; }
    int all() const { return notReady() + ready; }
};

/// What should have been handed over before the day.
struct Overdue : InShop
{
    QDate since; ///< the day on which the oldest of them was due; invalid when there is none
};

struct Trials
{
    int all = 0;
    int notAppeared = 0;
};

/// Money that clients paid into an account: every account of the ledger that is neither an expense nor the
/// sales themselves keeps money.
struct Taken
{
    QString account;
    Currency amount;
};

struct Week
{
    QDate from; ///< seven days from here
    Currency booked;
    Currency taken;
};

/// What all clients owe together.
struct Dues
{
    struct Debtor
    {
        QString title;
        Currency due;
    };
    static constexpr int ages = Due::ages;
    std::array<Currency, ages> byAge;
    int clients = 0;
    std::vector<Debtor> largest; ///< ten at most
};

struct WorkerLoad
{
    QString name;
    int inHand = 0; ///< not completed
    int alteration = 0;
    int finished = 0; ///< in the thirty days up to the day
    QDate since{};    ///< the day on which the oldest in hand was booked; invalid without one
};

/// How much of the numbers that the file has room for is used up.
struct Room
{
    qint64 used = 0;
    qint64 limit = 1;

    int percent() const { return int(used * 100 / limit); }
    bool isShort() const { return percent() >= 90; }
};

struct Shop
{
    std::vector<InShop> due; ///< today, and each of the thirteen days after
    Overdue overdue;
    double finishedADay = 0; ///< lines, on a day on which any was, of the last thirty
    Trials trials;
    int birthdays = 0;
    int newCards = 0;
    std::vector<Taken> taken; ///< today
    std::vector<Week> weeks;  ///< twelve; the last ends today
    Dues dues;
    std::vector<WorkerLoad> workers; ///< by name
    Room lines;
    Room accounts;
    Room postings;
    int clients = 0;
    int ledgerAccounts = 0;
    QDate firstDay; ///< of all cards; invalid without any
    QDate lastDay;
};

/// How much is used of the scarcest numbers: those of lines, accounts or postings. Quick.
Room scarcestRoom();

/// Reads them. Throws ado::DatabaseError.
Shop read(const QDate& day);

/// A client born on a day of the year.
struct Birthday
{
    qint32 id = 0;
    QString client;
    QDate dob;
    QString mobile;
    bool underAYear = false; ///< none to congratulate on: less than a year before the day, as where a client
                             ///< was entered without one and the day of the entry was stored
};
std::vector<Birthday> birthdays(const QDate& day);

} // namespace figures
