#pragma once

#include <QString>

/// The address to which the shop's clients pay from a phone, as the settings hold it: a link, "upi://pay?pa="
/// or any other. Blanks and quotes in it are no trouble, nor are quotes around it.

/// Whether a text can be such an address: a link of up to 1,000 letters with its scheme, and one of UPI with
/// the payee.
bool isPaymentAddress(const QString& text);

/// The link with the amount to be paid: in place of "{amount}" where the address says that; else as UPI has
/// it; else as "amount" among the values of the link. Empty where the shop has no address, and where nothing
/// is due.
QString paymentLink(const QString& address, double due);
