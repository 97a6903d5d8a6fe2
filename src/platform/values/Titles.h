#pragma once

#include <QString>

/// Names that people give: how they are written, and when two of them are the same.
namespace values {

/// A title as it is stored: each straight apostrophe, which ends a text in a statement, is the typographic
/// one.
QString title(QString typed);

/// Both apostrophes as the straight one, of the same length as the text: for comparing its beginnings.
QString plainApostrophes(QString text);

/// The same text for all spellings of a title: without regard to case, in every script, or to the apostrophe.
QString foldedTitle(const QString& text);

} // namespace values
