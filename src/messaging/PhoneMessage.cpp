#include "messaging/PhoneMessage.h"

#include "core/store/MobileNumber.h"
#include "core/store/Settings.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// A chat's link takes a number with its country, in digits alone.
QString withCountry(const QString& number)
{
    constexpr int withoutCountry = 10;
    const QString digits = mobileDigits(number);
    return digits.size() == withoutCountry ? u"91"_s + digits : digits;
}

} // namespace

QString phoneMessage(const QString& number, const QString& text)
{
    const QString lines = QString(text).replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').trimmed();
    if (GetSetting(settings::ByPhone) == byPhoneAsChat)
        return u"https://wa.me/%1?text="_s.arg(withCountry(number)) +
               QString::fromLatin1(QUrl::toPercentEncoding(lines));
    const QString digits = mobileDigits(number);
    return u"SMSTO:%1:%2"_s.arg(digits.isEmpty() ? number.trimmed() : digits, lines);
}
