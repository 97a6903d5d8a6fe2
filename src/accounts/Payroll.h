#pragma once

#include "accounts/Wages.h"

/// A payroll is an entry voucher that credits a worker with the wages of some lines; each of them holds its
/// number.
namespace payroll {

/// Credits the worker with the balance of the lines, as the list shows it, and marks them all as paid, in one
/// commit. `lines` are the unpaid ones of the period as they were listed, one at least; `date` is the
/// voucher's. Returns its number. Throws OperatorError, with nothing written, when one of the lines is no
/// longer owed as it was listed, and OverflowError when there is no number left.
qint16 Create(const wages::Scope& scope, const std::vector<wages::Line>& lines, const QDate& date);

/// The lines that the payroll covered are unpaid again. Write within a write batch. Throws
/// ado::DatabaseError.
void Release(qint32 number);

} // namespace payroll
