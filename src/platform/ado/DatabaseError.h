#pragma once

#include "platform/values/Errors.h"
#include "platform/values/Literals.h"

namespace ado {

/// A statement that the engine refused, or a file that cannot be opened. `text()` is the engine's text.
class DatabaseError : public OperatorError
{
public:
    using OperatorError::OperatorError;
};

/// A field was asked for, or a row was to be written, where no row stands.
class NoCurrentRecordError : public DatabaseError
{
public:
    NoCurrentRecordError()
        : DatabaseError(u"No current record: the query found no row, or all have been passed."_s)
    {
    }
};

} // namespace ado
