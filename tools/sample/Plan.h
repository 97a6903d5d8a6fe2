#pragma once

#include <QDate>

namespace sample {

/// How large a shop is to be, and up to which day it has worked.
struct Plan
{
    quint32 seed = 1;
    QDate lastDay; ///< the shop's working date; work in hand reaches beyond it
    int days = 0;  ///< that the shop has worked, the last one included
    int clients = 0;
    int workers = 0;
    int workersAtOnce = 0; ///< the others came later or have left
    int cards = 0;
    int lines = 0;
    int lastMonthLines = 0; ///< taken in the last 30 days
    int lastDayLines = 0;
    int postings = 0;    ///< 0: as many as the business makes
    int pictures = 0;    ///< lines that have pictures
    int firstNumber = 1; ///< of the job cards

    QDate firstDay() const { return lastDay.addDays(1 - days); }
};

/// Three months of a shop at full work.
Plan demo(const QDate& lastDay);
/// Six years of a shop: as much as its 16-bit numbers allow.
Plan full(const QDate& lastDay);

} // namespace sample
