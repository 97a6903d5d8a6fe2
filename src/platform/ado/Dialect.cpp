#include "platform/ado/Dialect.h"

#include "platform/ado/DatabaseError.h"
#include "platform/ado/Words.h"

#include <algorithm>
#include <array>
#include <limits>

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
            if (word.is(QLatin1StringView("(")))
                ++depth;
            else if (word.is(QLatin1StringView(")")))
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
                named =
                    named && words[i].kind != Word::Kind::Symbol && !words[i].is(QLatin1StringView("join"));
        }
        plain = named && !combined;
        all = plain && from == 2 && words[1].is(QLatin1StringView("*"));
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
        const bool called = i + 1 < words.size() && words[i + 1].is(QLatin1StringView("("));
        const bool ordering = i + 1 < words.size() && words[i + 1].is(QLatin1StringView("by"));
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
        if (!atEnd && words[i].is(QLatin1StringView("(")))
            ++depth;
        else if (!atEnd && words[i].is(QLatin1StringView(")")))
            --depth;
        if (!atEnd && !(depth == 0 && words[i].is(QLatin1StringView(","))))
            continue;
        size_t end = i;
        QString direction = QStringLiteral(" DESC");
        if (end > begin && words[end - 1].is(QLatin1StringView("desc"))) {
            direction.clear();
            --end;
        } else if (end > begin && words[end - 1].is(QLatin1StringView("asc"))) {
            --end;
        }
        terms << join(words, begin, end) + direction;
        begin = i + 1;
    }
    return terms.join(QStringLiteral(", "));
}

Statement translateSelect(const Words& words)
{
    const Clauses clauses(words);
    Statement statement;
    statement.isSelect = true;
    if (!clauses.plain) {
        statement.sql = join(words);
        statement.countSql = QStringLiteral("SELECT count(*) FROM (") + statement.sql + u')';
        return statement;
    }
    QString head = join(words, 0, clauses.body);
    if (clauses.all) {
        statement.table = words[clauses.from + 1].unquoted();
        head = QStringLiteral("SELECT rowid, * ") + join(words, clauses.from, clauses.body);
    }
    // Equals come in order of insertion too, whatever index serves the order.
    const bool ordered = clauses.order != none;
    statement.sql = head + u' ' +
                    (ordered ? join(words, clauses.order, words.size()) + QStringLiteral(", rowid")
                             : QStringLiteral("ORDER BY rowid"));
    const QString turned =
        ordered ? reversedOrder(words, clauses.order + 2) + QStringLiteral(", ") : QString();
    statement.reversed = head + QStringLiteral(" ORDER BY ") + turned + QStringLiteral("rowid DESC LIMIT 1");
    statement.countSql = QStringLiteral("SELECT count(*) ") + join(words, clauses.from, clauses.body);
    return statement;
}

Words wordsOf(const QString& sql)
{
    Words words = split(sql);
    while (!words.empty() && words.back().is(QLatin1StringView(";")))
        words.pop_back();
    if (words.empty())
        throw DatabaseError(QStringLiteral("The statement is empty."));
    return words;
}

} // namespace

Statement translate(const QString& sql)
{
    Words words = wordsOf(sql);
    if (words[0].is(QLatin1StringView("select")))
        return translateSelect(words);
    if (words[0].is(QLatin1StringView("delete")) && words.size() > 1 && words[1].is(QLatin1StringView("*")))
        words.erase(words.begin() + 1);
    Statement statement;
    statement.sql = join(words);
    return statement;
}

QString expandTableName(const QString& command)
{
    const Words words = wordsOf(command);
    const bool table = words.size() == 1 && words[0].kind != Word::Kind::Symbol;
    return table ? QStringLiteral("SELECT * FROM ") + command : command;
}

QString withCondition(const QString& select, const QString& condition)
{
    const Words words = wordsOf(select);
    const Clauses clauses(words);
    if (!clauses.plain)
        return QStringLiteral("SELECT * FROM (%1) WHERE %2").arg(join(words), condition);
    QString sql = join(words, 0, clauses.end) + QStringLiteral(" WHERE ") + condition;
    if (clauses.where != none)
        sql += QStringLiteral(" AND (") + join(words, clauses.where + 1, clauses.body) + u')';
    return sql + u' ' + join(words, clauses.body, words.size());
}

} // namespace ado::dialect
