#pragma once

#include "platform/values/Literals.h"

#include <QDate>
#include <QString>
#include <optional>

/// How the shop words its days and its money, on screens and on paper.

/// "25-Dec-2024"; an invalid date is empty text.
QString dateText(const QDate& date);
/// The same day between the marks of a date in a statement: "#25-Dec-2024#".
QString sqlDate(const QDate& date);
/// Two days as "between" takes them: "#01-Dec-2024# and #25-Dec-2024#".
QString sqlDates(const QDate& from, const QDate& to);

/// "12.50", "-3.00".
QString moneyText(double amount);
/// The amount that moneyText() shows: rounded to two decimals, as papers and totals add it up.
double shownMoney(double amount);
/// "12.50 Cr" (the shop owes), "12.50 Dr" (the account owes), "None".
QString balanceText(double balance);

/// A line of a job card as the lists name it and its barcode holds it: "1436/2".
struct LineCode
{
    qint32 job = 0;
    qint32 item = 0; ///< from 1, within the card

    bool operator==(const LineCode&) const = default;
};
QString lineCodeText(const LineCode& code);
QString lineCodeText(const QString& job, const QString& item);
/// Reads one, blanks around it left out; nothing for any other text.
std::optional<LineCode> readLineCode(const QString& text);
/// The card that a typed number, or a code, means; 0 for any other text.
qint32 cardNumber(const QString& text);

/// Text as it goes between apostrophes in a statement: each apostrophe in it twice.
QString sqlText(const QString& text);

/// What stands in place of a worker's name for a line without one.
inline const QString noWorker = u"NA"_s;
