#include "core/store/MobileNumber.h"
#include "masters/BringIn.h"
#include "platform/values/TypedDate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Which column of a file is what.
namespace bringin {

namespace {

constexpr size_t rowsLookedAt = 50;
constexpr qsizetype longestSample = 24;

/// Titles as they are compared: letters and digits alone, small. A title is a field's when it is one of
/// `whole`, or else when it holds one of `part`.
struct Words
{
    QStringList whole;
    QStringList part;
};

const std::array<Words, fieldCount>& words(Kind kind)
{
    static const std::array<Words, fieldCount> ofClients{
        {{{u"name"_s, u"clientname"_s, u"client"_s, u"clients"_s, u"customer"_s, u"customername"_s,
           u"fullname"_s, u"displayname"_s, u"title"_s, u"party"_s, u"partyname"_s, u"नाम"_s},
          {u"clientname"_s, u"customername"_s, u"fullname"_s}},
         {{u"mobile"_s, u"phone"_s, u"cell"_s, u"tel"_s, u"contact"_s, u"contactno"_s, u"contactnumber"_s,
           u"whatsapp"_s, u"मोबाइल"_s},
          {u"mobile"_s, u"phone"_s, u"whatsapp"_s}},
         {{u"address"_s, u"street"_s, u"पता"_s}, {u"address"_s, u"street"_s}},
         {{u"city"_s, u"town"_s, u"village"_s, u"शहर"_s}, {u"city"_s, u"town"_s, u"village"_s}},
         {{u"state"_s, u"province"_s, u"region"_s, u"राज्य"_s}, {u"province"_s, u"provision"_s, u"region"_s}},
         {{u"dob"_s, u"birthday"_s, u"birthdate"_s, u"bday"_s}, {u"birth"_s, u"dob"_s}}}};
    static const std::array<Words, fieldCount> ofItems{
        {{{u"name"_s, u"item"_s, u"items"_s, u"itemname"_s, u"garment"_s, u"product"_s, u"article"_s,
           u"title"_s, u"नाम"_s},
          {u"itemname"_s, u"garment"_s}},
         {{u"fee"_s, u"fees"_s, u"rate"_s, u"price"_s, u"charge"_s, u"charges"_s},
          {u"fee"_s, u"price"_s, u"rate"_s}},
         {{u"wage"_s, u"wages"_s, u"worker"_s}, {u"worker"_s, u"wage"_s}},
         {{u"measurements"_s, u"fields"_s, u"itemdetails"_s}, {u"measure"_s}},
         {{u"capacity"_s}, {u"capacity"_s}},
         {{u"pending"_s}, {u"pending"_s}}}};
    return kind == Kind::Clients ? ofClients : ofItems;
}

QString letters(const QString& title)
{
    QString kept;
    for (const QChar c : title.toCaseFolded())
        if (c.isLetterOrNumber() || c.isMark())
            kept += c;
    return kept;
}

bool holds(const QString& title, const QStringList& words)
{
    return std::any_of(words.begin(), words.end(), [&](const QString& word) { return title.contains(word); });
}

/// A column of kinds ("Phone 1 - Type") or of mail addresses is none of the fields.
bool isOther(const QString& title)
{
    return title.endsWith("type"_L1) || title.endsWith("label"_L1) || title.contains("mail"_L1) ||
           title.contains("phonetic"_L1);
}

Columns columnsByTitle(Kind kind, const QStringList& titles)
{
    Columns columns;
    columns.fill(-1);
    QStringList open;
    for (const QString& title : titles)
        open << letters(title);
    const auto find = [&](size_t field, const auto& fits) {
        for (qsizetype i = 0; columns[field] < 0 && i < open.size(); ++i)
            if (!open[i].isEmpty() && fits(open[i])) {
                columns[field] = int(i);
                open[i].clear();
            }
    };
    for (size_t field = 0; field < fieldCount; ++field)
        find(field, [&](const QString& title) { return words(kind)[field].whole.contains(title); });
    for (size_t field = fieldCount; field-- > 0;) // the worker's fee before the fee
        find(field,
             [&](const QString& title) { return !isOther(title) && holds(title, words(kind)[field].part); });
    return columns;
}

bool isNumber(const QString& cell)
{
    bool is = false;
    QString(cell).remove(u',').toDouble(&is);
    return is;
}

bool isMobile(const QString& cell)
{
    return !mobileDigits(cell).isEmpty() && storedMobile(cell) == mobileDigits(cell);
}

bool isDate(const QString& cell)
{
    static const QDate reference(2000, 1, 1);     // whole dates alone are asked for
    return cell.size() >= 6 && !isNumber(cell) && // a date has something between its parts
           values::readTypedDate(cell, reference, values::Looks::Birth).isValid();
}

bool isText(const QString& cell)
{
    return std::any_of(cell.begin(), cell.end(), [](QChar c) { return c.isLetter(); }) && !isDate(cell);
}

/// The columns of which most cells that say something look alike.
class Contents
{
public:
    explicit Contents(const Source& source)
        : m_source(source)
        , m_isUsed(size_t(source.columnCount))
    {
    }

