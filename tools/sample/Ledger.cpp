#include "sample/Ledger.h"

#include "platform/values/Dates.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

QString dayText(const QDate& day) { return values::Format(day, u"dd-MMM-yyyy"_s); }

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

    /// Early each month what was finished in the month before, and the money a moment later.
    void payWages(const Worker& worker)
    {
        struct Done
        {
            QDate taken;
            Line* line;
        };
        std::map<QDate, std::vector<Done>> perMonth;
        for (Card& card : m_cards)
            for (Line& line : card.lines)
                if (line.worker == &worker && line.completed.isValid())
                    perMonth[QDate(line.completed.year(), line.completed.month(), 1)].push_back(
                        {card.date, &line});
        int owed = 0;
        for (const auto& [month, lines] : perMonth) {
            const QDate payday = month.addMonths(1).addDays(2);
            if (payday > m_plan.lastDay)
                break;
            QDate from = month;
            int total = 0;
            std::vector<Line*> covered;
            for (const Done& done : lines) {
                from = std::min(from, done.taken);
                total += done.line->item().wage;
                covered.push_back(done.line);
            }
            const QString period =
                u"Wages [ From :%1 To %2 ]"_s.arg(dayText(from), dayText(month.addMonths(1).addDays(-1)));
            m_vouchers.push_back({payday, "Wages", worker.account, account::wages, total, period, covered});
            owed += total;
            const int paid = m_random.chance(40) ? owed : owed / 500 * 500;
            if (paid > 0)
                spend(payday, worker.account, account::cash, paid, u"Wages paid"_s);
            owed -= paid;
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
