#include "platform/ado/Functions.h"

#include "platform/values/Titles.h"

#include <QString>
#include <QVarLengthArray>
#include <algorithm>
#include <cmath>
#include <new>
#include <sqlcipher/sqlite3.h>

namespace ado {

namespace {

constexpr qint64 unitsPerWhole = 10000;
constexpr auto beyondMoney =
    "Overflow: the sum of the amounts is too large. The highest possible is 922337203685477.5807.";

/// The running total of a sum, in ten-thousandths.
struct Total
{
    qint64 units;
    bool any;
    bool overflow;
};

void addWhole(Total& total, qint64 number)
{
    qint64 units = 0;
    total.overflow = total.overflow || qMulOverflow(number, unitsPerWhole, &units) ||
                     qAddOverflow(total.units, units, &total.units);
}

void addDouble(Total& total, double number)
{
    constexpr double limit = 9.2e18;
    const double units = std::nearbyint(number * static_cast<double>(unitsPerWhole));
    total.overflow = total.overflow || !(std::fabs(units) < limit) ||
                     qAddOverflow(total.units, static_cast<qint64>(units), &total.units);
}

void sumStep(sqlite3_context* context, int, sqlite3_value** arguments)
{
    auto* total = static_cast<Total*>(sqlite3_aggregate_context(context, sizeof(Total)));
    if (!total) {
        sqlite3_result_error_nomem(context);
        return;
    }
    const int type = sqlite3_value_numeric_type(arguments[0]);
    if (type == SQLITE_NULL)
        return;
    total->any = true;
    if (type == SQLITE_INTEGER)
        addWhole(*total, sqlite3_value_int64(arguments[0]));
    else
        addDouble(*total, sqlite3_value_double(arguments[0]));
}

void sumFinal(sqlite3_context* context)
{
    const auto* total = static_cast<const Total*>(sqlite3_aggregate_context(context, 0));
    if (!total || !total->any)
        sqlite3_result_null(context);
    else if (total->overflow)
        sqlite3_result_error(context, beyondMoney, -1);
    else if (total->units % unitsPerWhole == 0)
        sqlite3_result_int64(context, total->units / unitsPerWhole);
    else
        sqlite3_result_double(context,
                              static_cast<double>(total->units) / static_cast<double>(unitsPerWhole));
}

/// A run of digits of an ISO date: month() and its like.
template <int begin, int length>
void datePart(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
    if (!text || sqlite3_value_bytes(arguments[0]) < begin + length) {
        sqlite3_result_null(context);
        return;
    }
    sqlite3_result_int(context, QByteArray::fromRawData(text + begin, length).toInt());
}

/// Matches case-folded text with a case-folded pattern: "%" any run of characters, "_" any one.
bool matches(QStringView pattern, QStringView text)
{
    qsizetype p = 0;
    qsizetype t = 0;
    qsizetype afterRun = -1;
    qsizetype runText = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == u'%') {
            afterRun = ++p;
            runText = t;
        } else if (p < pattern.size() && pattern[p] == u'_') {
            ++p;
            t += text[t].isHighSurrogate() && t + 1 < text.size() ? 2 : 1;
        } else if (p < pattern.size() && pattern[p] == text[t]) {
            ++p;
            ++t;
        } else if (afterRun >= 0) {
            p = afterRun;
            t = ++runText;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'%')
        ++p;
    return p == pattern.size();
}

QString foldedText(sqlite3_value* value)
{
    const auto* text = static_cast<const char16_t*>(sqlite3_value_text16(value));
    return values::foldedTitle(QString::fromUtf16(text, sqlite3_value_bytes16(value) / 2));
}

/// The pattern of a call; one that stays the same over the rows of a statement is folded once.
const QString& foldedPattern(sqlite3_context* context, sqlite3_value* value, QString& own)
{
    if (const auto* kept = static_cast<const QString*>(sqlite3_get_auxdata(context, 0)))
        return *kept;
    own = foldedText(value);
    sqlite3_set_auxdata(context, 0, new QString(own), [](void* kept) { delete static_cast<QString*>(kept); });
    return own;
}

/// The folded text, in `own`; plain ASCII, as most names are, takes the short way.
QStringView foldedInto(QVarLengthArray<char16_t, 256>& own, sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    const int bytes = sqlite3_value_bytes(value);
    own.resize(bytes);
    for (int i = 0; i < bytes; ++i) {
        const char letter = text[i];
        if (static_cast<uchar>(letter) > 127) {
            const QString folded = foldedText(value);
            own.resize(folded.size());
            std::copy(folded.utf16(), folded.utf16() + folded.size(), own.begin());
            break;
        }
        own[i] = static_cast<char16_t>(letter >= 'A' && letter <= 'Z' ? letter + ('a' - 'A') : letter);
    }
    return QStringView(own.constData(), own.size());
}

/// `text LIKE pattern` calls like(pattern, text).
void like(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    QString ownPattern;
    QVarLengthArray<char16_t, 256> ownText;
    const QString& pattern = foldedPattern(context, arguments[0], ownPattern);
    sqlite3_result_int(context, matches(pattern, foldedInto(ownText, arguments[1])) ? 1 : 0);
}

/// titlekey(text): equal for all spellings of a title.
void titleKey(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    QVarLengthArray<char16_t, 256> own;
    const QByteArray key = foldedInto(own, arguments[0]).toUtf8();
    sqlite3_result_text(context, key.constData(), static_cast<int>(key.size()), SQLITE_TRANSIENT);
}

using Scalar = void (*)(sqlite3_context*, int, sqlite3_value**);

void add(sqlite3* database, const char* name, int arguments, Scalar scalar, Scalar step = nullptr,
         void (*final)(sqlite3_context*) = nullptr)
{
    const int code = sqlite3_create_function_v2(database, name, arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                                nullptr, scalar, step, final, nullptr);
    if (code != SQLITE_OK)
        throw std::bad_alloc();
}

} // namespace

void registerFunctions(sqlite3* database)
{
    add(database, "month", 1, datePart<5, 2>);
    add(database, "day", 1, datePart<8, 2>);
    add(database, "like", 2, like);
    add(database, "titlekey", 1, titleKey);
    add(database, "sum", 1, nullptr, sumStep, sumFinal);
}

} // namespace ado
