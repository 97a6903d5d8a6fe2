#pragma once

#include <QString>

/// Mobile numbers as people write them.

/// The digits by which a number is known, whatever stands between them and in front: "+91 98290 12345",
/// "098290-12345" and "9829012345" are all 9829012345. Empty for a text with fewer than seven digits, which
/// is nobody's number.
QString mobileDigits(const QString& text);

/// A number as the shop stores it, and messages are sent to: its digits alone. A text that says more than one
/// number stays as it is.
QString storedMobile(const QString& text);
