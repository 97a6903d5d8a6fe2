#include "platform/values/VCards.h"

#include "platform/values/Errors.h"

#include <QDate>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace values {

namespace {

struct Property
{
    QString name;   ///< in capitals, without its group
    QString params; ///< in capitals
    QString value;  ///< with its escapes
};

/// The lines as they were before they were folded: a line that begins with a blank goes on the one before it.
QStringList unfolded(const QString& text)
{
    QStringList lines;
    bool goesOn = false; // a line of quoted-printable that ends in "="
    for (QString line : text.split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        const bool isFolded = line.startsWith(u' ') || line.startsWith(u'\t');
        if (!lines.isEmpty() && goesOn) {
            lines.last().chop(1);
            lines.last() += line;
        } else if (!lines.isEmpty() && isFolded) {
            lines.last() += QStringView(line).sliced(1);
        } else {
            lines << line;
        }
        goesOn = line.endsWith(u'=') && lines.last().contains("QUOTED-PRINTABLE"_L1, Qt::CaseInsensitive);
    }
    return lines;
}

QString quotedPrintable(const QString& value)
{
    QByteArray bytes = value.toUtf8();
    bytes.replace('%', "%25");
    bytes.replace('=', '%');
    return QString::fromUtf8(QByteArray::fromPercentEncoding(bytes));
}

/// The colon that ends name and parameters: none between quotation marks.
qsizetype valueColon(const QString& line)
{
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'"')
            quoted = !quoted;
        else if (line[i] == u':' && !quoted)
            return i;
    }
    return -1;
}

Property property(const QString& line)
{
    const qsizetype colon = valueColon(line);
    if (colon < 0)
        return {};
    const QString head = line.first(colon).toUpper();
    const qsizetype semicolon = head.indexOf(u';');
    Property read{head.section(u';', 0, 0).section(u'.', -1).trimmed(),
                  semicolon < 0 ? QString() : head.sliced(semicolon + 1), line.sliced(colon + 1)};
    if (read.params.contains("QUOTED-PRINTABLE"_L1))
        read.value = quotedPrintable(read.value);
    return read;
}

/// The parts of a value that stand apart by semicolons, their escapes resolved.
QStringList parts(const QString& value)
{
    QStringList all{QString()};
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value[i];
        if (c == u';') {
            all << QString();
        } else if (c == u'\\' && i + 1 < value.size()) {
            const QChar next = value[++i];
            all.last() += next.toLower() == u'n' ? QChar(u'\n') : next;
        } else {
            all.last() += c;
        }
    }
    for (QString& part : all)
        part = part.trimmed();
    return all;
}

QString plain(const QString& value) { return parts(value).join(u';').trimmed(); }

QString joined(const QStringList& texts, const QString& between)
{
    QStringList said = texts;
    said.removeAll(QString());
    return said.join(between);
}

/// Family name; given name; others; before it; behind it.
QString writtenName(const QString& value)
{
    const QStringList all = parts(value);
    return joined({all.value(3), all.value(1), all.value(2), all.value(0), all.value(4)}, u" "_s);
}

/// 19900517, 1990-05-17, each with or without a time; --0517 does not tell the year.
QString birthDate(const QString& value)
{
    QString day = value.section(u'T', 0, 0).trimmed();
    if (day.startsWith("--"_L1))
        return {};
    const QDate date = QDate::fromString(QString(day).remove(u'-'), u"yyyyMMdd"_s);
    return date.isValid() ? date.toString(Qt::ISODate) : day;
}

/// Puts the properties of one contact together.
class CardReader
{
public:
    void take(const Property& read)
    {
        if (read.name == "FN"_L1)
            m_card.name = plain(read.value);
        else if (read.name == "N"_L1)
            m_name = writtenName(read.value);
        else if (read.name == "ORG"_L1)
            m_organization = joined(parts(read.value), u", "_s);
        else if (read.name == "TEL"_L1)
            takeNumber(read);
        else if (read.name == "BDAY"_L1)
            m_card.birth = birthDate(read.value);
        else if (read.name == "ADR"_L1 && m_card.street.isEmpty() && m_card.city.isEmpty())
            takeAddress(read.value);
        else if (read.name == "EMAIL"_L1 && m_card.email.isEmpty())
            m_card.email = plain(read.value);
        else if (read.name == "NOTE"_L1)
            m_card.note = plain(read.value);
    }

    VCard card() const
    {
        VCard card = m_card;
        if (card.name.isEmpty())
            card.name = m_name.isEmpty() ? m_organization : m_name;
        return card;
    }

private:
    void takeNumber(const Property& read)
    {
        QString number = plain(read.value);
        if (number.startsWith("tel:"_L1, Qt::CaseInsensitive))
            number = number.sliced(4);
        const bool isMobile = read.params.contains("CELL"_L1);
        if (number.isEmpty() || (!m_card.mobile.isEmpty() && (m_isMobile || !isMobile)))
            return;
        m_card.mobile = number;
        m_isMobile = isMobile;
    }

    /// Box; more of the address; street; city; region; code; country.
    void takeAddress(const QString& value)
    {
        const QStringList all = parts(value);
        m_card.street = joined({all.value(0), all.value(1), all.value(2), all.value(5)}, u", "_s);
        m_card.city = all.value(3);
        m_card.region = all.value(4);
    }

    VCard m_card;
    QString m_name;
    QString m_organization;
    bool m_isMobile = false;
};

} // namespace

bool isVCards(const QString& text)
{
    return text.trimmed().startsWith("BEGIN:VCARD"_L1, Qt::CaseInsensitive);
}

std::vector<VCard> readVCards(const QString& text)
{
    std::vector<VCard> cards;
    CardReader reader;
    bool isOpen = false;
    const auto refuseIfOpen = [&] {
        if (isOpen)
            throw OperatorError(
                u"Contact %1 of the file (%2) has no end: the file was cut."_s.arg(cards.size() + 1)
                    .arg(reader.card().name));
    };
    for (const QString& line : unfolded(text)) {
        const Property read = property(line);
        const bool isFrame = read.value.trimmed().compare("VCARD"_L1, Qt::CaseInsensitive) == 0;
        if (isFrame && read.name == "BEGIN"_L1) {
            refuseIfOpen();
            reader = {};
            isOpen = true;
        } else if (isFrame && read.name == "END"_L1 && isOpen) {
            cards.push_back(reader.card());
            isOpen = false;
        } else if (isOpen) {
            reader.take(read);
        }
    }
    refuseIfOpen();
    return cards;
}

} // namespace values
