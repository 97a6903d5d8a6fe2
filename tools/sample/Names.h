#pragma once

#include "sample/Random.h"

#include <QString>

namespace sample {

struct Name
{
    QString title;
    bool woman = false;
};

/// A name as people of one of India's regions bear it, given name and surname of the same region. `again`
/// (0, 1, 2 ...) makes a name that is taken another one: with a middle name, an initial, the shop's own mark.
Name personName(Random& random, int again);
/// The same for a tailor of the shop.
Name workerName(Random& random, int again);

struct Place
{
    QString address;
    QString city;
    QString state;
};

/// An address in the shop's town, or now and then in a town near it.
Place place(Random& random);

/// Ten digits, one in four with a 0 before them.
QString mobile(Random& random);

} // namespace sample
