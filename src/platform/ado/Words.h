#pragma once

#include <QString>
#include <vector>

/// The words that a statement is made of.
namespace ado::dialect {

struct Word
{
    enum class Kind { Name, QuotedName, Number, Text, Symbol };

    Kind kind;
    QString text;    ///< in the engine's form: a date is a quoted ISO text already
    bool spaced;     ///< blanks stood before it
    qsizetype begin; ///< where it stands in the statement
    qsizetype end;

    /// Matches a key word or a symbol in any case.
    bool is(QLatin1StringView wanted) const;
    /// A name without its quotes, whatever kind of quote it wears.
    QString unquoted() const;
};

using Words = std::vector<Word>;

/// Cuts a statement into words. Throws DatabaseError for an open quote and for a date between "#" that is
/// none.
Words split(const QString& sql);

/// Joins the words [first, last) again. What ran together is set apart where the engine would misread it:
/// "5and".
QString join(const Words& words, size_t first, size_t last);
inline QString join(const Words& words) { return join(words, 0, words.size()); }

} // namespace ado::dialect
