#include "platform/values/Numbers.h"

#include "platform/values/Decimal.h"
#include "platform/values/Errors.h"

#include <QLocale>
#include <cmath>
#include <limits>
#include <map>

namespace values {

namespace {

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

bool isSign(QChar c) { return c == QLatin1Char('+') || c == QLatin1Char('-'); }

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
        if (peek() == QLatin1Char('.')) {
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
        if (peek().toLower() != QLatin1Char('e'))
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

template <class Integer>
Integer narrow(qint64 number)
{
    if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max())
        throw OverflowError();
    return static_cast<Integer>(number);
}

template <class Integer>
Integer roundTo(double number)
{
    constexpr double beyond =
        9.0e15; // whole numbers are exact up to here, and every narrower place ends far below
    if (!(std::fabs(number) < beyond))
        throw OverflowError();
    return narrow<Integer>(static_cast<qint64>(std::nearbyint(number)));
}

/// One section of a number pattern: literal text, digit places, literal text.
struct NumberPattern
{
    explicit NumberPattern(const QString& section)
    {
        qsizetype begin = 0;
        while (begin < section.size() && !QStringLiteral("0#").contains(section[begin]))
            ++begin;
        qsizetype end = begin;
        while (end < section.size() && QStringLiteral("0#,.").contains(section[end]))
            ++end;
        before = section.left(begin);
        after = section.mid(end);
        const QString body = section.mid(begin, end - begin);
        const QString whole = body.section(QLatin1Char('.'), 0, 0);
        const QString fraction = body.section(QLatin1Char('.'), 1);
        grouped = whole.contains(QLatin1Char(','));
        minWhole = static_cast<int>(whole.count(QLatin1Char('0')));
        minPlaces = static_cast<int>(fraction.count(QLatin1Char('0')));
        maxPlaces = minPlaces + static_cast<int>(fraction.count(QLatin1Char('#')));
    }

    QString text(const Decimal& rounded) const
    {
        QString whole = QString::fromLatin1(rounded.digits.chopped(rounded.places));
        QString fraction = QString::fromLatin1(rounded.digits.last(rounded.places));
        while (fraction.size() > minPlaces && fraction.endsWith(QLatin1Char('0')))
            fraction.chop(1);
        if (minWhole == 0 && whole == QLatin1String("0"))
            whole.clear();
        whole = whole.rightJustified(minWhole, QLatin1Char('0'));
        if (grouped) {
            for (qsizetype at = whole.size() - 3; at > 0; at -= 3)
                whole.insert(at, QLatin1Char(','));
        }
        if (!fraction.isEmpty())
            fraction.prepend(QLatin1Char('.'));
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
        : main(pattern.section(QLatin1Char(';'), 0, 0))
        , negative(pattern.section(QLatin1Char(';'), 1, 1))
        , hasNegative(!pattern.section(QLatin1Char(';'), 1, 1).isEmpty())
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

qint16 CInt(double number) { return roundTo<qint16>(number); }

qint32 CLng(double number) { return roundTo<qint32>(number); }

qint16 toInt16(qint64 number) { return narrow<qint16>(number); }

qint32 toInt32(qint64 number) { return narrow<qint32>(number); }

QString CStr(double number)
{
    if (number == 0.0)
        return QStringLiteral("0");
    const char form = std::fabs(number) < 1e15 ? 'f' : 'g';
    return QString::number(number, form, QLocale::FloatingPointShortest);
}

QString Format(double number, const QString& pattern)
{
    if (!std::isfinite(number))
        throw OverflowError();
    const Pattern& sections = parsed(pattern);
    Decimal rounded(number);
    const bool ownSection = rounded.negative && sections.hasNegative;
    rounded.round((ownSection ? sections.negative : sections.main).maxPlaces, Decimal::Half::AwayFromZero);
    if (!rounded.negative || rounded.isZero())
        return sections.main.text(rounded);
    return ownSection ? sections.negative.text(rounded) : QLatin1Char('-') + sections.main.text(rounded);
}

QString formatMoneyText(const QString& text) { return Format(Val(text), QStringLiteral("0.00")); }

} // namespace values
