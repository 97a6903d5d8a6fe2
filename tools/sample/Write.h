#pragma once

#include "sample/Cards.h"
#include "sample/Ledger.h"

/// What was planned goes into the shop's open file. Each call is one commit.
namespace sample {

/// `first` is the number of the first voucher of the span.
void writeVouchers(const Voucher* begin, const Voucher* end, int first);
/// Saves the cards as the job card screen does, then what became of them; draws their pictures.
void writeCards(const Card* begin, const Card* end);

} // namespace sample
