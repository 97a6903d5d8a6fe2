#pragma once

#include <QtGlobal>

/// Whether a job line or the ledger refers to a record, so that it must stay. All throw ado::DatabaseError.
bool isClientInUse(qint16 id);
bool isWorkerInUse(qint16 id);
bool isItemInUse(qint16 id);
