// What became of an order by the shop's last day.
#include "sample/Cards.h"
#include "sample/Texts.h"

#include <algorithm>

namespace sample {

namespace {

/// Somebody of the trade who was with the shop on that day; else anybody who was.
const Worker* pickWorker(Craft craft, const QDate& day, const People& people, Random& random)
{
    std::vector<const Worker*> present;
    std::vector<const Worker*> skilled;
    for (const Worker& worker : people.workers) {
        if (day < worker.from || day > worker.to)
            continue;
        present.push_back(&worker);
        if (worker.craft == craft)
            skilled.push_back(&worker);
    }
    if (!skilled.empty())
        return random.pick(skilled);
    return present.empty() ? nullptr : random.pick(present);
}

/// A day of the span, as far as the shop has got.
QDate dayBetween(const QDate& from, const QDate& to, const QDate& lastDay, Random& random)
{
    const int span = static_cast<int>(std::max<qint64>(0, from.daysTo(to)));
    return std::min(from.addDays(random.between(0, span)), lastDay);
}

void cut(Line& line, const QDate& day)
{
    line.cut = true;
    line.cuttingDate = day;
}

void complete(Line& line, const Card& card, const QDate& lastDay, Random& random)
{
    const int making = static_cast<int>(card.date.daysTo(card.delivery));
    if (!line.cut)
        cut(line, dayBetween(card.date.addDays(1), card.date.addDays(making / 3), lastDay, random));
    line.completed = dayBetween(line.cuttingDate.addDays(1), card.delivery, lastDay, random);
    line.state = LineState::Completed;
    line.location = shelf(random);
}

void alter(Line& line, const Card& card, const QDate& lastDay, Random& random)
{
    complete(line, card, lastDay, random);
    line.altered = dayBetween(line.completed, card.delivery.addDays(3), lastDay, random);
    line.state = LineState::Alteration;
}

void judge(Line& line, Random& random)
{
    if (!line.worker || !random.chance(75))
        return;
    line.score = std::clamp(line.worker->quality + random.between(-1, 1), 1, 5);
    if (random.chance(40))
        line.feedback = feedback(line.score, random);
}

void deliver(Line& line, const Card& card, const QDate& lastDay, Random& random)
{
    if (random.chance(6))
        alter(line, card, lastDay, random);
    else
        complete(line, card, lastDay, random);
    const QDate ready = line.altered.isValid() ? line.altered : line.completed;
    line.delivered = dayBetween(std::max(ready, card.delivery), card.delivery.addDays(4), lastDay, random);
    line.state = LineState::Delivered;
    judge(line, random);
}

/// The promised day is over.
void settle(Line& line, const Card& card, const QDate& lastDay, Random& random)
{
    const int late = static_cast<int>(card.delivery.daysTo(lastDay));
    const int thrown = random.below(1000);
    const int fetched = late > 30 ? 988 : late > 10 ? 930 : 700;
    if (thrown < fetched)
        deliver(line, card, lastDay, random);
    else if (thrown < fetched + (1000 - fetched) * 6 / 10)
        complete(line, card, lastDay, random);
    else if (thrown < fetched + (1000 - fetched) * 8 / 10)
        alter(line, card, lastDay, random);
    else if (late > 30)
        line.state = LineState::Canceled;
    else
        cut(line, dayBetween(card.date.addDays(1), card.delivery, lastDay, random));
}

/// The work is in hand: `progress` is the percentage of the making time that is over.
void advance(Line& line, const Card& card, int progress, const QDate& lastDay, Random& random)
{
    if (progress >= 100 && random.chance(25))
        deliver(line, card, lastDay, random);
    else if (progress > 80 && random.chance(12))
        alter(line, card, lastDay, random);
    else if (progress > 60 && random.chance(progress - 35))
        complete(line, card, lastDay, random);
    else if (progress > 20 && random.chance(progress + 25))
        cut(line, dayBetween(card.date, card.delivery, lastDay, random));
}

void comeForTrial(Card& card, const QDate& lastDay, Random& random)
{
    if (card.trial > lastDay || card.cancelled)
        return;
    if (card.trial == lastDay) { // the day is under way
        if (card.number % 3 == 0) {
            card.appeared = TrialState::Appeared;
            card.appearedOn = lastDay;
        }
        return;
    }
    const int thrown = random.below(100);
    if (thrown < 80) {
        card.appeared = TrialState::Appeared;
        card.appearedOn = dayBetween(card.trial, card.trial.addDays(1), lastDay, random);
    } else if (thrown < 88) {
        card.appeared = TrialState::Canceled;
    }
}

void cancel(Card& card, Random& random)
{
    card.cancelled = true;
    card.cancelReason = cancelReason(random);
    card.paid = 0;
    for (Line& line : card.lines)
        line.state = LineState::Canceled;
}

} // namespace

void live(Card& card, const Plan& plan, const People& people, Random& random)
{
    const QDate& today = plan.lastDay;
    const int making = std::max(1, static_cast<int>(card.date.daysTo(card.delivery)));
    const int progress = static_cast<int>(card.date.daysTo(today)) * 100 / making;
    for (Line& line : card.lines)
        line.cuttingDate = card.date;
    if (card.date < today && card.number % 70 == 40) { // now and then, in a small shop too
        cancel(card, random);
        return;
    }
    for (Line& line : card.lines) {
        if (progress > 15 ? random.chance(97) : random.chance(25))
            line.worker = pickWorker(line.item().craft, card.date, people, random);
        if (card.delivery < today)
            settle(line, card, today, random);
        else if (line.worker)
            advance(line, card, progress, today, random);
    }
    comeForTrial(card, today, random);
    card.closed = std::all_of(card.lines.begin(), card.lines.end(),
                              [](const Line& line) { return line.state == LineState::Delivered; });
    card.handedOver = card.closed && random.chance(40);
    if (card.handedOver) {
        const QDate day = card.deliveredOn();
        for (Line& line : card.lines)
            line.delivered = day;
    }
}

} // namespace sample
