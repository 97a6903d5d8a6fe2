#pragma once

#include <QString>
#include <vector>

/// A client that a search has found.
struct FoundClient
{
    qint32 id = 0;
    QString title;
    QString address;
    QString city;
    QString mobile;
};

/// The clients whose field ("Title", "Address", "City", "State", "Mobile") holds the text, in any case of
/// its letters. A part of a mobile number is found by its digits, whatever stands between them, with or
/// without the country's 91 or a 0 in front; three digits or more also where names are searched. There the
/// number of a job card, or the code of one of its lines, finds the card's client too, who comes first.
/// Throws ado::DatabaseError.
std::vector<FoundClient> searchClients(const QString& field, const QString& text);
