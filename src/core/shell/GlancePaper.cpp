#include "core/shell/GlancePaper.h"

#include "core/shell/GlanceTexts.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/report/PaperDesign.h"

#include <QLocale>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace report;
using namespace glance;

namespace {

constexpr int Gap = 360; ///< between the two columns
constexpr int RowHeight = 250;
constexpr int HeadingHeight = 340;
constexpr int TileHeight = 820;
constexpr int LabelWidth = 1150;
constexpr int TextWidth = 1500;
constexpr int BarHeight = 150;

const char* const workerFields[] = {"name", "inHand", "alteration", "finished"};
const char* const workerTitles[] = {"Worker", "In hand", "Alteration", "Finished in 30 days"};

} // namespace

GlancePaper::GlancePaper(const figures::Shop& shop, const QDate& day)
    : Report(u"Shop at a Glance"_s)
    , m_head(addSection(u"Section4"_s, Band::ReportHead))
{
    Subject = u"Shop at a Glance "_s + dateText(day);
    addHead(day);
    const int tables = addFigures(shop, when(day), 900);
    const int half = (width() - Gap) / 2;
    const Place left{0, half, tables};
    const Place right{half + Gap, half, tables};
    const int leftEnd = addDues(shop, {left.left, half, addDue(shop, day, left)});
    const int rightEnd = addMoney(shop, right);
    m_head.Height = addDebtors(shop, {0, width(), std::max(leftEnd, rightEnd)});
    addWorkers(shop);
    addFoot(shop);
}

QString GlancePaper::newName() { return u"Label%1"_s.arg(++m_names); }

Label& GlancePaper::addText(const QString& text, int left, int top, int width, double fontSize)
{
    Label& label = m_head.addLabel(newName(), text);
    label.place(left, top, width, RowHeight);
    label.FontSize = fontSize;
    label.Color = palette::onPaper::ink;
    return label;
}

void GlancePaper::addHead(const QDate& day)
{
    paper::company(m_head, 0, 0, width(), 16).Caption = session.ShopName;
    paper::subtitle(m_head, newName(), Title + u"  ·  "_s + longDay(day), 440, width(), 11);
    paper::rule(m_head, newName(), 0, 780, width(), palette::onPaper::ink).Weight = 20;
}

/// The six figures of the day, three beside each other.
int GlancePaper::addFigures(const figures::Shop& shop, const QString& when, int top)
{
    Currency taken;
    QStringList accounts;
    for (const figures::Taken& each : shop.taken) {
        taken += each.amount;
        accounts << each.account + u' ' + money(each.amount);
    }
    const figures::InShop& today = shop.due.front();
    const std::tuple<QString, QString, QString> tiles[] = {
        {u"Due "_s + when, count(today.all()), inWords(today)},
        {u"Overdue"_s, count(shop.overdue.uncompleted),
         u"%1 in alteration, %2 not fetched"_s.arg(shop.overdue.alteration).arg(shop.overdue.ready)},
        {u"Trials "_s + when, count(shop.trials.all), u"%1 not appeared"_s.arg(shop.trials.notAppeared)},
        {u"Birthdays "_s + when, count(shop.birthdays), u"clients"_s},
        {u"Taken "_s + when, money(taken), accounts.isEmpty() ? u"from clients"_s : accounts.join(u", "_s)},
        {u"New cards "_s + when, count(shop.newCards), u"job cards"_s}};
    constexpr int columns = 3;
    const int tileWidth = width() / columns;
    int number = 0;
    for (const auto& [caption, figure, more] : tiles) {
        const int left = number % columns * tileWidth;
        const int tileTop = top + number / columns * TileHeight;
        addText(caption, left, tileTop, tileWidth - 120, 8).Color = palette::onPaper::quietInk;
        Label& large = addText(figure, left, tileTop + 190, tileWidth - 120, 14);
        large.Height = 340;
        large.Bold = true;
        addText(more, left, tileTop + 500, tileWidth - 120, 8);
        ++number;
    }
    return top + 2 * TileHeight + 60;
}

void GlancePaper::addHeading(const QString& text, Place& place)
{
    paper::bar(m_head, newName(), place.left, place.top, place.width, HeadingHeight - 60);
    addText(text, place.left + 80, place.top + 50, place.width - 160, 9).Bold = true;
    place.top += HeadingHeight;
}

/// A label, the pieces of a bar, and what the bar says in numbers.
void GlancePaper::addBar(const QString& label, const std::vector<Piece>& pieces, double highest,
                         const QString& text, Place& place)
{
    addText(label, place.left + 80, place.top, LabelWidth - 80, 8);
    const int room = place.width - LabelWidth - TextWidth - 100;
    double left = place.left + LabelWidth;
    for (const Piece& piece : pieces) {
        if (piece.value <= 0 || highest <= 0)
            continue;
        const double length = room * piece.value / highest;
        Shape& box = m_head.addShape(newName());
        box.place(int(left), place.top + 30, std::max(1, int(length)), BarHeight);
        box.Frame = true;
        box.Fill = box.Color = piece.colour;
        left += length;
    }
    addText(text, place.left + place.width - TextWidth, place.top, TextWidth, 8).Alignment = Qt::AlignRight;
    place.top += RowHeight;
}

