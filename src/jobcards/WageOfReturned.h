#pragma once

#include "jobcards/Differences.h"

namespace differences {

/// How far the living shop has paid the wage of a line that comes back into it.
struct Payment
{
    bool paid = false;
    qint32 payroll = 0; ///< that covers it; 0: the line is paid by its mark alone
};

/// A garment is paid once, whatever becomes of its card. `line` is the line as it was, with the numbers that
/// the living shop has for its client, item and worker. It was paid
/// - by its payroll, where that still stands: it joins it again, unless another line has the place;
/// - by hand, where it was marked so;
/// - where the line that the living card has in its stead is paid: by its mark, as the payroll is that one's;
/// - by a payroll that the worker got since, and that comes to more than the garments it has left by at
///   least this wage: it joins that.
/// Else it is unpaid. Throws ado::DatabaseError.
Payment paymentOf(const Row& line, const Kept& kept);

} // namespace differences
