#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

/// What a garment's measurements begin with: the client's last order of it, else the catalogue's template.
/// All throw ado::DatabaseError.

/// Names and values of a line's measurements, one of each to a row.
struct Measurements
{
    QStringList names;
    QStringList values;

    /// From the two texts that a line keeps, a row to a line of text.
    static Measurements split(const QString& names, const QString& values);
    QString nameText() const;
    QString valueText() const;
};

/// The client's last order of a garment; nothing where there is none.
struct LastOrder
{
    QDate day;
    Measurements measurements;
    std::optional<QString> clientRemark; ///< none where it was never written

    static std::optional<LastOrder> of(qint32 item, qint32 client);
};

/// The lines of an item's template, "name" or "name=value"; none for an item that is gone.
QStringList measurementTemplate(qint32 item);
