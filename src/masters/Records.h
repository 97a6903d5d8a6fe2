#pragma once

#include "platform/ado/Recordset.h"
#include "platform/values/Currency.h"

#include <QDate>
#include <QString>

/// What the tables hold of a client and an item beside the name, in one form for the records' screens and for
/// those that are brought in from a file. `writeTo` sets the fields of the current row.

struct ClientFields
{
    QString address, city, state, mobile;
    QDate birth; ///< invalid: none is stored

    void writeTo(ado::Recordset& row) const;
};

struct ItemFields
{
    Currency fees, workerFees;
    QString details;           ///< the template of the measurements, one a line
    QString capacity, pending; ///< numbers as texts

    void writeTo(ado::Recordset& row) const;
};

/// The lines of a measurement template without the blank ones. Blanks inside the lines stay: they belong to
/// the names.
QString tidyTemplate(const QString& details);

/// A number that was typed, as the text columns keep it: letters are 0.
QString numberText(const QString& typed);
