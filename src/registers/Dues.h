#pragma once

#include "platform/values/Currency.h"

#include <QDate>
#include <QString>
#include <array>
#include <vector>

/// What a client owes at the end of a day, and how old it is. A payment always settles the oldest, so what is
/// due is spread over what was booked last.
struct Due
{
    enum Age { UpTo30Days, UpTo60Days, UpTo90Days, Older, ages };

    qint32 client = 0;
    QString title;
    Currency amount; ///< above 0
    std::array<Currency, ages> byAge;
};

/// The clients who owe, by title. Throws ado::DatabaseError.
std::vector<Due> readDues(const QDate& day);
