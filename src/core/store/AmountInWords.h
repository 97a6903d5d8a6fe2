#pragma once

#include <QString>

/// An amount as receipts and cheques word it, by lakh and crore: "Rupees One Lakh Twenty Thousand and Fifty
/// Paise Only". It is rounded to paise first, as moneyText() shows it; a negative one begins with "Minus".
QString amountInWords(double amount);
