#include "platform/ado/Dialect.h"

#include "platform/ado/DatabaseError.h"
#include "platform/ado/Words.h"

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace ado::dialect {

namespace {

constexpr size_t none = std::numeric_limits<size_t>::max();

/// Where the clauses of a select begin, and what is known of it. Words in brackets belong to none.
struct Clauses
{
    explicit Clauses(const Words& words)
    {
        int depth = 0;
        for (size_t i = 0; i < words.size(); ++i) {
            const Word& word = words[i];
            if (word.is("("_L1))
                ++depth;
            else if (word.is(")"_L1))
                --depth;
            else if (depth == 0)
                note(words, i);
        }
        end = std::min({where, order, words.size()});
        bool named = from != none && from + 1 < end;
        if (named) {
            const Word& table = words[from + 1];
            named = table.kind == Word::Kind::Name || table.kind == Word::Kind::QuotedName;
            for (size_t i = from + 2; i < end; ++i)
                named = named && words[i].kind != Word::Kind::Symbol && !words[i].is("join"_L1);
        }
        plain = named && !combined;
        all = plain && from == 2 && words[1].is("*"_L1);
        body = std::min(order, words.size());
    }

    size_t from = none;
    size_t where = none;
    size_t order = none;
    size_t end = none;  ///< behind the tables
    size_t body = none; ///< behind the conditions
    bool plain = false; ///< one row of one table is one row of the result
    bool all = false;   ///< and the result has all columns

private:
    void note(const Words& words, size_t i)
    {
        static constexpr std::array combining = {"distinct", "group",  "having",
                                                 "union",    "except", "intersect"};
        static constexpr std::array aggregates = {"sum", "count", "avg", "min", "max", "total"};
        const Word& word = words[i];
        const auto isWord = [&word](const char* name) { return word.is(QLatin1StringView(name)); };
        const auto first = [i](size_t& place) {
            if (place == none)
                place = i;
        };
        const bool called = i + 1 < words.size() && words[i + 1].is("("_L1);
        const bool ordering = i + 1 < words.size() && words[i + 1].is("by"_L1);
        if (isWord("from"))
            first(from);
        else if (isWord("where"))
            first(where);
        else if (isWord("order") && ordering)
            first(order);
        else if (from == none && called && std::any_of(aggregates.begin(), aggregates.end(), isWord))
            combined = true;
        else if (std::any_of(combining.begin(), combining.end(), isWord))
            combined = true;
    }

    bool combined = false;
};

/// The terms of an ORDER BY, each turned round.
QString reversedOrder(const Words& words, size_t first)
{
    QStringList terms;
    int depth = 0;
    size_t begin = first;
    for (size_t i = first; i <= words.size(); ++i) {
        const bool atEnd = i == words.size();
        if (!atEnd && words[i].is("("_L1))
            ++depth;
        else if (!atEnd && words[i].is(")"_L1))
            --depth;
        if (!atEnd && !(depth == 0 && words[i].is(","_L1)))
            continue;
        size_t end = i;
        QString direction = u" DESC"_s;
        if (end > begin && words[end - 1].is("desc"_L1)) {
            direction.clear();
            --end;
        } else if (end > begin && words[end - 1].is("asc"_L1)) {
            --end;
        }
        terms << join(words, begin, end) + direction;
        begin = i + 1;
    }
    return terms.join(u", "_s);
}

Statement translateSelect(const Words& words)
{
    const Clauses clauses(words);
    Statement statement;
    statement.isSelect = true;
    if (!clauses.plain) {
        statement.sql = join(words);
        statement.countSql = u"SELECT count(*) FROM ("_s + statement.sql + u')';
        return statement;
    }
    QString head = join(words, 0, clauses.body);
    if (clauses.all) {
        statement.table = words[clauses.from + 1].unquoted();
        head = u"SELECT rowid, * "_s + join(words, clauses.from, clauses.body);
    }
    // Equals come in order of insertion too, whatever index serves the order.
    const bool ordered = clauses.order != none;
    statement.sql = head + u' ' +
                    (ordered ? join(words, clauses.order, words.size()) + u", rowid"_s : u"ORDER BY rowid"_s);
    const QString turned = ordered ? reversedOrder(words, clauses.order + 2) + u", "_s : QString();
    statement.reversed = head + u" ORDER BY "_s + turned + u"rowid DESC LIMIT 1"_s;
    statement.countSql = u"SELECT count(*) "_s + join(words, clauses.from, clauses.body);
    return statement;
}

Words wordsOf(const QString& sql)
{
    Words words = split(sql);
    while (!words.empty() && words.back().is(";"_L1))
        words.pop_back();
    if (words.empty())
        throw DatabaseError(u"The statement is empty."_s);
    return words;
}

} // namespace

Statement translate(const QString& sql)
{
    Words words = wordsOf(sql);
    if (words[0].is("select"_L1))
        return translateSelect(words);
    if (words[0].is("delete"_L1) && words.size() > 1 && words[1].is("*"_L1))
        words.erase(words.begin() + 1);
    Statement statement;
    statement.sql = join(words);
    return statement;
}

QString expandTableName(const QString& command)
{
    const Words words = wordsOf(command);
    const bool table = words.size() == 1 && words[0].kind != Word::Kind::Symbol;
    return table ? u"SELECT * FROM "_s + command : command;
}

QString withCondition(const QString& select, const QString& condition)
{
    const Words words = wordsOf(select);
    const Clauses clauses(words);
    if (!clauses.plain)
        return u"SELECT * FROM (%1) WHERE %2"_s.arg(join(words), condition);
    QString sql = join(words, 0, clauses.end) + u" WHERE "_s + condition;
    if (clauses.where != none)
        sql += u" AND ("_s + join(words, clauses.where + 1, clauses.body) + u')';
    return sql + u' ' + join(words, clauses.body, words.size());
}

} // namespace ado::dialect
