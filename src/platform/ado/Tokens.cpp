#include "platform/ado/Tokens.h"

#include "platform/ado/DatabaseError.h"
#include "platform/ado/StoredForm.h"

using namespace Qt::StringLiterals;

namespace ado::dialect {

namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

bool beginsName(QChar c) { return c.isLetter() || c == u'_' || c.isSurrogate(); }

bool continuesName(QChar c) { return beginsName(c) || isDigit(c) || c.isMark() || c == u'$'; }

/// Behind the closing mark of what opens at `begin`; a doubled mark stands for itself.
qsizetype closing(const QString& sql, qsizetype begin, QChar mark)
{
    for (qsizetype i = begin + 1; i < sql.size(); ++i) {
        if (sql[i] != mark)
            continue;
        if (i + 1 >= sql.size() || sql[i + 1] != mark)
            return i + 1;
        ++i;
    }
    throw DatabaseError(u"Syntax error in the statement: %1 is not closed: %2"_s.arg(mark).arg(sql));
}

qsizetype numberEnd(const QString& sql, qsizetype begin)
{
    const auto digitsEnd = [&sql](qsizetype i) {
        while (i < sql.size() && isDigit(sql[i]))
            ++i;
        return i;
    };
    qsizetype end = digitsEnd(begin);
    if (end < sql.size() && sql[end] == u'.')
        end = digitsEnd(end + 1);
    if (end < sql.size() && sql[end].toLower() == u'e') {
        qsizetype exponent = end + 1;
        if (exponent < sql.size() && (sql[exponent] == u'-' || sql[exponent] == u'+'))
            ++exponent;
        if (exponent < sql.size() && isDigit(sql[exponent]))
            end = digitsEnd(exponent);
    }
    return end;
}

/// `#17-11-1985#` as the engine's text.
QString dateText(const QString& marked)
{
    const auto date = storedDate(marked.mid(1, marked.size() - 2));
    if (!date)
        throw DatabaseError(u"Syntax error in date: %1"_s.arg(marked));
    return u'\'' + *date + u'\'';
}

Token wordAt(const QString& sql, qsizetype begin)
{
    const QChar first = sql[begin];
    const auto token = [&](Token::Kind kind, qsizetype end) {
        return Token{kind, sql.mid(begin, end - begin), false, begin, end};
    };
    if (beginsName(first)) {
        qsizetype end = begin + 1;
        while (end < sql.size() && continuesName(sql[end]))
            ++end;
        return token(Token::Kind::Name, end);
    }
    if (isDigit(first) || (first == u'.' && begin + 1 < sql.size() && isDigit(sql[begin + 1])))
        return token(Token::Kind::Number, numberEnd(sql, begin));
    if (first == u'\'')
        return token(Token::Kind::Text, closing(sql, begin, first));
    if (first == u'`' || first == u'"')
        return token(Token::Kind::QuotedName, closing(sql, begin, first));
    if (first == u'[')
        return token(Token::Kind::QuotedName, closing(sql, begin, u']'));
    if (first == u'#') {
        Token date = token(Token::Kind::Text, closing(sql, begin, first));
        date.text = dateText(date.text);
        return date;
    }
    return token(Token::Kind::Symbol, begin + 1);
}

bool isWordLike(const Token& token) { return token.kind != Token::Kind::Symbol; }

/// Would the engine read the two as something else, if nothing stood between them?
bool mustBeApart(const Token& left, const Token& right)
{
    if (isWordLike(left) && isWordLike(right))
        return true;
    return (left.text == u"-" && right.text == u"-") || (left.text == u"/" && right.text == u"*");
}

} // namespace

bool Token::is(QLatin1StringView wanted) const
{
    return (kind == Kind::Name || kind == Kind::Symbol) && text.compare(wanted, Qt::CaseInsensitive) == 0;
}

QString Token::unquoted() const
{
    return kind == Kind::QuotedName || kind == Kind::Text ? text.mid(1, text.size() - 2) : text;
}

Tokens split(const QString& sql)
{
    Tokens tokens;
    bool spaced = false;
    for (qsizetype i = 0; i < sql.size();) {
        if (sql[i].isSpace()) {
            spaced = true;
            ++i;
            continue;
        }
        tokens.push_back(wordAt(sql, i));
        tokens.back().spaced = spaced;
        spaced = false;
        i = tokens.back().end;
    }
    return tokens;
}

QString join(const Tokens& tokens, size_t first, size_t last)
{
    QString text;
    for (size_t i = first; i < last; ++i) {
        if (i > first && (tokens[i].spaced || mustBeApart(tokens[i - 1], tokens[i])))
            text += u' ';
        text += tokens[i].text;
    }
    return text;
}

} // namespace ado::dialect
