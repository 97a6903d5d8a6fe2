#pragma once

#include "jobcards/ItemCounts.h"
#include "platform/values/Currency.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

/// Piece wages: each line of a job card carries the wage of the worker who makes the garment. They are owed
/// once the line has left the state Uncompleted, and count on the day of its card. All of these throw
/// ado::DatabaseError.
namespace wages {

enum class Which { All, Unpaid, Paid };

/// One worker's work of some days, both ends included.
struct Scope
{
    qint32 worker = 0;
    QDate from;
    QDate to;

    bool operator==(const Scope&) const = default;
};

struct Line
{
    qint32 id = 0; ///< `Jobs_Detail.ID`
    QDate date;
    QString job; ///< "1001 / 2": card and number of the line on it
    QString client;
    QString item;
    Currency wage;
    Currency balance; ///< the wages up to this line
    QDate completed;
    bool paid = false;

    /// Its texts in the order of the columns of a list of wages.
    QStringList cells() const;
};

/// The statements that find the lines of a period, by day, and those that a payroll has paid.
QString linesOf(const Scope& scope, Which which);
QString linesOfPayroll(qint32 number);
/// The lines that a statement finds. Throws ado::NoCurrentRecordError for a line whose item is gone.
std::vector<Line> read(const QString& statement);

/// How many lines of each item the worker made in the period, paid or not.
std::vector<ItemCount> itemCounts(const Scope& scope);

/// Puts the lines into the table that their paper is printed from, in place of what lay there.
void stage(const std::vector<Line>& lines);

} // namespace wages
