#pragma once

#include <QString>
#include <vector>

namespace sample {

enum class Wearer { Man, Woman, Anyone };
enum class Craft { Light, Heavy, Ladies };   ///< shirts and trousers; coats; ladies' wear
enum class Shape { Top, Legs, Coat, Dress }; ///< as a sketch shows it

/// A garment of the catalogue.
struct Garment
{
    const char* name;
    Wearer wearer;
    Craft craft;
    Shape shape;
    int share;    ///< how often it is ordered, against the others
    int fees;     ///< rupees for one piece
    int wage;     ///< rupees to the worker
    int days;     ///< from order to delivery, about
    int capacity; ///< pieces that the shop can make in a day
    /// The measurements, divided by "|": a name with the usual inches behind it, or a name, "=" and a
    /// default.
    const char* measurements;

    /// The template: a measurement a line, with its default where it has one.
    QString details() const;
    /// The names alone, as a line of a card keeps them.
    QString names() const;
    /// The measures of a person of a size, in percent of the usual one. Everybody is a little longer here and
    /// wider there, and changes a little from order to order.
    QString values(qint32 person, int size, int order) const;
};

/// The twenty garments, in the order of their numbers (from 1) in the shop's catalogue.
const std::vector<Garment>& catalogue();

/// Adds them to the shop's catalogue.
void writeCatalogue();

} // namespace sample
