#pragma once

#include "jobcards/JobCard.h"

#include <optional>
#include <vector>

/// What stands on a new job card that isn't saved: enough to bring it back whole.
struct JobCardDraft
{
    QString Number;   ///< typed by hand; empty where the card has the number that it was offered
    JobCardHead Head; ///< all but its number and amounts
    QString Total;    ///< the amounts as typed
    QString Paid;
    clsJobCardData Rows;

    /// True when nothing was put on the card that showed `blank` when it was opened.
    bool isBlank(const JobCardDraft& blank) const;
    /// In the operator's words: "of Asha Rao, 3 lines".
    QString description() const;
};

/// The new cards that the operator left without saving them. They are kept for as long as the program runs.
class UnsavedCards
{
public:
    bool isEmpty() const { return m_cards.empty(); }
    /// The card that was left last.
    const JobCardDraft& last() const { return m_cards.back(); }
    void keep(JobCardDraft card) { m_cards.push_back(std::move(card)); }
    /// Takes out the card that was left last. `current`, the card that has to make room for it, becomes the
    /// first: taking on and on goes through all of them, and comes back to it.
    JobCardDraft take(std::optional<JobCardDraft> current);

private:
    std::vector<JobCardDraft> m_cards;
};

inline UnsavedCards unsavedCards;
