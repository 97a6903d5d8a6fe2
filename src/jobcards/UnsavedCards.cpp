#include "jobcards/UnsavedCards.h"

using namespace Qt::StringLiterals;

bool JobCardDraft::isBlank(const JobCardDraft& blank) const
{
    return Rows.RowCount() == 0 && Head == blank.Head && Total == blank.Total && Paid == blank.Paid;
}

QString JobCardDraft::description() const
{
    constexpr int longest = 30;
    const int lines = Rows.RowCount();
    const QString& client = Head.Client;
    QString text;
    if (!client.isEmpty())
        text += u"of "_s + (client.size() > longest ? client.left(longest).trimmed() + u'…' : client);
    if (lines > 0)
        text += (text.isEmpty() ? u"with "_s : u", "_s) + QString::number(lines) +
                (lines == 1 ? u" line"_s : u" lines"_s);
    return text;
}

JobCardDraft UnsavedCards::take(std::optional<JobCardDraft> current)
{
    JobCardDraft card = std::move(m_cards.back());
    m_cards.pop_back();
    if (current)
        m_cards.insert(m_cards.begin(), std::move(*current));
    return card;
}
