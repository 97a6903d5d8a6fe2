#pragma once

#include <QString>
#include <vector>

/// The tokens that a statement is made of.
namespace ado::dialect {

struct Token
{
    enum class Kind { Name, QuotedName, Number, Text, Symbol };

    Kind kind;
    QString text;    ///< in the engine's form: a date is a quoted ISO text already
    bool spaced;     ///< blanks stood before it
    qsizetype begin; ///< where it stands in the statement
    qsizetype end;

    /// Matches a keyword or a symbol in any case.
    bool is(QLatin1StringView wanted) const;
    /// A name without its quotes, of any kind.
    QString unquoted() const;
};

using Tokens = std::vector<Token>;

/// Cuts a statement into tokens. Throws DatabaseError for an open quote and for a date between "#" that is
/// none.
Tokens split(const QString& sql);

/// Joins the tokens [first, last) again. What ran together is set apart where the engine would misread it:
/// "5and".
QString join(const Tokens& tokens, size_t first, size_t last);
inline QString join(const Tokens& tokens) { return join(tokens, 0, tokens.size()); }

} // namespace ado::dialect
