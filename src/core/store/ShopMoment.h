#pragma once

#include "core/store/DE.h"
#include "core/store/Session.h"

/// What a screen has read of the shop holds until something is written, or the working date changes: two
/// equal moments have the same shop.
struct ShopMoment
{
    ado::Connection::Version version;
    QDate day;

    static ShopMoment now() { return {DE.connection().version(), session.WorkingDate}; }
    bool operator==(const ShopMoment&) const = default;
};
