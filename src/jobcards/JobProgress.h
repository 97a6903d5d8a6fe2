#pragma once

#include "core/store/Codes.h"

#include <QDate>

namespace ado {
class Recordset;
}

/// How a stored garment line and its card go through the shop.

/// The column of a line that keeps the day on which it came into a state; null for the states that have none.
const char* dayColumn(LineState state);

/// Brings the line on which `line` stands into a state, and stamps the state's day where it has one. The
/// caller writes the row.
void enterState(ado::Recordset& line, LineState state, const QDate& day);

/// Closes the card with all that it holds: the client has taken it on `day`. Its lines are delivered,
/// whatever state they were in. Write within a write batch. Throws ado::DatabaseError.
void deliverCard(qint32 job, const QDate& day);

/// Closes the card whose last line was delivered on `day`: the promised day gives way to the real one. Throws
/// ado::DatabaseError.
void closeCard(qint32 job, const QDate& day);

/// True when every line of the card is completed (delivered). A card without lines counts as both. Throw
/// ado::DatabaseError.
bool AllItemsCompleted(qint32 jobId);
bool AllItemsDelivered(qint32 jobId);
