#include "core/store/Codes.h"
#include "core/store/MobileNumber.h"
#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "masters/BringIn.h"
#include "platform/values/Numbers.h"
#include "platform/values/Titles.h"
#include "platform/values/TypedDate.h"

#include <QHash>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// What becomes of each row of a file.
namespace bringin {

namespace {

/// Why a row cannot be taken.
struct Refusal
{
    QString why;
};

/// A cell without the marks that keep a spreadsheet from computing it: ' in front, as our own saved lists
/// have it, or ="...".
QString cellText(const QString& cell)
{
    QString text = cell.trimmed();
    static const QString computed = u"=+-@"_s;
    if (text.size() > 1 && text[0] == u'\'' && computed.contains(text[1]))
        return text.sliced(1);
    if (text.size() > 2 && text.startsWith("=\""_L1) && text.endsWith(u'"'))
        return text.sliced(2, text.size() - 3);
    if (text.startsWith(u'='))
        throw Refusal{u"“%1” is a formula, not what it gives"_s.arg(text)};
    return text;
}

/// Lines become one, as the boxes of the records hold one.
QString oneLine(const QString& text, const QString& between)
{
    static const QRegularExpression lineBreak(u"\\s*[\\x00-\\x1F\\x{2028}\\x{2029}]+\\s*"_s);
    return QString(text).replace(lineBreak, between).trimmed();
}

Currency amount(const QString& text, const QString& field)
{
    static const QRegularExpression around(u"^(rs\\.?|inr|₹)\\s*|\\s*/-$|,"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression plain(u"^\\d{1,12}(\\.\\d+)?$"_s);
    const QString number = QString(text).remove(around);
    if (number.isEmpty())
        return {};
    if (!plain.match(number).hasMatch())
        throw Refusal{u"the %1 “%2” is no amount"_s.arg(field, text)};
    return Currency::fromDouble(values::Val(number), field);
}

/// One measurement a line: as the cell has them, else between commas or semicolons.
QString measurements(const QString& text)
{
    static const QRegularExpression lines(u"[\\r\\n]+"_s);
    static const QRegularExpression marks(u"\\s*[,;]\\s*"_s);
    const bool isOneLine = !text.contains(u'\n') && !text.contains(u'\r');
    return tidyTemplate(text.split(isOneLine ? marks : lines).join(u"\r\n"_s));
}

QDate birthDate(const QString& text)
{
    if (text.isEmpty())
        return {};
    const QString day = text.section(QRegularExpression(u"[T ]\\d{1,2}:"_s), 0, 0);
    const QDate date = values::readTypedDate(day, session.WorkingDate, values::Looks::Birth);
    if (!date.isValid())
        throw Refusal{u"the date of birth “%1” is no date"_s.arg(text)};
    return date;
}

/// Sorts row after row; what it has taken counts as there for the rows behind.
class Sorter
{
public:
    Sorter(Kind kind, const Columns& columns)
        : m_kind(kind)
        , m_columns(columns)
    {
        if (kind == Kind::Clients)
            readAccounts();
        else
            each(u"Select * from Items"_s,
                 [this](ado::Recordset& row) { m_titles.insert(key(row["Name"].text()), {}); });
    }

    Line line(const values::TextRow& row)
    {
        Line line;
        line.row = row.number;
        m_line = &line;
        m_cells = &row.cells;
        try {
            line.title = values::title(oneLine(text(0), u" "_s));
            line.texts[0] = line.title;
            if (line.title.isEmpty())
                throw Refusal{u"it has no name"_s};
            sortByTitle();
            if (m_kind == Kind::Clients)
                readClient();
            else
                readItem();
            keepTitle();
        } catch (const Refusal& refusal) {
            line.fate = Fate::Refused;
            line.why = refusal.why;
        }
        return line;
    }

private:
    struct Owner
    {
        QString whose; ///< what has the name, when that is none of this kind
        int row = 0;   ///< of the file
    };

    static QString key(const QString& title) { return values::foldedTitle(title.trimmed()); }

    void readAccounts()
    {
        each(u"Select * from Accounts"_s, [this](ado::Recordset& row) {
            const QString title = row["Title"].text();
            const auto type = row["Type"].code<AccountType>();
            QString whose;
            if (type == AccountType::Worker)
                whose = u"a worker"_s;
            else if (type == AccountType::Ledger)
                whose = u"an account of the ledger"_s;
            // A name may stand there twice; the client's counts.
            if (const QString folded = key(title); whose.isEmpty() || !m_titles.contains(folded))
                m_titles.insert(folded, {whose});
            if (type == AccountType::Client)
                keepMobile(row["Mobile"].text(), title, 0);
        });
    }

    void keepMobile(const QString& mobile, const QString& title, int row)
    {
        if (const QString digits = mobileDigits(mobile); !digits.isEmpty() && !m_mobiles.contains(digits))
            m_mobiles.insert(digits, {title, row});
    }

    void keepTitle()
    {
        if (m_line->fate != Fate::New)
            return;
        m_titles.insert(key(m_line->title), {{}, m_line->row});
        if (m_kind == Kind::Clients)
            keepMobile(m_line->texts[Mobile], m_line->title, m_line->row);
    }

    /// What the file says for a field; empty when no column is it.
    QString text(size_t field) const
    {
        return m_columns[field] < 0 ? QString() : cellText(m_cells->value(m_columns[field]));
    }

    void sortByTitle()
    {
        const auto found = m_titles.constFind(key(m_line->title));
        if (found == m_titles.cend())
            return;
        if (found->row > 0)
            throw Refusal{u"row %1 has this name too"_s.arg(found->row)};
        if (!found->whose.isEmpty())
            throw Refusal{u"%1 has this name"_s.arg(found->whose)};
        m_line->fate = Fate::There;
        m_line->why = u"the shop has this name"_s;
    }

    void sortByMobile(const QString& mobile)
    {
        const auto found = m_mobiles.constFind(mobileDigits(mobile));
        if (found == m_mobiles.cend() || m_line->fate == Fate::There)
            return;
        if (found->row > 0)
            throw Refusal{u"row %1, %2, has this mobile number too"_s.arg(found->row).arg(found->whose)};
        m_line->fate = Fate::There;
        m_line->why = u"%1 has this mobile number"_s.arg(found->whose);
    }

    void readClient()
    {
        static const QRegularExpression rounded(u"^\\d(\\.\\d+)?E\\+?\\d+$"_s,
                                                QRegularExpression::CaseInsensitiveOption);
        ClientFields client;
        const QString mobile = text(Mobile);
        if (rounded.match(mobile).hasMatch())
            throw Refusal{u"the spreadsheet has rounded the mobile number to %1"_s.arg(mobile)};
        client.mobile = oneLine(storedMobile(mobile), u", "_s);
        client.address = oneLine(text(Address), u", "_s);
        client.city = oneLine(text(City), u", "_s);
        client.state = oneLine(text(State), u", "_s);
        m_line->texts = {m_line->title, client.mobile, client.address,
                         client.city,   client.state,  text(Birth)};
        sortByMobile(client.mobile);
        if (m_line->fate == Fate::New)
            client.birth = birthDate(text(Birth));
        if (client.birth.isValid())
            m_line->texts[Birth] = dateText(client.birth);
        m_line->record = client;
    }

    void readItem()
    {
        const auto& names = fieldNames(Kind::Items);
        m_line->texts = {m_line->title,      text(Fee),      text(Wage),
                         text(Measurements), text(Capacity), text(Pending)};
        if (m_line->fate != Fate::New)
            return;
        ItemFields item;
        item.fees = amount(text(Fee), names[Fee].toLower());
        item.workerFees = amount(text(Wage), names[Wage].toLower());
        item.details = measurements(text(Measurements));
        item.capacity = numberText(text(Capacity));
        item.pending = numberText(text(Pending));
        m_line->texts = {m_line->title,
                         moneyText(item.fees.toDouble()),
                         moneyText(item.workerFees.toDouble()),
                         QString(item.details).replace("\r\n"_L1, ", "_L1),
                         item.capacity,
                         item.pending};
        m_line->record = item;
    }

    const Kind m_kind;
    const Columns m_columns;
    QHash<QString, Owner> m_titles;  ///< by name
    QHash<QString, Owner> m_mobiles; ///< by digits
    Line* m_line = nullptr;
    const QStringList* m_cells = nullptr;
};

} // namespace

Plan plan(Kind kind, const Source& source, bool withTitles, const Columns& columns)
{
    Plan plan{kind, {}};
    Sorter sorter(kind, columns);
    for (size_t i = withTitles ? 1 : 0; i < source.rows.size(); ++i)
        plan.lines.push_back(sorter.line(source.rows[i]));
    return plan;
}

} // namespace bringin
