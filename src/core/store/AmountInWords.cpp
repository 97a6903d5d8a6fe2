#include "core/store/AmountInWords.h"

#include "core/store/Texts.h"

#include <QStringList>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* small[] = {"Zero",    "One",     "Two",       "Three",    "Four",
                                 "Five",    "Six",     "Seven",     "Eight",    "Nine",
                                 "Ten",     "Eleven",  "Twelve",    "Thirteen", "Fourteen",
                                 "Fifteen", "Sixteen", "Seventeen", "Eighteen", "Nineteen"};
constexpr const char* tens[] = {"",      "",      "Twenty",  "Thirty", "Forty",
                                "Fifty", "Sixty", "Seventy", "Eighty", "Ninety"};

struct Unit
{
    qint64 size;
    const char* name;
};
constexpr Unit units[] = {{10'000'000, "Crore"}, {100'000, "Lakh"}, {1'000, "Thousand"}, {100, "Hundred"}};

/// Crores are counted in words of their own: "One Lakh Crore".
QString numberInWords(qint64 number)
{
    QStringList words;
    for (const auto& [size, name] : units) {
        if (number < size)
            continue;
        words << numberInWords(number / size) << QLatin1String(name);
        number %= size;
    }
    if (number >= 20) {
        words << QLatin1String(tens[number / 10]);
        number %= 10;
        if (number > 0)
            words.last() += u'-' + QLatin1String(small[number]);
    } else if (number > 0 || words.isEmpty())
        words << QLatin1String(small[number]);
    return words.join(u' ');
}

} // namespace

QString amountInWords(double amount)
{
    const qint64 paise = std::llround(std::abs(shownMoney(amount)) * 100);
    QStringList words;
    if (amount < 0 && paise > 0)
        words << u"Minus"_s;
    if (paise >= 100 || paise == 0)
        words << u"Rupees"_s << numberInWords(paise / 100);
    if (paise >= 100 && paise % 100 > 0)
        words << u"and"_s;
    if (paise % 100 > 0)
        words << numberInWords(paise % 100) << u"Paise"_s;
    words << u"Only"_s;
    return words.join(u' ');
}
