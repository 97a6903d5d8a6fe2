#pragma once

#include <QString>

/// What stands of the shop on its papers and screens.
struct ShopProfile
{
    QString name;
    QString address1;
    QString address2;
    QString address3;
    QString contacts;

    /// Reads the shop's one record. Throws ado::DatabaseError, and ado::NoCurrentRecordError without one.
    static ShopProfile read();
    /// Writes it over the record. Throws the same.
    void write() const;
};

/// Takes the shop's record into the session; a field that was never written leaves the session's. A file
/// without a record gets one named "KORVANE", unless it is only looked at. Returns the name. Throws
/// ado::DatabaseError.
QString loadShopProfile();
