#include "platform/values/Progress.h"

using namespace Qt::StringLiterals;

void Progress::step(const QString& name, const std::function<void()>& work) const
{
    if (stop.stop_requested())
        throw Cancelled();
    if (tell)
        tell(name);
    try {
        work();
    } catch (OperatorError& error) {
        if (stop.stop_requested())
            throw Cancelled();
        error.putBefore(u"It failed at this step: %1."_s.arg(name));
        throw;
    }
}
