#pragma once

#include <QString>
#include <vector>

namespace values {

/// A contact as telephones write it. What it does not say is empty.
struct VCard
{
    QString name;
    QString mobile; ///< the number that is marked as a mobile's, else the first
    QString street, city, region;
    QString birth; ///< as 1990-05-17; empty too where the year is not told
    QString email;
    QString note;
};

bool isVCards(const QString& text);

/// Reads the contacts of a file of vCards, versions 2.1, 3.0 and 4.0. Throws OperatorError for a contact
/// without an end, as in a file that was cut.
std::vector<VCard> readVCards(const QString& text);

} // namespace values
