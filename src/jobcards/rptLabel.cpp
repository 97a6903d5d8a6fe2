#include "jobcards/rptLabel.h"

#include "jobcards/LineCodeBars.h"
#include "platform/report/PaperDesign.h"
#include "ui/PaperPrinters.h"

using namespace Qt::StringLiterals;

using namespace report;

namespace {

constexpr QSizeF LabelSize(100, 60);
constexpr int Width = mm(100 - 10);
constexpr int CaptionWidth = 1350;
constexpr int RowHeight = 300;

} // namespace

rptLabel::rptLabel()
    : Report(u"Print Label"_s)
{
    Kind = int(PaperKind::Label);
    PageSize = LabelSize;
    LeftMargin = RightMargin = mm(5);
    TopMargin = BottomMargin = mm(3);

    Section& line = addSection(u"Section1"_s, Band::Detail);
    paper::company(line, 0, 0, Width, 12);
    paper::rule(line, u"Line1"_s, 0, 340, Width, palette::onPaper::ink).Weight = 15;
    const auto row = [&](const char* label, const char* caption, const char* field, const char* dataField,
                         int top, int width) -> Field& {
        paper::caption(line, QLatin1String(label), QLatin1String(caption), 0, top, CaptionWidth);
        Field& value =
            paper::value(line, QLatin1String(field), QLatin1String(dataField), CaptionWidth, top, width);
        value.FontSize = 11;
        value.CanGrow = true;
        return value;
    };
    constexpr int wide = Width - CaptionWidth;
    int top = 420;
    Field& job = row("Label2", "Job Card #:", "txtJobID", "JobID", top, 900);
    job.FontSize = 13;
    job.Top -= 45;
    job.Bold = true;
    job.CanGrow = false;
    Shape& tag = line.addShape(u"Shape1"_s);
    tag.place(CaptionWidth + 960, top - 25, 460, 290);
    tag.Frame = true;
    tag.Color = palette::onPaper::ink;
    Field& item = paper::value(line, u"Text1"_s, u"ItemSr"_s, tag.Left, top, tag.Width);
    item.Bold = true;
    item.Alignment = Qt::AlignHCenter;
    paper::caption(line, u"Label1"_s, u"Date :"_s, 3160, top, 600);
    paper::value(line, u"txtDATE"_s, u"DATE"_s, 3760, top, Width - 3760, u"dd-mmm-yy"_s);
    top += RowHeight;
    row("Label3", "Client Name:", "txtClintName", "ClintName", top, wide).Bold = true;
    top += RowHeight;
    row("Label4", "Worker Name:", "txtWorkerName", "WorkerName", top, wide);
    top += RowHeight;
    row("Label6", "Item Name:", "txtItemName", "ItemName", top, wide).Bold = true;
    top += RowHeight;
    row("Label9", "Remark:", "Text2", "Remarks", top, wide);
    line.Height = top + RowHeight;
    paper::codeFoot(*this, Width);
}
