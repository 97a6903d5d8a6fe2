#pragma once

#include "platform/ado/Recordset.h"

#include <functional>

/// Reads the rows of a query of the shop's file, one after the other, each handed to `take`. On every way
/// out, a fault in the middle too, nothing stays open that would keep other programs from the file. Throws
/// ado::DatabaseError, and what `take` throws.
void each(const QString& sql, const std::function<void(ado::Recordset& row)>& take);

/// The integer in the first row and column of a query; 0 for none and for a null.
qint32 one(const QString& sql);
