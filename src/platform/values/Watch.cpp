#include "platform/values/Watch.h"

using namespace Qt::StringLiterals;

void Watch::step(const QString& name, const std::function<void()>& work) const
{
    if (stop.stop_requested())
        throw GivenUp();
    if (tell)
        tell(name);
    try {
        work();
    } catch (OperatorError& error) {
        if (stop.stop_requested())
            throw GivenUp();
        error.putBefore(u"It failed at this step: %1."_s.arg(name));
        throw;
    }
}
