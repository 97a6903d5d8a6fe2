#include "accounts/rptAccountsBooks.h"

#include "accounts/BookLines.h"
#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/report/PaperDesign.h"
#include "platform/values/Numbers.h"
#include "ui/PaperPrinters.h"

using namespace Qt::StringLiterals;

using namespace report;

namespace {

constexpr int Width = 10466; ///< of A4 between the margins
constexpr int Gap = 120;
constexpr int RowHeight = 300;

const QString Day = u"dd-MMM-yy"_s;
const QString Money = u"0.00"_s;

/// A column of the postings.
struct Column
{
    const char* caption;
    const char* dataField;
    int left;
    int width;
    bool money = false;
};
const std::vector<Column> plainColumns = {
    {"Date", "Date", Gap, 1200},          {"VC #", "vid", 1440, 900},
    {"Voucher", "vaucher", 2460, 1300},   {"Particulars", "particulars", 3880, 3000},
    {"Debit", "debit", 6920, 1680, true}, {"Credit", "credit", 8640, Width - 8640 - Gap, true},
};
const std::vector<Column> remarkColumns = {
    {"Date", "Date", Gap, 1120},
    {"VC #", "vid", 1320, 720},
    {"Voucher", "vaucher", 2120, 1060},
    {"Particulars", "particulars", 3260, 2000},
    {"Debit", "debit", 5300, 1360, true},
    {"Credit", "credit", 6700, 1360, true},
    {"Remark", "remark", 8220, Width - 8220 - Gap},
};

/// A balance as the head of a statement words it.
QString side(double balance)
{
    if (balance == 0)
        return u"None"_s;
    return values::CStr(std::abs(balance)) + (balance > 0 ? u" Cr."_s : u" Dr."_s);
}

QString shopLines()
{
    QStringList lines{session.ShopAddress1, session.ShopAddress2, session.ShopAddress3, session.ShopContacts};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

const std::vector<Column>& columnsOf(bool withRemark) { return withRemark ? remarkColumns : plainColumns; }

} // namespace

rptAccountsBooks::rptAccountsBooks(bool withRemark)
    : Report(u"Account Statement"_s)
    , m_withRemark(withRemark)
{
    Kind = int(PaperKind::Statement);
    designShop();
    designHead();
    designPosting();
    designTotals();
    Section& foot = addSection(u"Section5"_s, Band::PageFoot, 320);
    paper::pageNumber(foot, u"Page %p of %P"_s, 0, 60, Width).FontSize = 9;
}

void rptAccountsBooks::designShop()
{
    Section& shop = addSection(u"Section4"_s, Band::PageHead);
    paper::company(shop, 0, 0, Width, 20);
    Label& address = shop.addLabel(u"lblAddress"_s, {});
    address.place(0, 520, Width, 270);
    address.Color = palette::onPaper::ink;
    address.Alignment = Qt::AlignHCenter;
    address.CanGrow = true;
    paper::subtitle(shop, u"lblReport"_s, Title, 860, Width, 13).Bold = true;
    shop.Height = 1280;
}

void rptAccountsBooks::designHead()
{
    Section& head = addSection(u"Section2"_s, Band::PageHead);
    paper::rule(head, u"Line1"_s, 0, 0, Width, palette::onPaper::ink).Weight = 25;
    struct Line
    {
        const char* caption;
        const char* name;
        int left;
        int top;
    };
    constexpr int captionWidth = 1750;
    constexpr int right = 6000;
    for (const Line& line :
         {Line{"Opening Balance :", "lblOpn", right, 140},
          Line{"Closing Balance :", "lblCls", right, 140 + RowHeight},
          Line{"Report Period :", "lblPeriod", 0, 140 + RowHeight}, Line{"Account :", "lblParty", 0, 140}}) {
        const int left = line.left + (line.left == 0 ? Gap : 0);
        paper::caption(head, QLatin1String(line.name).mid(3) + u"Caption"_s, QLatin1String(line.caption),
                       left, line.top, captionWidth);
        Label& value = head.addLabel(QLatin1String(line.name), {});
        value.place(left + captionWidth, line.top,
                    (line.left == right ? Width - Gap : right - Gap) - left - captionWidth, 270);
        value.Color = palette::onPaper::ink;
        value.Bold = true;
        value.CanGrow = true;
        if (line.left == right)
            value.Alignment = Qt::AlignRight;
    }
    const int top = 140 + 2 * RowHeight + 60;
    paper::bar(head, u"Shape1"_s, 0, top, Width, 360);
    for (const Column& column : columnsOf(m_withRemark)) {
        Label& title =
            head.addLabel(u"Head"_s + QLatin1String(column.dataField), QLatin1String(column.caption));
        title.place(column.left, top + 70, column.width, 240);
        title.FontSize = 9;
        title.Bold = true;
        title.Color = palette::onPaper::ink;
        if (column.money)
            title.Alignment = Qt::AlignRight;
    }
    head.Height = top + 360 + 40;
}

void rptAccountsBooks::designPosting()
{
    Section& posting = addSection(u"Section1"_s, Band::Detail, RowHeight + 40);
    for (const Column& column : columnsOf(m_withRemark)) {
        const QString name = QLatin1String(column.dataField);
        Field& field = paper::value(posting, u"txt"_s + name, name, column.left, 40, column.width,
                                    column.money      ? Money
                                    : name == u"Date" ? Day
                                                      : QString());
        field.FontSize = 9;
        field.CanGrow = true;
        if (column.money)
            field.Alignment = Qt::AlignRight;
    }
    paper::rule(posting, u"Line2"_s, 0, RowHeight + 40, Width);
}

void rptAccountsBooks::designTotals()
{
    Section& totals = addSection(u"Section3"_s, Band::ReportFoot, 460);
    totals.KeepsRow = true;
    paper::bar(totals, u"Shape2"_s, 0, 40, Width, 360);
    const auto total = [&totals](const char* name, const QString& caption, int left, int width) -> Label& {
        Label& label = totals.addLabel(QLatin1String(name), caption);
        label.place(left, 100, width, 260);
        label.FontSize = 9;
        label.Bold = true;
        label.Color = palette::onPaper::ink;
        label.CanGrow = true;
        return label;
    };
    const std::vector<Column>& columns = columnsOf(m_withRemark);
    total("lblTotal", u"Current Total"_s, columns[AccountBook::Particulars].left,
          columns[AccountBook::Particulars].width);
    for (const auto& [name, column] :
         {std::pair{"lblTotalDr", AccountBook::Debit}, std::pair{"lblTotalCr", AccountBook::Credit}})
        total(name, {}, columns[column].left, columns[column].width).Alignment = Qt::AlignRight;
}

std::unique_ptr<Report> StatementPaper(const AccountBook& book, const QString& account, const QString& period,
                                       bool withRemark)
{
    stageStatement(book);
    std::unique_ptr<Report> paper;
    if (withRemark)
        paper = std::make_unique<rptAccountsBooks2>();
    else
        paper = std::make_unique<rptAccountsBooks>();

    withRows(u"Select * from accountbook"_s,
             [&paper](ado::Recordset& staged) { paper->setDataSource(readRows(staged)); });

    paper->Subject = u"Account Statement %1 %2"_s.arg(account, period);
    Section& shop = paper->section(u"Section4"_s);
    shop.label(u"lblCompany"_s).Caption = session.ShopName;
    shop.label(u"lblAddress"_s).Caption = shopLines();
    Section& head = paper->section(u"Section2"_s);
    head.label(u"lblParty"_s).Caption = account;
    head.label(u"lblPeriod"_s).Caption = period;
    head.label(u"lblOpn"_s).Caption = side(book.OpeningBalance);
    head.label(u"lblCls"_s).Caption = side(book.ClosingBalance);
    Section& totals = paper->section(u"Section3"_s);
    totals.label(u"lblTotalDr"_s).Caption = moneyText(-book.PeriodNegative);
    totals.label(u"lblTotalCr"_s).Caption = moneyText(book.PeriodPositive);
    return paper;
}
