#include "platform/values/Numbers.h"

#include "platform/values/Decimal.h"
#include "platform/values/Errors.h"

#include <QLocale>
#include <cmath>
#include <limits>
#include <map>

using namespace Qt::StringLiterals;

namespace values {

namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

bool isSign(QChar c) { return c == u'+' || c == u'-'; }

/// Walks over a text and copies what belongs to its leading number. Blanks count for nothing, wherever they
/// stand.
class LeadingNumber
{
public:
    explicit LeadingNumber(const QString& text)
        : m_text(text)
    {
    }

    QByteArray read()
    {
        if (isSign(peek()))
            take();
        bool any = takeDigits();
        if (peek() == u'.') {
            take();
            any = takeDigits() || any;
        }
        if (!any)
            return "0";
        takeExponent();
        return m_number;
    }

private:
    QChar peek()
    {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
        return m_at < m_text.size() ? m_text[m_at] : QChar();
    }
    void take() { m_number.append(m_text[m_at++].toLatin1()); }
    bool takeDigits()
    {
        bool any = false;
        for (; isDigit(peek()); any = true)
            take();
        return any;
    }
    void takeExponent()
    {
        if (peek().toLower() != u'e')
            return;
        const QByteArray mantissa = m_number;
        take();
        if (isSign(peek()))
            take();
        if (!takeDigits())
            m_number = mantissa;
    }

    const QString& m_text;
    qsizetype m_at = 0;
    QByteArray m_number;
};

using Beyond = OverflowError::Beyond;

template <class Integer>
Integer narrow(qint64 number, const QString& field)
{
    using Limits = std::numeric_limits<Integer>;
    if (number < Limits::min())
        throw OverflowError(field, QString::number(number), Beyond::Lowest, QString::number(Limits::min()));
    if (number > Limits::max())
        throw OverflowError(field, QString::number(number), Beyond::Highest, QString::number(Limits::max()));
    return static_cast<Integer>(number);
}

template <class Integer>
Integer roundTo(double number, const QString& field)
{
    // Whole numbers are exact up to here, and every narrower place ends far below.
    constexpr double exact = 9.0e15;
    using Limits = std::numeric_limits<Integer>;
    const QString named = field.isEmpty() ? u"the number"_s : field;
    if (number <= -exact)
        throw OverflowError(named, {}, Beyond::Lowest, QString::number(Limits::min()));
    if (!(number < exact))
        throw OverflowError(named, {}, Beyond::Highest, QString::number(Limits::max()));
    return narrow<Integer>(static_cast<qint64>(std::nearbyint(number)), field);
}

/// One section of a number pattern: literal text, digit places, literal text.
struct NumberPattern
{
    explicit NumberPattern(const QString& section)
    {
        qsizetype begin = 0;
        while (begin < section.size() && !u"0#"_s.contains(section[begin]))
            ++begin;
        qsizetype end = begin;
        while (end < section.size() && u"0#,."_s.contains(section[end]))
            ++end;
        before = section.left(begin);
        after = section.mid(end);
        const QString body = section.mid(begin, end - begin);
        const QString whole = body.section(u'.', 0, 0);
        const QString fraction = body.section(u'.', 1);
        grouped = whole.contains(u',');
        minWhole = static_cast<int>(whole.count(u'0'));
        minPlaces = static_cast<int>(fraction.count(u'0'));
        maxPlaces = minPlaces + static_cast<int>(fraction.count(u'#'));
    }

    QString text(const Decimal& rounded) const
    {
        QString whole = QString::fromLatin1(rounded.digits.chopped(rounded.places));
        QString fraction = QString::fromLatin1(rounded.digits.last(rounded.places));
        while (fraction.size() > minPlaces && fraction.endsWith(u'0'))
            fraction.chop(1);
        if (minWhole == 0 && whole == "0"_L1)
            whole.clear();
        whole = whole.rightJustified(minWhole, u'0');
        if (grouped) {
            for (qsizetype at = whole.size() - 3; at > 0; at -= 3)
                whole.insert(at, u',');
        }
        if (!fraction.isEmpty())
            fraction.prepend(u'.');
        return before + whole + fraction + after;
    }

    QString before;
    QString after;
    bool grouped = false;
    int minWhole = 0;
    int minPlaces = 0;
    int maxPlaces = 0;
};

/// A pattern: the section for all numbers, and its own for negative ones where it has one.
struct Pattern
{
    explicit Pattern(const QString& pattern)
        : main(pattern.section(u';', 0, 0))
        , negative(pattern.section(u';', 1, 1))
        , hasNegative(!pattern.section(u';', 1, 1).isEmpty())
    {
    }
    NumberPattern main;
    NumberPattern negative;
    bool hasNegative;
};

/// The patterns are the program's own and few: each is parsed once.
const Pattern& parsed(const QString& pattern)
{
    static std::map<QString, Pattern> known;
    return known.try_emplace(pattern, pattern).first->second;
}

} // namespace

double Val(const QString& text)
{
    bool fits = false;
    const double number = LeadingNumber(text).read().toDouble(&fits);
    return fits && std::isfinite(number) ? number : 0.0;
}

qint16 CInt(double number, const QString& field) { return roundTo<qint16>(number, field); }

qint32 CLng(double number, const QString& field) { return roundTo<qint32>(number, field); }

qint16 toInt16(qint64 number, const QString& field) { return narrow<qint16>(number, field); }

qint32 toInt32(qint64 number, const QString& field) { return narrow<qint32>(number, field); }

QString CStr(double number)
{
    if (number == 0.0)
        return u"0"_s;
    const char form = std::fabs(number) < 1e15 ? 'f' : 'g';
    return QString::number(number, form, QLocale::FloatingPointShortest);
}

QString Format(double number, const QString& pattern)
{
    if (!std::isfinite(number))
        throw OverflowError(u"the number"_s, {}, number < 0 ? Beyond::Lowest : Beyond::Highest,
                            CStr(std::copysign(std::numeric_limits<double>::max(), number)));
    const Pattern& sections = parsed(pattern);
    Decimal rounded(number);
    const bool ownSection = rounded.negative && sections.hasNegative;
    rounded.round((ownSection ? sections.negative : sections.main).maxPlaces, Decimal::Half::AwayFromZero);
    if (!rounded.negative || rounded.isZero())
        return sections.main.text(rounded);
    return ownSection ? sections.negative.text(rounded) : u'-' + sections.main.text(rounded);
}

QString formatMoneyText(const QString& text) { return Format(Val(text), u"0.00"_s); }

} // namespace values
