#include "platform/ado/Dialect.h"

#include "platform/ado/DatabaseError.h"
#include "platform/ado/Tokens.h"

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace ado::dialect {

namespace {

constexpr size_t none = std::numeric_limits<size_t>::max();

/// Where the clauses of a select begin, and what is known of it. Tokens in brackets belong to none.
struct Clauses
{
    explicit Clauses(const Tokens& tokens)
    {
        int depth = 0;
        for (size_t i = 0; i < tokens.size(); ++i) {
            const Token& token = tokens[i];
            if (token.is("("_L1))
                ++depth;
            else if (token.is(")"_L1))
                --depth;
            else if (depth == 0)
                note(tokens, i);
        }
        end = std::min({where, order, tokens.size()});
        bool named = from != none && from + 1 < end;
        if (named) {
            const Token& table = tokens[from + 1];
            named = table.kind == Token::Kind::Name || table.kind == Token::Kind::QuotedName;
            for (size_t i = from + 2; i < end; ++i)
                named = named && tokens[i].kind != Token::Kind::Symbol && !tokens[i].is("join"_L1);
        }
        plain = named && !combined;
        all = plain && from == 2 && tokens[1].is("*"_L1);
        body = std::min(order, tokens.size());
    }

    size_t from = none;
    size_t where = none;
    size_t order = none;
    size_t end = none;  ///< behind the tables
    size_t body = none; ///< behind the conditions
    bool plain = false; ///< one row of one table is one row of the result
    bool all = false;   ///< and the result has all columns

private:
    void note(const Tokens& tokens, size_t i)
    {
        static constexpr std::array combining = {"distinct", "group",  "having",
                                                 "union",    "except", "intersect"};
        static constexpr std::array aggregates = {"sum", "count", "avg", "min", "max", "total"};
        const Token& token = tokens[i];
        const auto isToken = [&token](const char* name) { return token.is(QLatin1StringView(name)); };
        const auto first = [i](size_t& place) {
            if (place == none)
                place = i;
        };
        const bool called = i + 1 < tokens.size() && tokens[i + 1].is("("_L1);
        const bool ordering = i + 1 < tokens.size() && tokens[i + 1].is("by"_L1);
        if (isToken("from"))
            first(from);
        else if (isToken("where"))
            first(where);
        else if (isToken("order") && ordering)
            first(order);
        else if (from == none && called && std::any_of(aggregates.begin(), aggregates.end(), isToken))
            combined = true;
        else if (std::any_of(combining.begin(), combining.end(), isToken))
            combined = true;
    }

    bool combined = false;
};

/// The terms of an ORDER BY, each turned round.
QString reversedOrder(const Tokens& tokens, size_t first)
{
    QStringList terms;
    int depth = 0;
    size_t begin = first;
    for (size_t i = first; i <= tokens.size(); ++i) {
        const bool atEnd = i == tokens.size();
        if (!atEnd && tokens[i].is("("_L1))
            ++depth;
        else if (!atEnd && tokens[i].is(")"_L1))
            --depth;
        if (!atEnd && !(depth == 0 && tokens[i].is(","_L1)))
            continue;
        size_t end = i;
        QString direction = u" DESC"_s;
        if (end > begin && tokens[end - 1].is("desc"_L1)) {
            direction.clear();
            --end;
        } else if (end > begin && tokens[end - 1].is("asc"_L1)) {
            --end;
        }
        terms << join(tokens, begin, end) + direction;
        begin = i + 1;
    }
    return terms.join(u", "_s);
}

/// The order of a plain select. Equals come in order of insertion too, whatever index serves the order.
QString orderOf(const Tokens& tokens, const Clauses& clauses)
{
    return clauses.order != none ? join(tokens, clauses.order, tokens.size()) + u", rowid"_s
                                 : u"ORDER BY rowid"_s;
}

Statement translateSelect(const Tokens& tokens)
{
    const Clauses clauses(tokens);
    Statement statement;
    statement.isSelect = true;
    if (!clauses.plain) {
        statement.sql = join(tokens);
        statement.countSql = u"SELECT count(*) FROM ("_s + statement.sql + u')';
        return statement;
    }
    QString head = join(tokens, 0, clauses.body);
    if (clauses.all) {
        statement.table = tokens[clauses.from + 1].unquoted();
        head = u"SELECT rowid, * "_s + join(tokens, clauses.from, clauses.body);
    }
    statement.sql = head + u' ' + orderOf(tokens, clauses);
    const QString turned =
        clauses.order != none ? reversedOrder(tokens, clauses.order + 2) + u", "_s : QString();
    statement.reversed = head + u" ORDER BY "_s + turned + u"rowid DESC LIMIT 1"_s;
    statement.countSql = u"SELECT count(*) "_s + join(tokens, clauses.from, clauses.body);
    return statement;
}

Tokens tokensOf(const QString& sql)
{
    Tokens tokens = split(sql);
    while (!tokens.empty() && tokens.back().is(";"_L1))
        tokens.pop_back();
    if (tokens.empty())
        throw DatabaseError(u"The statement is empty."_s);
    return tokens;
}

} // namespace

Statement translate(const QString& sql)
{
    Tokens tokens = tokensOf(sql);
    if (tokens[0].is("select"_L1))
        return translateSelect(tokens);
    if (tokens[0].is("delete"_L1) && tokens.size() > 1 && tokens[1].is("*"_L1))
        tokens.erase(tokens.begin() + 1);
    Statement statement;
    statement.sql = join(tokens);
    return statement;
}

QString expandTableName(const QString& command)
{
    const Tokens tokens = tokensOf(command);
    const bool table = tokens.size() == 1 && tokens[0].kind != Token::Kind::Symbol;
    return table ? u"SELECT * FROM "_s + command : command;
}

QString withColumns(const QString& select, const QStringList& columns)
{
    const Tokens tokens = tokensOf(select);
    if (const Clauses clauses(tokens); tokens[0].is("select"_L1) && clauses.all)
        return u"SELECT "_s + columns.join(u',') + u' ' + join(tokens, clauses.from, clauses.body) + u' ' +
               orderOf(tokens, clauses);
    return translate(select).sql;
}

QString withCondition(const QString& select, const QString& condition)
{
    const Tokens tokens = tokensOf(select);
    const Clauses clauses(tokens);
    if (!clauses.plain)
        return u"SELECT * FROM (%1) WHERE %2"_s.arg(join(tokens), condition);
    QString sql = join(tokens, 0, clauses.end) + u" WHERE "_s + condition;
    if (clauses.where != none)
        sql += u" AND ("_s + join(tokens, clauses.where + 1, clauses.body) + u')';
    return sql + u' ' + join(tokens, clauses.body, tokens.size());
}

} // namespace ado::dialect
