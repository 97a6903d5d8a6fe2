#include "platform/report/ListPaper.h"

#include "platform/forms/ListSheet.h"
#include "platform/forms/Palette.h"
#include "platform/report/PaperDesign.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int gap = 130;   ///< between two columns
constexpr int least = 400; ///< a column's width
constexpr int slack = 40;  ///< a small type is set a little wider than the large one that is measured
constexpr int rowHeight = 290;
constexpr double typeSize = 9;

/// How wide the columns would like to be.
std::vector<int> wanted(const forms::ListSheet& sheet, const QString& family)
{
    QFont font(family);
    font.setPointSizeF(typeSize * 10); // measured large, for no rounding
    font.setBold(true);
    const QFontMetricsF metrics(font);
    const double twips = twipsPerInch / 72.0 * typeSize * 10 / QFontInfo(font).pixelSize() / 10;
    QHash<QString, double> known; // names and days come again and again
    const auto widthOf = [&](const QString& text) {
        auto found = known.constFind(text);
        if (found == known.constEnd())
            found = known.insert(text, metrics.horizontalAdvance(text));
        return *found;
    };
    std::vector<int> widths;
    for (size_t column = 0; column < sheet.columns.size(); ++column) {
        double width = widthOf(sheet.columns[column].title);
        for (const forms::ListSheet::Row& row : sheet.rows)
            width = std::max(width, widthOf(row.cells.value(int(column))));
        widths.push_back(std::max(least, int(width * twips) + slack + gap));
    }
    return widths;
}

/// Takes from the widest what is too much; spreads what is left over.
void fit(std::vector<int>& widths, int room)
{
    const int all = std::accumulate(widths.begin(), widths.end(), 0);
    if (all <= room) {
        for (int& width : widths)
            width += (room - all) / int(widths.size());
        return;
    }
    std::vector<int> sorted = widths;
    std::sort(sorted.begin(), sorted.end());
    int left = room;
    int cap = 0;
    for (size_t i = 0; i < sorted.size(); ++i) {
        cap = left / int(sorted.size() - i);
        if (sorted[i] > cap)
            break;
        left -= sorted[i];
    }
    for (int& width : widths)
        width = std::min(width, cap);
}

std::function<ListHeading()>& headingNow()
{
    static std::function<ListHeading()> heading;
    return heading;
}

QString fieldName(size_t column, bool bold) { return (bold ? u"total%1"_s : u"cell%1"_s).arg(column); }

} // namespace

QString ListHeading::text() const
{
    return owner.isEmpty() || day.isEmpty() ? owner + day : u"%1  \u00B7  %2"_s.arg(owner, day);
}

ListHeading listHeading() { return headingNow() ? headingNow()() : ListHeading(); }

void setListHeading(std::function<ListHeading()> heading) { headingNow() = std::move(heading); }

std::unique_ptr<Report> listPaper(const forms::ListSheet& sheet, const ListHeading& heading)
{
    auto paper = std::make_unique<Report>(sheet.title);
    std::vector<int> widths = wanted(sheet, paper->FontFamily);
    if (std::accumulate(widths.begin(), widths.end(), 0) > paper->width())
        paper->PageSize.transpose();
    fit(widths, paper->width());

    Section& head = paper->addSection(u"Head"_s, Band::PageHead);
    Label& title = head.addLabel(u"lblTitle"_s, sheet.title);
    title.place(0, 0, paper->width() * 3 / 5, 400);
    title.FontSize = 14;
    title.Bold = true;
    title.Color = palette::onPaper::ink;
    Label& whose = head.addLabel(u"lblHeading"_s, heading.text());
    whose.place(paper->width() * 3 / 5, 90, paper->width() * 2 / 5, 260);
    whose.FontSize = typeSize;
    whose.Color = palette::onPaper::quietInk;
    whose.Alignment = Qt::AlignRight;
    Label& criteria = head.addLabel(u"lblCriteria"_s, sheet.criteria.join(u"  ·  "_s));
    criteria.place(0, 420, paper->width(), 260);
    criteria.FontSize = typeSize;
    criteria.Color = palette::onPaper::quietInk;
    criteria.CanGrow = true;
    if (!sheet.titles().isEmpty())
        paper::bar(head, u"Shape1"_s, 0, 740, paper->width(), 360);

    Section& line = paper->addSection(u"Row"_s, Band::Detail, rowHeight);
    int left = 0;
    for (size_t column = 0; column < widths.size(); ++column) {
        const int width = widths[column] - gap;
        const Qt::Alignment side = sheet.columns[column].isRight ? Qt::AlignRight : Qt::AlignLeft;
        const auto set = [&](TextControl& text, int top, bool bold) {
            text.place(left + gap / 2, top, width, 250);
            text.FontSize = typeSize;
            text.Bold = bold;
            text.Color = palette::onPaper::ink;
            text.Alignment = side;
            text.CanGrow = true;
        };
        Label& caption = head.addLabel(u"Head%1"_s.arg(column), sheet.columns[column].title);
        set(caption, 800, true);
        caption.CanGrow = false;
        for (const bool bold : {false, true})
            set(line.addField(fieldName(column, bold), fieldName(column, bold)), 30, bold);
        left += widths[column];
    }
    head.Height = sheet.titles().isEmpty() ? 760 : 1150;
    paper::rule(line, u"Line1"_s, 0, rowHeight, paper->width());

    paper::pageNumber(paper->addSection(u"Foot"_s, Band::PageFoot, 300), sheet.title + u" · %p of %P"_s, 0,
                      60, paper->width());

    std::vector<Row> rows;
    for (const forms::ListSheet::Row& each : sheet.rows) {
        Row row;
        for (size_t column = 0; column < widths.size(); ++column)
            for (const bool bold : {false, true})
                row.set(fieldName(column, bold),
                        bold == each.isBold(column) ? each.cells.value(int(column)).trimmed() : QString());
        rows.push_back(std::move(row));
    }
    paper->setDataSource(std::move(rows));
    return paper;
}

} // namespace report
