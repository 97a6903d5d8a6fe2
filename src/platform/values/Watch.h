#pragma once

#include "platform/values/Errors.h"

#include <functional>
#include <stop_token>

/// The operator has given up what was under way.
class GivenUp : public OperatorError
{
public:
    GivenUp()
        : OperatorError(u"It was given up."_s)
    {
    }
};

/// What slow work has to do with those who wait for it: it tells its steps in the operator's words, and can
/// be given up.
struct Watch
{
    std::stop_token stop = {};
    std::function<void(const QString& step)> tell = {};

    /// Tells the step and does it. The text of an OperatorError then names the step that failed. Throws
    /// GivenUp, before or in place of that, once `stop` was asked for.
    void step(const QString& name, const std::function<void()>& work) const;
};