    int next(bool (*looks)(const QString& cell))
    {
        for (size_t column = 0; column < m_isUsed.size(); ++column)
            if (!m_isUsed[column] && isMostly(qsizetype(column), looks)) {
                m_isUsed[column] = true;
                return int(column);
            }
        return -1;
    }

private:
    bool isMostly(qsizetype column, bool (*looks)(const QString& cell)) const
    {
        int said = 0;
        int alike = 0;
        for (size_t i = 0; i < qMin(m_source.rows.size(), rowsLookedAt); ++i)
            if (const QString cell = m_source.rows[i].cells.value(column).trimmed(); !cell.isEmpty()) {
                ++said;
                alike += looks(cell);
            }
        return alike * 2 > said;
    }

    const Source& m_source;
    std::vector<bool> m_isUsed;
};

Columns columnsByContents(Kind kind, const Source& source)
{
    Contents contents(source);
    Columns columns;
    columns.fill(-1);
    if (kind == Kind::Items) {
        columns[ItemName] = contents.next(isText);
        columns[Fee] = contents.next(isNumber);
        columns[Wage] = contents.next(isNumber);
        columns[Measurements] = contents.next(isText);
        columns[Capacity] = contents.next(isNumber);
        columns[Pending] = contents.next(isNumber);
        return columns;
    }
    columns[Mobile] = contents.next(isMobile);
    columns[Birth] = contents.next(isDate);
    for (const size_t field : {size_t(Name), size_t(Address), size_t(City), size_t(State)})
        columns[field] = contents.next(isText);
    return columns;
}

} // namespace

void addWholeNames(Source& source)
{
    if (source.rows.empty())
        return;
    QStringList titles;
    for (const QString& title : source.rows.front().cells)
        titles << letters(title);
    const auto place = [&titles](std::initializer_list<QString> names) {
        return titles.indexOf(*std::find_if(names.begin(), names.end() - 1,
                                            [&](const QString& name) { return titles.contains(name); }));
    };
    const qsizetype first = place({u"firstname"_s, u"givenname"_s});
    const qsizetype last = place({u"lastname"_s, u"surname"_s, u"familyname"_s});
    if (first < 0 || last < 0 || columnsByTitle(Kind::Clients, source.rows.front().cells)[Name] >= 0)
        return;
    for (values::TextRow& row : source.rows) {
        const QString whole = QString(row.cells.value(first) + u' ' + row.cells.value(last)).simplified();
        row.cells.resize(source.columnCount);
        row.cells << (&row == &source.rows.front() ? u"Full Name"_s : whole);
    }
    ++source.columnCount;
}

bool hasTitles(Kind kind, const Source& source)
{
    if (source.rows.empty())
        return false;
    const QStringList& first = source.rows.front().cells;
    const bool namesAField = words(kind)[0].whole.contains(letters(first.value(0)));
    if (source.columnCount == 1) // a client may be called Village Boutique
        return namesAField;
    for (const QString& cell : first)
        if (isMobile(cell) || isNumber(cell))
            return false;
    const Columns found = columnsByTitle(kind, first);
    const auto named = std::count_if(found.begin(), found.end(), [](int column) { return column >= 0; });
    return named >= 2 || namesAField;
}

Columns guessColumns(Kind kind, const Source& source, bool withTitles)
{
    if (source.rows.empty() || !withTitles)
        return columnsByContents(kind, source);
    Columns columns = columnsByTitle(kind, source.rows.front().cells);
    if (columns[0] < 0 && source.columnCount == 1)
        columns[0] = 0;
    return columns;
}

QStringList columnNames(const Source& source, bool withTitles)
{
    QStringList names;
    const size_t sample = withTitles ? 1 : 0;
    for (int column = 0; column < source.columnCount; ++column) {
        QString name = u"Column %1"_s.arg(column + 1);
        if (const QString title = source.rows.front().cells.value(column).simplified();
            withTitles && !title.isEmpty())
            name = title;
        if (sample < source.rows.size())
            if (const QString cell = source.rows[sample].cells.value(column).simplified(); !cell.isEmpty())
                name +=
                    u" ("_s + (cell.size() > longestSample ? cell.first(longestSample) + u'…' : cell) + u')';
        names << name;
    }
    return names;
}

} // namespace bringin
