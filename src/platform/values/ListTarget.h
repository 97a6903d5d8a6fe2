#pragma once

#include <QStringList>

/// Something that shows a list of texts: a list box or a combo. Lets code without widgets fill one.
class ListTarget
{
public:
    virtual ~ListTarget() = default;
    virtual void Clear() = 0;
    /// Adds the texts at the end, in their order.
    virtual void AddItems(const QStringList& texts) = 0;
};
