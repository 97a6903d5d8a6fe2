#pragma once

#include "platform/values/Currency.h"

#include <QDate>
#include <QString>

/// The work tables from which a job card is printed: `tmpHead` with one row, `tmpBody` with one row a line.
/// They hold one job at a time, and keep it until the next print.

/// Puts a job into the work tables, in one commit, so that another connection finds it whole. Throws
/// ado::DatabaseError when the job is gone; the tables then hold the job before it.
void StageJobCard(qint32 JobID);

/// Add a row to the work tables; money and dates are kept there as text.
void AddPrintHead(qint32 JobID, const QDate& date, const QString& name, const QDate& deliveryDate,
                  const QDate& trialDate, Currency due, Currency paid);
void AddPrintBody(qint32 JobID, qint32 quantity, const QString& itemName, const QString& remarks,
                  Currency fees, Currency amount);
