#include "sample/Ledger.h"

#include "core/store/Texts.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

class Books
{
public:
    Books(const Plan& plan, std::vector<Card>& cards, Random& random)
        : m_plan(plan)
        , m_cards(cards)
        , m_random(random)
    {
    }

    std::vector<Voucher> keep(const People& people)
    {
        receive(m_plan.firstDay(), account::capital, account::bank, 150000, u"Put in to begin"_s);
        collectBalances();
        for (const Worker& worker : people.workers)
            payWages(worker);
        payHelpers(people);
        sellCloth(people);
        payCosts();
        bankCash();
        buySupplies();
        std::stable_sort(m_vouchers.begin(), m_vouchers.end(),
                         [](const Voucher& a, const Voucher& b) { return a.date < b.date; });
        numberPayrolls();
        return std::move(m_vouchers);
    }

private:
    void receive(const QDate& day, int from, int into, int amount, const QString& remark)
    {
        m_vouchers.push_back({day, "Receipt", from, into, amount, remark, {}});
    }
    void spend(const QDate& day, int on, int outOf, int amount, const QString& remark)
    {
        m_vouchers.push_back({day, "Payment", on, outOf, -amount, remark, {}});
    }

    /// Most clients pay the rest when they fetch the last piece; some pay in part, a few not yet.
    void collectBalances()
    {
        for (const Card& card : m_cards) {
            const int balance = card.cancelled ? 0 : card.total() - card.paid;
            if (balance == 0 || !card.closed || m_random.chance(4))
                continue;
            const bool later = m_random.chance(15);
            const QDate day = card.deliveredOn().addDays(later ? m_random.between(2, 20) : 0);
            const bool part = balance > 1000 && m_random.chance(6);
            const int into = m_random.chance(30) ? account::bank : account::cash;
            if (day <= m_plan.lastDay)
                receive(day, card.client->account, into, part ? balance / 200 * 100 : balance,
                        u"Balance of card %1"_s.arg(card.number));
        }
    }

    /// Twice a month what was finished in the half before: the payroll, and the money a moment later. Some
    /// ask for an advance in between, which the next payday takes off.
    void payWages(const Worker& worker)
    {
        struct Done
        {
            QDate taken;
            Line* line;
        };
        std::map<QDate, std::vector<Done>> halves; // by their last day
        for (Card& card : m_cards)
            for (Line& line : card.lines)
                if (line.worker == &worker && line.completed.isValid())
                    halves[endOfHalf(line.completed)].push_back({card.date, &line});
        int owed = 0;
        for (const auto& [end, lines] : halves) {
            const QDate payday = end.addDays(2);
            if (payday > m_plan.lastDay)
                break;
            QDate from = end;
            int total = 0;
            std::vector<Line*> covered;
            for (const Done& done : lines) {
                from = std::min(from, done.taken);
                total += done.line->item().wage;
                covered.push_back(done.line);
            }
            if (m_random.chance(20) && total >= 600) {
                const int advance = total / 600 * 200;
                const QDate day = end.addDays(-m_random.between(3, 9));
                spend(std::max(day, m_plan.firstDay()), worker.account, account::cash, advance, u"Advance"_s);
                owed -= advance;
            }
            const QString period = u"Wages [ From :%1 To %2 ]"_s.arg(dateText(from), dateText(end));
            m_vouchers.push_back({payday, "Wages", worker.account, account::wages, total, period, covered});
            owed += total;
            const int paid = m_random.chance(40) ? owed : owed / 500 * 500;
            if (paid > 0)
                spend(payday, worker.account, account::cash, paid, u"Wages paid"_s);
            owed -= std::max(paid, 0);
        }
    }

    /// The 15th, or the last day of the month.
    static QDate endOfHalf(const QDate& day)
    {
        return {day.year(), day.month(), day.day() <= 15 ? 15 : day.daysInMonth()};
    }

    /// A helper's day before a feast, paid by the day and not by the piece.
    void payHelpers(const People& people)
    {
        for (QDate day = m_plan.firstDay().addDays(20); day < m_plan.lastDay; day = day.addDays(30)) {
            const QDate last = day;
            const auto present =
                std::find_if(people.workers.begin(), people.workers.end(), [&last](const Worker& worker) {
                    return worker.from <= last && last <= worker.to;
                });
            if (present == people.workers.end())
                continue;
            const int wage = m_random.between(6, 9) * 50;
            m_vouchers.push_back({day,
                                  "Wages",
                                  present->account,
                                  account::wages,
                                  wage,
                                  u"A day's help before the feast"_s,
                                  {}});
            spend(day, present->account, account::cash, wage, u"A day's help paid"_s);
        }
    }

