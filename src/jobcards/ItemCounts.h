#pragma once

#include <QString>
#include <vector>

/// How many lines of an item there are.
struct ItemCount
{
    QString item;
    qint32 lines = 0;
};

/// Counts the lines that a condition finds, by item, in the order of the items' names; an item without lines
/// is left out, as are the lines of an item that is gone. Throws ado::DatabaseError.
std::vector<ItemCount> countByItem(const QString& condition);
