// The orders that came in: how many a day, from whom, what, and what was paid with them.
#include "sample/Cards.h"
#include "sample/Texts.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace sample {

namespace {

/// Weddings and the feast of lights fill the shop; Sundays bring the families.
double weight(const QDate& day)
{
    static constexpr double ofMonth[] = {1.2, 1.2, 0.9, 1.2, 1.3, 0.9, 0.7, 0.8, 0.9, 1.4, 1.4, 1.2};
    static constexpr double ofWeekday[] = {0.9, 0.7, 0.9, 1.0, 1.0, 1.2, 1.4};
    return ofMonth[day.month() - 1] * ofWeekday[day.dayOfWeek() - 1];
}

/// Deals `total` out over the days by their weights, to the last one.
void deal(std::vector<int>& perDay, const QDate& first, int from, int to, int total)
{
    double whole = 0;
    for (int i = from; i < to; ++i)
        whole += weight(first.addDays(i));
    double reached = 0;
    int dealt = 0;
    for (int i = from; i < to; ++i) {
        reached += weight(first.addDays(i));
        const int upTo = static_cast<int>(std::lround(total * reached / whole));
        perDay[static_cast<size_t>(i)] = upTo - dealt;
        dealt = upTo;
    }
}

std::vector<int> linesPerDay(const Plan& plan)
{
    std::vector<int> perDay(static_cast<size_t>(plan.days));
    const int lastMonth = std::max(0, plan.days - 30);
    deal(perDay, plan.firstDay(), 0, lastMonth, plan.lines - plan.lastMonthLines);
    deal(perDay, plan.firstDay(), lastMonth, plan.days - 1, plan.lastMonthLines - plan.lastDayLines);
    perDay.back() = plan.lastDayLines;
    return perDay;
}

/// How many lines each of a day's cards has.
std::vector<int> dealLines(int lines, int cards, Random& random)
{
    std::vector<int> result(static_cast<size_t>(cards), 1);
    for (int left = lines - cards; left > 0; --left)
        ++result[static_cast<size_t>(random.below(cards))];
    return result;
}

int pickGarment(const Client& client, Random& random)
{
    const Wearer other = client.woman ? Wearer::Man : Wearer::Woman;
    // Now and then somebody orders for the family.
    const bool anything = random.chance(8);
    const auto share = [&](const Garment& garment) {
        return !anything && garment.wearer == other ? 0 : garment.share;
    };
    const std::vector<Garment>& garments = catalogue();
    const int whole = std::accumulate(garments.begin(), garments.end(), 0,
                                      [&](int sum, const Garment& garment) { return sum + share(garment); });
    int thrown = random.below(whole);
    int place = 0;
    while ((thrown -= share(garments[static_cast<size_t>(place)])) >= 0)
        ++place;
    return place;
}

Line order(const Client& client, int card, Random& random)
{
    Line line;
    line.garment = pickGarment(client, random);
    const Garment& item = line.item();
    line.quantity = item.fees > 1000 || random.chance(62) ? 1 : random.between(2, 4);
    line.values = item.values(client.account, client.size, card);
    line.cloth = cloth(random);
    if (random.chance(60))
        line.remark = remark(item, random);
    if (random.chance(40))
        line.clientRemark = wish(random);
    return line;
}

/// Half of the clients pay at once, some leave an advance, the others pay when they fetch.
void pay(Card& card, Random& random)
{
    const int way = random.below(100);
    if (way < 52)
        card.paid = card.total();
    else if (way < 72)
        card.paid = std::max(100, card.total() * random.between(3, 6) / 1000 * 100);
    card.paid = std::min(card.paid, card.total());
    if (random.chance(35))
        card.receiptAccount = account::bank;
}

void promise(Card& card, Random& random)
{
    int days = 0;
    for (const Line& line : card.lines)
        days = std::max(days, line.item().days);
    card.delivery = card.date.addDays(days + random.between(-1, 3));
    card.trial = card.delivery.addDays(-random.between(2, 3));
}

/// A new client as long as new ones have to come, by turns with those who come again.
const Client* visitor(const Plan& plan, const People& people, int card, Random& random)
{
    const auto known = [&](int cards) {
        return static_cast<int>((qint64(cards) * plan.clients + plan.cards - 1) / plan.cards);
    };
    const int before = known(card);
    const int newest = known(card + 1);
    return &people.clients[static_cast<size_t>(newest > before ? before : random.below(before))];
}

} // namespace

int Card::total() const
{
    return std::accumulate(lines.begin(), lines.end(), 0,
                           [](int sum, const Line& line) { return sum + line.amount(); });
}

QDate Card::deliveredOn() const
{
    QDate last;
    for (const Line& line : lines)
        last = !last.isValid() || line.delivered > last ? line.delivered : last;
    return last;
}

std::vector<Card> takeOrders(const Plan& plan, const People& people, Random& random)
{
    std::vector<Card> cards;
    cards.reserve(static_cast<size_t>(plan.cards));
    int linesLeft = plan.lines;
    const std::vector<int> perDay = linesPerDay(plan);
    for (int day = 0; day < plan.days; ++day) {
        const int lines = perDay[static_cast<size_t>(day)];
        if (lines == 0)
            continue;
        const int cardsLeft = plan.cards - static_cast<int>(cards.size());
        const int share = static_cast<int>(std::lround(double(lines) * cardsLeft / linesLeft));
        const int count = std::clamp(lines == linesLeft ? cardsLeft : share, 1, lines);
        linesLeft -= lines;
        for (const int ordered : dealLines(lines, count, random)) {
            Card card;
            card.number = plan.firstNumber + static_cast<int>(cards.size());
            card.date = plan.firstDay().addDays(day);
            card.client = visitor(plan, people, static_cast<int>(cards.size()), random);
            for (int i = 0; i < ordered; ++i)
                card.lines.push_back(order(*card.client, card.number, random));
            promise(card, random);
            pay(card, random);
            if (random.chance(12))
                card.remark = cardRemark(random);
            live(card, plan, people, random);
            cards.push_back(card);
        }
    }
    return cards;
}

} // namespace sample
