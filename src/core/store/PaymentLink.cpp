#include "core/store/PaymentLink.h"

#include "core/store/Texts.h"

#include <QUrl>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

const QString amountPlace = u"{amount}"_s;
constexpr qsizetype longest = 1000;

/// The link of an address, with the amount where the address has a place for it.
QUrl linkOf(const QString& address, const QString& amount)
{
    QString text = address.trimmed();
    if (text.size() > 2 && text.startsWith(u'"') && text.endsWith(u'"'))
        text = text.mid(1, text.size() - 2).trimmed();
    return text.contains(u"://"_s) ? QUrl(text.replace(amountPlace, amount)) : QUrl();
}

bool isUpi(const QUrl& link) { return link.scheme() == "upi"_L1; }

void setValue(QUrlQuery& values, const QString& name, const QString& value)
{
    values.removeAllQueryItems(name);
    values.addQueryItem(name, value);
}

} // namespace

bool isPaymentAddress(const QString& text)
{
    const QUrl link = linkOf(text, u"1.00"_s);
    if (text.size() > longest || !link.isValid() || link.scheme().isEmpty() || link.host().isEmpty())
        return false;
    return !isUpi(link) || !QUrlQuery(link).queryItemValue(u"pa"_s).isEmpty();
}

QString paymentLink(const QString& address, double due)
{
    const QString amount = moneyText(due);
    if (!isPaymentAddress(address) || shownMoney(due) <= 0)
        return {};
    QUrl link = linkOf(address, amount);
    if (!address.contains(amountPlace)) {
        QUrlQuery values(link);
        setValue(values, isUpi(link) ? u"am"_s : u"amount"_s, amount);
        if (isUpi(link))
            setValue(values, u"cu"_s, u"INR"_s);
        link.setQuery(values);
    }
    return QString::fromLatin1(link.toEncoded());
}
