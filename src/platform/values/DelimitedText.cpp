#include "platform/values/DelimitedText.h"

#include "platform/values/Errors.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace values {

namespace {

constexpr int rowsLookedAt = 30;
constexpr QChar quote = u'"';

/// Reads one row after the other.
class RowReader
{
public:
    RowReader(const QString& text, QChar separator)
        : m_text(text)
        , m_separator(separator)
    {
    }

    bool atEnd() const { return m_at >= m_text.size(); }
    /// The last row has a quotation mark that is never closed.
    bool isUnclosed() const { return m_unclosed; }

    QStringList row()
    {
        QStringList cells;
        while (true) {
            cells << cell();
            if (atEnd())
                return cells;
            const QChar end = m_text[m_at++];
            if (end == m_separator)
                continue;
            if (end == u'\r' && !atEnd() && m_text[m_at] == u'\n')
                ++m_at;
            return cells;
        }
    }

private:
    bool endsCell(QChar c) const { return c == m_separator || c == u'\n' || c == u'\r'; }

    QString cell()
    {
        QString text;
        if (!atEnd() && m_text[m_at] == quote)
            text = quoted();
        const qsizetype begin = m_at;
        while (!atEnd() && !endsCell(m_text[m_at]))
            ++m_at;
        return text + QStringView(m_text).sliced(begin, m_at - begin);
    }

    QString quoted()
    {
        QString text;
        while (true) {
            const qsizetype begin = ++m_at;
            m_at = m_text.indexOf(quote, begin);
            if (m_at < 0) {
                m_unclosed = true;
                m_at = m_text.size();
                return text;
            }
            text += QStringView(m_text).sliced(begin, m_at - begin);
            ++m_at;
            if (atEnd() || m_text[m_at] != quote)
                return text;
            text += quote;
        }
    }

    const QString& m_text;
    const QChar m_separator;
    qsizetype m_at = 0;
    bool m_unclosed = false;
};

bool isBlank(const QStringList& cells)
{
    return std::all_of(cells.begin(), cells.end(),
                       [](const QString& cell) { return cell.trimmed().isEmpty(); });
}

/// How many of the first rows have as many cells as the first of them, when that is more than one.
int rowsAlike(const QString& text, QChar separator)
{
    RowReader reader(text, separator);
    qsizetype width = 0;
    int alike = 0;
    for (int row = 0; row < rowsLookedAt && !reader.atEnd(); ++row) {
        const QStringList cells = reader.row();
        if (isBlank(cells))
            continue;
        if (width == 0)
            width = cells.size();
        alike += width > 1 && cells.size() == width;
    }
    return alike;
}

QChar separatorOf(const QString& text)
{
    QChar best = u',';
    int most = rowsAlike(text, best);
    for (const QChar separator : {QChar(u';'), QChar(u'\t')}) {
        if (const int alike = rowsAlike(text, separator); alike > most) {
            best = separator;
            most = alike;
        }
    }
    return best;
}

} // namespace

TextTable readTable(const QString& text)
{
    TextTable table{separatorOf(text), {}};
    RowReader reader(text, table.separator);
    for (int number = 1; !reader.atEnd(); ++number) {
        QStringList cells = reader.row();
        if (reader.isUnclosed())
            throw OperatorError(
                u"A quotation mark opens in row %1 and is never closed: nobody can tell which cells follow it."_s
                    .arg(number));
        if (!isBlank(cells))
            table.rows.push_back({number, std::move(cells)});
    }
    return table;
}

} // namespace values
