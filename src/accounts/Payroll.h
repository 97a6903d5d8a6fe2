#pragma once

#include <QtGlobal>

/// A payroll is an entry voucher that pays a worker's lines; each of them holds its number.
namespace payroll {

/// The lines that the payroll covered are unpaid again. Write within a write batch. Throws
/// ado::DatabaseError.
void Release(qint32 number);

} // namespace payroll
