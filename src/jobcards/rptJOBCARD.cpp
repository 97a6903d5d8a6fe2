#include "jobcards/rptJOBCARD.h"

#include "platform/report/PaperDesign.h"
#include "ui/PaperPrinters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

using namespace report;

namespace {

constexpr int DesignWidth = 9648;
constexpr int Left = 144;
constexpr int Width = DesignWidth - 2 * Left;

constexpr int LogoSize = 1800;
constexpr int HeadingLeft = Left + LogoSize + 200;
constexpr int HeadingHeight = 1800; ///< with all its lines

const QString Day = u"dd-MMM-yyyy"_s;
const QString Money = u"0.00"_s;
const QString Total = u"#,##0.00;(#,##0.00)"_s;

/// The columns of the lines.
struct Column
{
    const char* title;
    const char* caption;
    const char* field;
    const char* dataField;
    int left;
    int width;
    Qt::Alignment alignment;
};
constexpr int Gap = 120;
const Column columns[] = {
    {"Label1", "QTY", "Text1", "QNT", Left, 600, Qt::AlignHCenter},
    {"Label10", "Particulars", "txtItemNAME", "ItemNAME", Left + 720, 2600, Qt::AlignLeft},
    {"Label14", "Remark", "Text2", "Remarks", Left + 3440, 2800, Qt::AlignLeft},
    {"Label11", "Fees", "txtFESS", "FESS", Left + 6360, 1300, Qt::AlignRight},
    {"Label12", "Amount", "txtAMOUNT", "AMOUNT", Left + 7780, Width - 7780 - Gap, Qt::AlignRight},
};

} // namespace

rptJOBCARD::rptJOBCARD()
    : Report(u"Print Job Card"_s)
{
    Kind = int(PaperKind::Card);
    LeftMargin = RightMargin = (pageWidth() - DesignWidth) / 2;
    addSection(u"Section4"_s, Band::ReportHead);
    addSection(u"Section2"_s, Band::PageHead);
    designHead();
    designLine();
    designFoot();
    Section& pageFoot = addSection(u"Section3"_s, Band::PageFoot, 260);
    paper::pageNumber(pageFoot, {}, Left, 0, Width);
    addSection(u"Section5"_s, Band::ReportFoot);
}

void rptJOBCARD::designHead()
{
    Section& head = addSection(u"Section6"_s, Band::Head, 4060);
    head.addImage(u"logo"_s).place(Left, 0, LogoSize, LogoSize);
    paper::company(head, HeadingLeft, 0, Width + Left - HeadingLeft, 24);
    int top = 620;
    for (const char* name : {"lblAddress1", "lblAddress2", "lblAddress3", "lblContact"}) {
        Label& line = head.addLabel(QLatin1String(name), {});
        line.place(HeadingLeft, top, Width + Left - HeadingLeft, 270);
        line.Color = palette::onPaper::ink;
        line.Alignment = Qt::AlignHCenter;
        line.CanGrow = true;
        top += 270;
    }
    Label& tag = head.addLabel(u"lblTag"_s, {});
    tag.place(Left, HeadingHeight + 60, Width, 280);
    tag.Italic = true;
    tag.Color = palette::onPaper::quietInk;
    tag.Alignment = Qt::AlignHCenter;
    tag.CanGrow = true;

    top = HeadingHeight + 440;
    paper::rule(head, u"Line1"_s, Left, top, Width, palette::onPaper::ink).Weight = 25;

    top += 160;
    constexpr int rowHeight = 340;
    constexpr int captionWidth = 1250;
    constexpr int right = Left + 6200;
    constexpr int rightCaption = 1350;
    paper::caption(head, u"Label2"_s, u"Date:"_s, right, top, rightCaption);
    paper::value(head, u"txtDate"_s, u"Date"_s, right + rightCaption, top,
                 Left + Width - right - rightCaption, Day);
    paper::caption(head, u"Label3"_s, u"Job Card #"_s, Left, top, captionWidth);
    Field& number = paper::value(head, u"txtJOBID"_s, u"JOBID"_s, Left + captionWidth, top - 45, 3000);
    number.FontSize = 13;
    number.Bold = true;
    top += rowHeight;
    paper::caption(head, u"Label4"_s, u"Client Name :"_s, Left, top, captionWidth);
    Field& client = paper::value(head, u"txtNAME"_s, u"NAME"_s, Left + captionWidth, top,
                                 right - Left - captionWidth - Gap);
    client.Bold = true;
    client.CanGrow = true;
    client.Height += rowHeight; // the room beside the trial date
    paper::caption(head, u"Label5"_s, u"Delivery Date :"_s, right, top, rightCaption);
    paper::value(head, u"txtDELDATE"_s, u"DELDATE"_s, right + rightCaption, top,
                 Left + Width - right - rightCaption, Day)
        .Bold = true;
    top += rowHeight;
    paper::caption(head, u"Label16"_s, u"Trial Date:"_s, right, top, rightCaption);
    paper::value(head, u"Text3"_s, u"TrialDate"_s, right + rightCaption, top,
                 Left + Width - right - rightCaption, Day);

    top += rowHeight + 40;
    paper::bar(head, u"Shape1"_s, Left, top, Width, 380).Repeats = true;
    for (const Column& column : columns) {
        Label& title = head.addLabel(QLatin1String(column.title), QLatin1String(column.caption));
        title.place(column.left, top + 70, column.width, 240);
        title.FontSize = 9;
        title.Bold = true;
        title.Color = palette::onPaper::ink;
        title.Alignment = column.alignment;
        title.Repeats = true;
    }
    head.Height = top + 380;
}

