#pragma once

#include <QString>
#include <vector>

/// A client that a search has found.
struct FoundClient
{
    QString title;
    QString address;
    QString city;
    QString mobile;
};

/// The clients whose field ("Title", "Address", "City", "State", "Mobile") holds the text, in any case of
/// its letters. Throws ado::DatabaseError.
std::vector<FoundClient> searchClients(const QString& field, const QString& text);
