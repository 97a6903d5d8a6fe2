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

/// A part of a number, as it is typed to find its owner.
struct NumberPart
{
    QString digits;  ///< all that were typed; empty for a text that holds anything else
    QString dialled; ///< what a number begins with if the first of them were dialled before it; mostly empty
};

/// Reads one, with or without what stands between the digits of a number. "+91-98290": the digits 9198290, or
/// a number that begins with 98290.
NumberPart numberPart(const QString& text);
