#pragma once

#include "jobcards/LastOrder.h"

#include <QHash>
#include <vector>

/// Tells which measurements of a garment look like a slip of the pen before cloth is cut to them. It compares
/// with the client's last order of the garment, and where there was none with what the shop's latest orders
/// of it say for somebody of this build. It advises only: nothing is blocked.
class MeasurementGuard
{
public:
    /// Knows nothing, doubts nothing.
    MeasurementGuard() = default;

    /// For a garment that is ordered by a client. For a line that is stored already, only what was ordered
    /// before it counts; 0 for a new line. Throws ado::DatabaseError.
    static MeasurementGuard of(qint32 item, qint32 client, qint32 line = 0);

    /// To each row why its value should be looked at once more, such as "last time 32" or "here mostly 28 to
    /// 40"; empty for all others, and wherever there is no number.
    QStringList doubts(const Measurements& typed) const;

    /// The measure that a text states: "14.5", "14,5", "14 1/2", "14½", each also with an inch sign or "cm".
    /// Nothing for words.
    static std::optional<double> measure(const QString& text);

private:
    struct Measured
    {
        QString caption;
        QString text;
        std::optional<double> value;
    };
    /// What the shop's latest orders say of one measurement. "In build" are values in parts of what the other
    /// measurements of their order let expect.
    struct Usual
    {
        double middle = 0; ///< the median
        double spread = 0;
        double spreadInBuild = 0;
        std::vector<double> values;
        std::vector<double> inBuild;
    };

    static std::vector<Measured> read(const Measurements& measurements);
    void learn(const std::vector<std::vector<Measured>>& orders);
    std::optional<double> expectedOf(const std::vector<Measured>& rows, size_t here) const;
    QString doubt(const std::vector<Measured>& rows, size_t here) const;

    QHash<QString, Measured> m_last; ///< with a number, by caption
    QHash<QString, Usual> m_usual;   ///< by caption
};
