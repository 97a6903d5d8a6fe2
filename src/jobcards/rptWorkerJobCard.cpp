#include "jobcards/rptWorkerJobCard.h"

#include "jobcards/HindiWords.h"
#include "jobcards/LineCodeBars.h"
#include "platform/report/BandLayout.h"
#include "platform/report/PaperDesign.h"
#include "ui/PaperPrinters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

using namespace report;

namespace {

constexpr QSizeF A5(148, 210);
constexpr int Width = mm(148 - 24);
constexpr int Middle = Width / 2 + 300; ///< where the second column of captions begins
constexpr int CaptionWidth = 1350;
constexpr int RowHeight = 340;
constexpr int MeasureHeight = 320;
constexpr int NameWidth = 3500; ///< of a measurement's name

constexpr double CaptionLeast = 7; ///< points
constexpr double hindiScale = 1.2; ///< its letters are smaller than Latin ones of the same size

const QString Day = u"dd-MMM-yyyy"_s;

} // namespace

rptWorkerJobCard::rptWorkerJobCard()
    : Report(u"Job Order"_s)
{
    Kind = int(PaperKind::Slip);
    PageSize = A5;
    LeftMargin = RightMargin = TopMargin = BottomMargin = mm(12);

    Section& head = addSection(u"Section2"_s, Band::PageHead, 620);
    paper::company(head, 0, 0, Width, 16);
    paper::rule(head, u"Line1"_s, 0, 480, Width, palette::onPaper::ink).Weight = 20;

    Section& line = addSection(u"Section1"_s, Band::Detail);
    const auto left = [&](const char* label, const char* caption, const char* field, const char* dataField,
                          int top, int width) -> Field& {
        paper::caption(line, QLatin1String(label), QLatin1String(caption), 0, top, CaptionWidth);
        return paper::value(line, QLatin1String(field), QLatin1String(dataField), CaptionWidth, top, width);
    };
    const auto right = [&](const char* label, const char* caption, const char* field, const char* dataField,
                           int top, int captionWidth) -> Field& {
        paper::caption(line, QLatin1String(label), QLatin1String(caption), Middle, top, captionWidth);
        return paper::value(line, QLatin1String(field), QLatin1String(dataField), Middle + captionWidth, top,
                            Width - Middle - captionWidth);
    };
    constexpr int beside = Middle - CaptionWidth - 120;
    int top = 0;
    right("Label1", "DATE:", "txtDATE", "DATE", top, CaptionWidth).Format = Day;
    Field& job = left("Label2", "JobID:", "txtJobID", "JobID", top, 1000);
    job.FontSize = 13;
    job.Top -= 45;
    job.Bold = true;
    Label& itemCaption = paper::caption(line, u"Label11"_s, u"Item"_s, CaptionWidth + 1020, top, 480);
    Field& item =
        paper::value(line, u"Text4"_s, u"ItemSr"_s, itemCaption.Left + itemCaption.Width, top - 45, 700);
    item.FontSize = 13;
    item.Bold = true;

    top += RowHeight;
    Field& client = left("Label3", "Client Name:", "txtClintName", "ClintName", top, Width - CaptionWidth);
    client.CanGrow = true;
    top += RowHeight;
    left("Label4", "Worker Name:", "txtWorkerName", "WorkerName", top, beside).CanGrow = true;
    Field& delivery = right("Label5", "Delivery Date:", "txtWorkerDate", "JobDelDate", top, CaptionWidth);
    delivery.Format = Day;
    delivery.Bold = true;
    top += RowHeight;
    Field& itemName = left("Label6", "Item Name:", "txtItemName", "ItemName", top, beside);
    itemName.Bold = true;
    itemName.CanGrow = true;
    right("Label7", "QNT:", "txtQNT", "QNT", top, CaptionWidth).Bold = true;

    top += RowHeight + 40;
    paper::bar(line, u"Shape1"_s, 0, top, Width, 360);
    Label& specifications = paper::caption(line, u"Label8"_s, u"Specifications"_s, 120, top + 50, 3000);
    specifications.Bold = true;
    specifications.Color = palette::onPaper::ink;
    top += 440;
    Field& names = paper::value(line, u"txtItemDetails"_s, u"ItemDetails"_s, 120, top, NameWidth);
    names.FontSize = 11;
    names.LineHeight = MeasureHeight;
    names.CanGrow = true;
    Field& measures =
        paper::value(line, u"Text1"_s, u"ItemDetailsValue"_s, NameWidth + 240, top, Width - NameWidth - 240);
    measures.FontSize = 11;
    measures.LineHeight = MeasureHeight;
    measures.Bold = true;
    measures.CanGrow = true;

    top += 340;
    paper::rule(line, u"Line2"_s, 0, top, Width);
    top += 100;
    left("Label9", "Remark:", "Text2", "Remarks", top, Width - CaptionWidth).CanGrow = true;
    top += RowHeight;
    left("Label10", "Client Note :", "Text3", "ClientRemarks", top, Width - CaptionWidth).CanGrow = true;
    line.Height = top + RowHeight;
    paper::codeFoot(*this, Width);
}

void rptWorkerJobCard::useHindi()
{
    m_hindi = true;
    for (const auto& control : section(u"Section1"_s).controls()) {
        if (auto* caption = dynamic_cast<Label*>(control.get())) {
            caption->Caption = hindiWord(caption->Caption);
            caption->FontFamily = hindiPaperFont;
            caption->FontSize *= hindiScale;
            while (caption->FontSize > CaptionLeast && linesOf(caption->Caption, *caption, *this).size() > 1)
                caption->FontSize -= 0.5;
        }
    }
    for (const auto& name : {u"txtItemName"_s, u"txtItemDetails"_s}) {
        Field& field = section(u"Section1"_s).field(name);
        field.FontFamily = hindiPaperFont;
        field.FontSize *= hindiScale;
    }
}

void rptWorkerJobCard::setLine(Row line)
{
    const QString lineBreak = u"\r\n"_s;
    Section& section1 = section(u"Section1"_s);
    const Field& nameField = section1.field(u"txtItemDetails"_s);
    const Field& valueField = section1.field(u"Text1"_s);
    if (m_hindi) {
        const QString garment = line.value(u"ItemName"_s).toString();
        line.set(u"ItemName"_s, hindiWord(garment.trimmed()));
        line.set(nameField.DataField, hindiMeasurements(line.value(nameField.DataField).toString(), garment));
        line.set(valueField.DataField, hindiValues(line.value(valueField.DataField).toString()));
    }
    const QStringList names = line.value(nameField.DataField).toString().split(lineBreak);
    const QStringList values = line.value(valueField.DataField).toString().split(lineBreak);
    QStringList left;
    QStringList right;
    for (qsizetype i = 0; i < std::max(names.size(), values.size()); ++i) {
        left << linesOf(names.value(i), nameField, *this);
        right << linesOf(values.value(i), valueField, *this);
        left.resize(std::max(left.size(), right.size()));
        right.resize(left.size());
    }
    line.set(nameField.DataField, left.join(lineBreak));
    line.set(valueField.DataField, right.join(lineBreak));
    setDataSource({std::move(line)});
}