void rptJOBCARD::designLine()
{
    Section& line = addSection(u"Section1"_s, Band::Detail, 400);
    for (const Column& column : columns) {
        const bool isMoney = column.alignment == Qt::AlignRight;
        Field& field = paper::value(line, QLatin1String(column.field), QLatin1String(column.dataField),
                                    column.left, 70, column.width, isMoney ? Money : QString());
        field.Alignment = column.alignment;
        field.CanGrow = !isMoney;
    }
    paper::rule(line, u"Line2"_s, Left, 400, Width);
}

void rptJOBCARD::designFoot()
{
    Section& foot = addSection(u"Section7"_s, Band::Foot, 3560);
    constexpr int right = Left + 5900;
    constexpr int captionWidth = 1700;
    constexpr int rowHeight = 330;
    struct Sum
    {
        const char* label;
        const char* caption;
        const char* field;
        const char* dataField;
    };
    int top = 160;
    for (const Sum& sum : {Sum{"Label6", "Total", "txtAMOUNTDUE", "AMOUNTDUE"},
                           Sum{"Label7", "Amount Received", "txtAMOUNTPAID", "AMOUNTPAID"},
                           Sum{"Label17", "Amount Due", "Text4", "AMOUNT"}}) {
        const bool isBalance = qstrcmp(sum.field, "Text4") == 0;
        if (isBalance) {
            paper::bar(foot, u"Shape2"_s, right - Gap, top + 10, Left + Width - right + Gap, 400);
            top += 80;
        }
        paper::caption(foot, QLatin1String(sum.label), QLatin1String(sum.caption), right, top, captionWidth)
            .Bold = isBalance;
        Field& amount =
            paper::value(foot, QLatin1String(sum.field), QLatin1String(sum.dataField), right + captionWidth,
                         top, Left + Width - right - captionWidth - Gap, Total);
        amount.Alignment = Qt::AlignRight;
        amount.Bold = isBalance;
        top += rowHeight;
    }

    constexpr int boxHeight = 2700;
    Shape& samples = foot.addShape(u"Shape3"_s);
    samples.place(Left, 220, 5400, boxHeight);
    samples.Frame = true;
    samples.Dashed = true;
    samples.Color = palette::onPaper::quietInk;
    Label& staple =
        paper::caption(foot, u"Label15"_s, u"Staple Cloth Samples here..."_s, Left + 160, 320, 5000);
    staple.Italic = true;

    Label& company = foot.addLabel(u"lblForCompany"_s, {});
    company.place(right, 1500, Left + Width - right - Gap, 260);
    company.Alignment = Qt::AlignRight;
    company.Color = palette::onPaper::ink;
    company.CanGrow = true;
    paper::rule(foot, u"Line3"_s, right + 1400, 2620, Left + Width - right - Gap - 1400,
                palette::onPaper::quietInk);
    paper::caption(foot, u"Label9"_s, u"Auth Sig"_s, right, 2660, Left + Width - right - Gap).Alignment =
        Qt::AlignRight;
    Label& house =
        paper::caption(foot, u"Label8"_s, u"Seamwise - The Whole Shop at Hand"_s, Left, 3140, Width);
    house.FontSize = 8;
    house.Alignment = Qt::AlignHCenter;
}

void rptJOBCARD::addPayment(const QString& link)
{
    constexpr int edge = mm(31);
    Section& foot = section(u"Section7"_s);
    Shape& samples = foot.shape(u"Shape3"_s);
    paper::qrCode(foot, u"Payment"_s, link, u"Scan to pay what is due"_s, samples.Left + samples.Width - edge,
                  samples.Top, edge);
    samples.Width -= edge + Gap;
}

void rptJOBCARD::closeUpHeading()
{
    Section& head = section(u"Section6"_s);
    int bottom = 0;
    for (const char* name : {"lblCompany", "lblAddress1", "lblAddress2", "lblAddress3", "lblContact"}) {
        Label& line = head.label(QLatin1String(name));
        line.Visible = !line.Caption.isEmpty();
        line.Top = bottom;
        if (line.Visible)
            bottom += line.Height;
    }
    const Image& logo = head.image(u"logo"_s);
    if (!logo.Picture.isNull())
        bottom = std::max(bottom, logo.Top + logo.Height);
    Label& tag = head.label(u"lblTag"_s);
    tag.Visible = !tag.Caption.isEmpty();
    const int aboveTag = HeadingHeight - bottom;
    const int belowTag = aboveTag + (tag.Visible ? 0 : tag.Height);
    for (const auto& control : head.controls()) {
        if (control->Top > tag.Top)
            control->Top -= belowTag;
    }
    tag.Top -= aboveTag;
    head.Height -= belowTag;
}
