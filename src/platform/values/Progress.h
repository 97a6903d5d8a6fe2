#pragma once

#include "platform/values/Errors.h"

#include <functional>
#include <stop_token>

/// The operator has cancelled what was under way.
class Cancelled : public OperatorError
{
public:
    Cancelled()
        : OperatorError(u"It was given up."_s)
    {
    }
};

/// How slow work reports its steps, in the operator's words, and learns that it is cancelled.
struct Progress
{
    std::stop_token stop = {};
    std::function<void(const QString& step)> tell = {};

    /// Tells the step and does it. The text of an OperatorError then names the step that failed. Throws
    /// Cancelled, before or in place of that, once `stop` was asked for.
    void step(const QString& name, const std::function<void()>& work) const;
};
