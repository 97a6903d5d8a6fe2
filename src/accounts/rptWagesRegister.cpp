#include "accounts/rptWagesRegister.h"

#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "jobcards/PaperDesign.h"

using namespace Qt::StringLiterals;

using namespace report;

namespace {

const QString Day = u"dd-MMM-yyyy"_s;
const QString Money = u"0.00"_s;

constexpr int Margin = 620;
constexpr int Width = mm(210) - 2 * Margin;
constexpr int Gap = 70;

struct Column
{
    const char* title;
    const char* caption;
    const char* field;
    const char* dataField;
    int left;
    int width;
    QString format;
};

/// The money stands right-aligned, with room to what follows it.
const Column columns[] = {
    {"Label2", "Date", "txtDate", "date", Gap, 1280, Day},
    {"Label3", "JOB ID", "txtJobID", "Jobid", 1410, 930, {}},
    {"Label4", "Client Name", "txtClient", "client", 2360, 1680, {}},
    {"Label5", "Item", "txtItem", "item", 4070, 1430, {}},
    {"Label6", "Amount", "txtWages", "wages", 5510, 940, Money},
    {"Label7", "Balance", "txtBalance", "balance", 6470, 1200, Money},
    {"Label8", "Completed Date", "txtCompleted", "completed", 7830, 1480, {}},
    {"Label9", "Paid  Unpaid", "txtStatus", "status", 9360, Width - 9360, {}},
};

} // namespace

rptWagesRegister::rptWagesRegister()
    : Report(u"Wages Register"_s)
{
    LeftMargin = RightMargin = Margin;
    addSection(u"Section4"_s, Band::ReportHead);

    Section& head = addSection(u"Section2"_s, Band::PageHead, 1980);
    paper::company(head, 0, 0, Width, 16);
    Label& title = head.addLabel(u"lblTitle"_s, Title);
    title.place(0, 440, Width, 300);
    title.FontSize = 11;
    title.Color = palette::quietInk;
    title.Alignment = Qt::AlignHCenter;
    paper::rule(head, u"Line1"_s, 0, 820, Width, palette::ink).Weight = 20;
    paper::caption(head, u"Label1"_s, u"Worker Name :"_s, Gap, 980, 1350);
    Label& worker = head.addLabel(u"lblWorkerName"_s, {});
    worker.place(Gap + 1350, 950, Width - 1350 - Gap, 320);
    worker.FontSize = 13;
    worker.Bold = true;
    worker.Color = palette::ink;

    constexpr int titles = 1440;
    paper::bar(head, u"Shape1"_s, 0, titles, Width, 380);
    head.Height = titles + 440;

    Section& line = addSection(u"Section1"_s, Band::Detail, 330);
    for (const Column& column : columns) {
        const bool isMoney = column.format == Money;
        Label& caption = head.addLabel(QLatin1String(column.title), QLatin1String(column.caption));
        caption.place(column.left, titles + 80, column.width, 240);
        caption.FontSize = 8;
        caption.Bold = true;
        caption.Color = palette::ink;
        Field& field = paper::value(line, QLatin1String(column.field), QLatin1String(column.dataField),
                                    column.left, 50, column.width, column.format);
        field.FontSize = 9;
        field.CanGrow = true;
        if (isMoney)
            caption.Alignment = field.Alignment = Qt::AlignRight;
    }
    paper::rule(line, u"Line2"_s, 0, 330, Width);

    Section& pageFoot = addSection(u"Section3"_s, Band::PageFoot, 260);
    Label& number = paper::caption(pageFoot, u"lblPage"_s, {}, 0, 0, Width);
    number.CountsPages = true;
    number.FontSize = 8;
    number.Alignment = Qt::AlignRight;
    addSection(u"Section5"_s, Band::ReportFoot);
}

std::unique_ptr<Report> wagesPaper(const std::vector<wages::Line>& lines, const QString& worker)
{
    wages::stage(lines);
    auto paper = std::make_unique<rptWagesRegister>();
    withRows(u"Select * from wagesregister"_s,
             [&paper](ado::Recordset& staged) { paper->setDataSource(readRows(staged)); });
    paper->Subject = u"Wages Register "_s + worker;
    Section& head = paper->section(u"Section2"_s);
    head.label(u"lblCompany"_s).Caption = session.ShopName;
    head.label(u"lblWorkerName"_s).Caption = worker;
    paper->section(u"Section3"_s).label(u"lblPage"_s).Caption =
        u"Wages Register · %1 · Page %p of %P"_s.arg(worker);
    return paper;
}
