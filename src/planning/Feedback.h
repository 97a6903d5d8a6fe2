#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

/// The client's opinion of one finished line.
struct Feedback
{
    std::optional<QString> score; ///< as stored: a number from 0 to 5; none where it was never written
    std::optional<QString> text;

    /// Reads a line's. Throws ado::DatabaseError, and ado::NoCurrentRecordError for a line that is gone.
    static Feedback of(qint32 lineId);
};

/// Keeps a line's feedback. Throws the same.
void writeFeedback(qint32 lineId, qint16 score, const QString& text);
