#include "core/store/LivingShop.h"

#include "core/store/Session.h"
#include "platform/values/Errors.h"

using namespace Qt::StringLiterals;

QString lookRefusal()
{
    return u"This is the shop as it was on %1, only to be looked at: nothing in it can be "
           "changed."_s.arg(session.LookedAt);
}

void requireLivingShop()
{
    if (!session.LookedAt.isEmpty())
        throw OperatorError(lookRefusal());
}
