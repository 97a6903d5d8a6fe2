#pragma once

#include "platform/values/Errors.h"

#include <functional>

/// What the work is refused with; empty when it is not refused.
inline QString refusal(const std::function<void()>& work)
{
    try {
        work();
    } catch (const OperatorError& error) {
        return error.text();
    }
    return {};
}