    /// Cloth from the shelf, now and then: on the client's account, who pays with the bill or some days
    /// later.
    void sellCloth(const People& people)
    {
        for (QDate day = m_plan.firstDay().addDays(3); day < m_plan.lastDay;
             day = day.addDays(m_random.between(6, 16))) {
            const int client = m_random.pick(people.clients).account;
            const int price = m_random.between(4, 30) * 50;
            m_vouchers.push_back(
                {day, "Sales", client, account::sales, -price, u"Cloth, by the metre"_s, {}});
            const QDate paid = day.addDays(m_random.chance(70) ? 0 : m_random.between(2, 12));
            if (paid <= m_plan.lastDay)
                receive(paid, client, account::cash, price, u"For cloth"_s);
        }
    }

    void payCosts()
    {
        const QDate first = m_plan.firstDay();
        for (QDate month(first.year(), first.month(), 1); month <= m_plan.lastDay;
             month = month.addMonths(1)) {
            const auto cost = [&](int day, int on, int outOf, int amount, const QString& remark) {
                const QDate date = month.addDays(day - 1);
                if (date >= first && date <= m_plan.lastDay)
                    spend(date, on, outOf, amount, remark);
            };
            cost(5, account::rent, account::bank, 18000, u"Rent of the month"_s);
            cost(12, account::electricity, account::bank, m_random.between(22, 48) * 100,
                 u"Electricity bill"_s);
            if (m_random.chance(40))
                cost(20, account::repairs, account::cash, m_random.between(3, 15) * 100,
                     u"Machine serviced"_s);
        }
    }

    /// Money is drawn before the till runs out, on paydays; at the end of each month what the till does not
    /// need goes to the bank.
    void bankCash()
    {
        constexpr int least = 5000;
        constexpr int till = 20000;
        std::map<QDate, int> flow; // into the till, by day
        for (const Card& card : m_cards)
            if (card.receiptAccount == account::cash)
                flow[card.date] += card.paid;
        for (const Voucher& voucher : m_vouchers)
            if (voucher.reference == account::cash)
                flow[voucher.date] += voucher.amount;
        int cash = 0;
        for (auto day = flow.begin(); day != flow.end(); ++day) {
            cash += day->second;
            const auto next = std::next(day);
            const bool monthEnds = next != flow.end() && next->first.month() != day->first.month();
            const int spare = (cash - till) / 1000 * 1000;
            if (cash < least)
                spend(day->first, account::cash, account::bank, -spare, u"Drawn for the till"_s);
            else if (monthEnds && spare > 0)
                spend(day->first, account::bank, account::cash, spare, u"Paid in"_s);
            else
                continue;
            cash -= spare;
        }
    }

    /// Thread, buttons, lining: as often as the number of postings leaves room for, else twice a week.
    void buySupplies()
    {
        static constexpr const char* supplies[] = {"Thread and bobbins", "Buttons",        "Lining cloth",
                                                   "Canvas and fusing",  "Zips and hooks", "Laces",
                                                   "Tea and snacks",     "Needles, chalk"};
        int room = m_plan.days * 2 / 7;
        if (m_plan.postings > 0)
            room = (m_plan.postings - postings()) / 2;
        if (room < 0)
            qFatal("the business makes %d postings more than planned", -2 * room);
        for (int i = 0; i < room; ++i) {
            const QDate day = m_plan.firstDay().addDays(qint64(i) * m_plan.days / room);
            const QString what = QString::fromLatin1(m_random.pick(supplies));
            m_vouchers.push_back(
                {day, "Purchase", account::bank, account::purchase, m_random.between(2, 24) * 50, what, {}});
        }
    }

    /// The postings of the cards and of the vouchers written so far.
    int postings() const
    {
        int count = 2 * static_cast<int>(m_vouchers.size());
        for (const Card& card : m_cards)
            count += card.paid > 0 ? 4 : 2;
        return count;
    }

    void numberPayrolls()
    {
        for (size_t i = 0; i < m_vouchers.size(); ++i)
            for (Line* line : m_vouchers[i].wages)
                line->payroll = static_cast<int>(i) + 1;
    }

    const Plan& m_plan;
    std::vector<Card>& m_cards;
    Random& m_random;
    std::vector<Voucher> m_vouchers;
};

} // namespace

std::vector<Voucher> keepBooks(const Plan& plan, const People& people, std::vector<Card>& cards,
                               Random& random)
{
    return Books(plan, cards, random).keep(people);
}

} // namespace sample
