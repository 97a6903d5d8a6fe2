#pragma once

#include <QDate>
#include <QString>

/// The span between two dates in words: "2 years, 0 months, 5 days". Parts that lead with zero are left out
/// unless `allParts`. `singular` says "1 day" rather than "1 days". Empty when `from` is later than `to`.
QString DateDiffText(QDate from, QDate to, bool allParts, bool singular);
