#include "accounts/rptWagesRegister.h"

#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "platform/report/PaperDesign.h"
#include "ui/PaperPrinters.h"

using namespace Qt::StringLiterals;

using namespace report;

namespace {

const QString Day = u"dd-MMM-yyyy"_s;
const QString Money = u"0.00"_s;

constexpr int Margin = 620;
constexpr int Width = mm(210) - 2 * Margin;
constexpr int Gap = 70;

/// The money stands right-aligned, with room to what follows it.
const std::vector<paper::Column> columns = {
    {u"Label2"_s, u"Date"_s, u"txtDate"_s, u"date"_s, Gap, 1280, Day},
    {u"Label3"_s, u"JOB ID"_s, u"txtJobID"_s, u"Jobid"_s, 1410, 930},
    {u"Label4"_s, u"Client Name"_s, u"txtClient"_s, u"client"_s, 2360, 1680},
    {u"Label5"_s, u"Item"_s, u"txtItem"_s, u"item"_s, 4070, 1430},
    {u"Label6"_s, u"Amount"_s, u"txtWages"_s, u"wages"_s, 5510, 940, Money, Qt::AlignRight},
    {u"Label7"_s, u"Balance"_s, u"txtBalance"_s, u"balance"_s, 6470, 1200, Money, Qt::AlignRight},
    {u"Label8"_s, u"Completed Date"_s, u"txtCompleted"_s, u"completed"_s, 7830, 1480},
    {u"Label9"_s, u"Paid  Unpaid"_s, u"txtStatus"_s, u"status"_s, 9360, Width - 9360},
};

} // namespace

rptWagesRegister::rptWagesRegister()
    : Report(u"Wages Register"_s)
{
    Kind = int(PaperKind::Wages);
    LeftMargin = RightMargin = Margin;
    addSection(u"Section4"_s, Band::ReportHead);

    Section& head = addSection(u"Section2"_s, Band::PageHead, 1980);
    paper::company(head, 0, 0, Width, 16);
    paper::subtitle(head, u"lblTitle"_s, Title, 440, Width, 11);
    paper::rule(head, u"Line1"_s, 0, 820, Width, palette::onPaper::ink).Weight = 20;
    paper::caption(head, u"Label1"_s, u"Worker Name :"_s, Gap, 980, 1350);
    Label& worker = head.addLabel(u"lblWorkerName"_s, {});
    worker.place(Gap + 1350, 950, Width - 1350 - Gap, 320);
    worker.FontSize = 13;
    worker.Bold = true;
    worker.Color = palette::onPaper::ink;

    constexpr int titles = 1440;
    paper::bar(head, u"Shape1"_s, 0, titles, Width, 380);
    head.Height = titles + 440;

    Section& line = addSection(u"Section1"_s, Band::Detail, 330);
    paper::table(head, line, columns, {.titleTop = titles + 80, .fieldTop = 50, .titleSize = 8});
    paper::rule(line, u"Line2"_s, 0, 330, Width);

    Section& pageFoot = addSection(u"Section3"_s, Band::PageFoot, 260);
    paper::pageNumber(pageFoot, {}, 0, 0, Width);
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
