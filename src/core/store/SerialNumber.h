#pragma once

#include "platform/values/Errors.h"

#include <limits>
#include <optional>

/// The running numbers of job cards and vouchers: from 1, and each leaves a next one.
inline constexpr qint32 HighestSerialNumber = std::numeric_limits<qint32>::max() - 1;

inline bool isSerialNumber(qint32 number) { return number >= 1 && number <= HighestSerialNumber; }

/// Reads a number that was typed in digits alone; nothing for a text that is no running number.
std::optional<qint32> readSerialNumber(const QString& text);

/// What the operator reads when the number in a field is refused.
OperatorError serialNumberRefused(const QString& field);