int GlancePaper::addDue(const figures::Shop& shop, const QDate& day, Place place)
{
    addHeading(u"Due out: not ready (dark), ready (light)"_s, place);
    double highest = 0;
    for (const figures::InShop& lines : shop.due)
        highest = std::max(highest, double(lines.all()));
    for (size_t i = 0; i < shop.due.size(); ++i) {
        const figures::InShop& lines = shop.due[i];
        addBar(QLocale::c().toString(day.addDays(qint64(i)), u"ddd d MMM"_s),
               {{double(lines.notReady()), palette::onPaper::accent},
                {double(lines.ready), palette::onPaper::accentLight}},
               highest, lines.all() == 0 ? u"nothing"_s : u"%1, %2 ready"_s.arg(lines.all()).arg(lines.ready),
               place);
    }
    return place.top + 80;
}

int GlancePaper::addDues(const figures::Shop& shop, Place place)
{
    Currency all;
    double highest = 0;
    for (const Currency due : shop.dues.byAge) {
        all += due;
        highest = std::max(highest, due.toDouble());
    }
    addHeading(u"Dues: %1 of %2 clients"_s.arg(money(all), count(shop.dues.clients)), place);
    static const QString labels[figures::Dues::ages] = {u"30 days"_s, u"60 days"_s, u"90 days"_s, u"older"_s};
    for (int age = 0; age < figures::Dues::ages; ++age) {
        const Currency due = shop.dues.byAge[age];
        addBar(labels[age], {{due.toDouble(), palette::onPaper::accent}}, highest, money(due), place);
    }
    return place.top + 80;
}

int GlancePaper::addMoney(const figures::Shop& shop, Place place)
{
    addHeading(u"Weeks: booked (light), taken (dark)"_s, place);
    double highest = 0;
    for (const figures::Week& week : shop.weeks)
        highest = std::max({highest, week.booked.toDouble(), week.taken.toDouble()});
    for (const figures::Week& week : shop.weeks) {
        addBar(shortDay(week.from), {{week.booked.toDouble(), palette::onPaper::accentLight}}, highest,
               money(week.booked), place);
        place.top -= RowHeight - BarHeight - 50;
        addBar({}, {{week.taken.toDouble(), palette::onPaper::accent}}, highest, money(week.taken), place);
    }
    return place.top + 80;
}

/// In two columns, read downwards.
int GlancePaper::addDebtors(const figures::Shop& shop, Place place)
{
    const std::vector<figures::Dues::Debtor>& debtors = shop.dues.largest;
    if (debtors.empty())
        return place.top;
    addHeading(u"Who owes most"_s, place);
    const size_t rows = (debtors.size() + 1) / 2;
    const int half = (place.width - Gap) / 2;
    for (size_t i = 0; i < debtors.size(); ++i) {
        const int left = place.left + (i < rows ? 0 : half + Gap);
        const int top = place.top + int(i % rows) * RowHeight;
        addText(debtors[i].title, left + 80, top, half - 1500, 8);
        addText(money(debtors[i].due), left + half - 1400, top, 1400, 8).Alignment = Qt::AlignRight;
    }
    return place.top + int(rows) * RowHeight + 80;
}

void GlancePaper::addWorkers(const figures::Shop& shop)
{
    Place place{0, width(), m_head.Height};
    addHeading({}, place);
    m_head.Height = place.top;
    Section& line = addSection(u"Section1"_s, Band::Detail, RowHeight);
    const int column = width() / 5;
    for (int i = 0; i < 4; ++i) {
        const int left = i == 0 ? 80 : width() - (4 - i) * column;
        const int room = i == 0 ? 2 * column - 80 : column - 80;
        Label& title = addText(QLatin1String(workerTitles[i]), left, place.top - HeadingHeight + 50, room, 9);
        title.Bold = true;
        Field& field = paper::value(line, newName(), QLatin1String(workerFields[i]), left, 0, room);
        field.FontSize = 8;
        title.Alignment = field.Alignment = i == 0 ? Qt::AlignLeft : Qt::AlignRight;
    }
    std::vector<Row> rows;
    for (const figures::WorkerLoad& worker : shop.workers) {
        Row row;
        row.set(u"name"_s, worker.name);
        row.set(u"inHand"_s, count(worker.inHand));
        row.set(u"alteration"_s, count(worker.alteration));
        row.set(u"finished"_s, count(worker.finished));
        rows.push_back(std::move(row));
    }
    setDataSource(std::move(rows));
}

void GlancePaper::addFoot(const figures::Shop& shop)
{
    Section& foot = addSection(u"Section5"_s, Band::ReportFoot, 340);
    const QStringList rooms{roomText(u"Lines"_s, shop.lines), roomText(u"Accounts"_s, shop.accounts),
                            roomText(u"Postings"_s, shop.postings)};
    paper::caption(foot, newName(), u"Used of the shop's file: "_s + rooms.join(u"  ·  "_s), 80, 60,
                   width() - 80)
        .FontSize = 8;
    paper::numberPages(*this, Title);
}
