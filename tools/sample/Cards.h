#pragma once

#include "core/store/Codes.h"
#include "sample/People.h"
#include "sample/Plan.h"

namespace sample {

/// A garment that a client ordered, and what became of it by the shop's last day.
struct Line
{
    int garment = 0; ///< place in the catalogue
    int quantity = 1;
    QString remark;
    QString clientRemark;
    QString values;    ///< the measures
    quint32 cloth = 0; ///< its colour, 0xRRGGBB
    bool pictured = false;

    const Worker* worker = nullptr;
    bool cut = false;
    QDate cuttingDate;
    LineState state = LineState::Uncompleted;
    QDate completed; ///< invalid dates: not yet
    QDate altered;
    QDate delivered;
    QString location;
    int score = 0; ///< 0: not asked
    QString feedback;
    int payroll = 0; ///< number of the payroll that covered the wage, 0: unpaid

    const Garment& item() const { return catalogue()[static_cast<size_t>(garment)]; }
    int amount() const { return quantity * item().fees; }
};

struct Card
{
    int number = 0;
    QDate date;
    const Client* client = nullptr;
    QDate delivery; ///< promised
    QDate trial;
    TrialState appeared = TrialState::NotAppeared;
    QDate appearedOn;
    QString remark;
    int paid = 0; ///< rupees received with the card
    int receiptAccount = account::cash;
    bool cancelled = false;
    QString cancelReason;
    bool closed = false;     ///< all is delivered
    bool handedOver = false; ///< the whole card at once, from the register
    std::vector<Line> lines;

    int total() const;
    /// The day of the last delivery.
    QDate deliveredOn() const;
};

/// The cards of the shop's days, in the order of their numbers.
std::vector<Card> takeOrders(const Plan& plan, const People& people, Random& random);

/// Lets the card live from its day to the shop's last day: workers, cutting, states, feedback.
void live(Card& card, const Plan& plan, const People& people, Random& random);

} // namespace sample
