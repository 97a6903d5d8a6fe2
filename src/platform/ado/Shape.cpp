#include "platform/ado/Dialect.h"

#include "platform/ado/DatabaseError.h"
#include "platform/ado/Tokens.h"

using namespace Qt::StringLiterals;

namespace ado::dialect {

namespace {

/// Reads a SHAPE query token by token.
class ShapeReader
{
public:
    explicit ShapeReader(const QString& sql)
        : m_sql(sql)
        , m_tokens(split(sql))
    {
    }

    Shape read()
    {
        expect("shape");
        const QString first = readBraces();
        const QString alias = readAlias();
        Shape shape = accept("append") ? readAppend(first) : readCompute(first, alias);
        accept(";");
        if (m_at != m_tokens.size())
            fail();
        return shape;
    }

private:
    /// APPEND ({child} AS b RELATE parentField TO childField) AS chapter
    Shape readAppend(const QString& parents)
    {
        Shape shape;
        shape.parentSql = parents;
        expect("(");
        shape.childSql = readBraces();
        shape.chapter = readAlias();
        expect("relate");
        shape.parentField = readName();
        expect("to");
        shape.childField = readName();
        expect(")");
        if (const QString outer = readAlias(); !outer.isEmpty())
            shape.chapter = outer;
        return shape;
    }

    /// COMPUTE a, SUM(a.'field') AS name BY 'field'
    Shape readCompute(const QString& rows, const QString& alias)
    {
        expect("compute");
        if (alias.isEmpty() || readName().compare(alias, Qt::CaseInsensitive) != 0)
            fail();
        expect(",");
        expect("sum");
        expect("(");
        if (readName().compare(alias, Qt::CaseInsensitive) != 0)
            fail();
        expect(".");
        const QString summed = readName();
        expect(")");
        expect("as");
        const QString sumName = readName();
        expect("by");
        const QString group = readName();
        Shape shape;
        shape.childSql = rows;
        shape.chapter = alias;
        shape.parentField = group;
        shape.childField = group;
        shape.parentSql = u"SELECT sum(`%1`) AS `%2`, `%3` FROM (%4) GROUP BY `%3` ORDER BY `%3`"_s.arg(
            summed, sumName, group, rows);
        return shape;
    }

    QString readBraces()
    {
        const qsizetype begin = expect("{").end;
        while (m_at < m_tokens.size() && !m_tokens[m_at].is("}"_L1))
            ++m_at;
        const qsizetype end = expect("}").begin;
        return m_sql.mid(begin, end - begin).trimmed();
    }

    QString readAlias() { return accept("as") ? readName() : QString(); }

    QString readName()
    {
        if (m_at >= m_tokens.size() || m_tokens[m_at].kind == Token::Kind::Symbol)
            fail();
        return m_tokens[m_at++].unquoted();
    }

    bool accept(const char* wanted)
    {
        const bool found = m_at < m_tokens.size() && m_tokens[m_at].is(QLatin1StringView(wanted));
        m_at += found ? 1 : 0;
        return found;
    }

    const Token& expect(const char* wanted)
    {
        if (!accept(wanted))
            fail();
        return m_tokens[m_at - 1];
    }

    [[noreturn]] void fail() const { throw DatabaseError(u"Syntax error in SHAPE command: %1"_s.arg(m_sql)); }

    const QString m_sql;
    const Tokens m_tokens;
    size_t m_at = 0;
};

} // namespace

std::optional<Shape> parseShape(const QString& sql)
{
    if (!QStringView(sql).trimmed().startsWith("shape"_L1, Qt::CaseInsensitive))
        return std::nullopt;
    return ShapeReader(sql).read();
}

} // namespace ado::dialect
