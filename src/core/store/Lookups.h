#pragma once

#include "core/store/Codes.h"
#include "platform/ado/Recordset.h"
#include "platform/values/ListTarget.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <QVariant>

/// Names into numbers, numbers into names, lists, balances. All work on the shared recordset `DE.rsaccounts`
/// (or the one handed over), whatever table they read, and close it when done.

/// Look-ups of one row. Where no row matches they throw ado::NoCurrentRecordError: ask only for what exists.
/// Only GetItemID takes names with an apostrophe; the engine refuses the others' statements then.
qint32 GetAccountID(const QString& title);
QString GetAccountTitle(qint32 id);
double GetItemFees(qint32 id);
double GetItemWorkerFees(const QString& name);
qint32 GetItemID(const QString& name);
QString GetItemName(qint32 id);

/// The titles of many accounts at once, those that a query names; one that is gone is left out.
QHash<qint32, QString> GetAccountTitles(const QString& accounts);

/// The value of `resultField` in the first row of `table` whose `keyField` is `value`, else of the
/// first where it is another spelling of it (case in any script, either apostrophe); -1 where there is no
/// such row or the field is null. "Found" is a result above 0. After a hit the recordset stays open.
QVariant FieldValueExists(const QString& value, const QString& keyField, const QString& resultField,
                          const QString& table, ado::Recordset& recordset);

/// The id of the account of this title; 0 for one that is gone, and for an empty title. Apostrophes are no
/// trouble.
qint32 idOfAccount(const QString& title);
/// The title of the account that money comes into unless another is chosen; every new shop has it.
inline constexpr auto cashAccount = QLatin1StringView("Cash");

/// The condition of FillList for the accounts of one type.
QString whereType(AccountType type);

/// Fill a list or combo with one field of a table, in its order. `condition` is given whole with its leading
/// blank.
void FillCombo(const QString& field, const QString& table, ListTarget& control, ado::Recordset& recordset);
void FillList(const QString& field, const QString& table, const QString& condition, ListTarget& control,
              ado::Recordset& recordset);

/// The condition that a posting counts in a balance of `date`: valid, and not before 17 November 1985.
QString countsUpTo(const QDate& date);
/// The sum of an account's valid postings up to `date`; 0 without postings. Negative: the account owes.
double GetBalance(qint16 account, const QDate& date);
/// The same of many accounts at once, those that a query names; an account without postings is left out.
QHash<qint32, double> GetBalances(const QString& accounts, const QDate& date);
/// The sum of the credits (amounts above 0) and of the debits (below 0) of a span of days, both ends
/// included.
double GetPositiveTotal(qint16 account, const QDate& from, const QDate& to);
double GetNegativeTotal(qint16 account, const QDate& from, const QDate& to);
