#pragma once

#include "platform/values/Literals.h"

#include <QDate>
#include <QString>

/// How the shop words its days and its money, on screens and on paper.

/// "25-Dec-2024"; an invalid date is empty text.
QString dateText(const QDate& date);
/// The same day between the marks of a date in a statement: "#25-Dec-2024#".
QString sqlDate(const QDate& date);
/// Two days as "between" takes them: "#01-Dec-2024# and #25-Dec-2024#".
QString sqlDates(const QDate& from, const QDate& to);

/// "12.50", "-3.00".
QString moneyText(double amount);
/// "12.50 Cr" (the shop owes), "12.50 Dr" (the account owes), "None".
QString balanceText(double balance);

/// Text as it goes between apostrophes in a statement: each apostrophe in it twice.
QString sqlText(const QString& text);

/// What stands in place of a worker's name for a line without one.
inline const QString noWorker = u"NA"_s;
