#include "jobcards/rptWorkerJobCard.h"

#include "jobcards/PaperDesign.h"
#include "platform/report/BandLayout.h"

#include <algorithm>

using namespace report;

namespace {

constexpr QSizeF A5(148, 210);
constexpr int Width = mm(148 - 24);
constexpr int Middle = Width / 2 + 300; ///< where the second column of captions begins
constexpr int CaptionWidth = 1350;
constexpr int RowHeight = 340;
constexpr int MeasureHeight = 320;
constexpr int NameWidth = 3500; ///< of a measurement's name

const QString Day = QStringLiteral("dd-MMM-yyyy");

} // namespace

rptWorkerJobCard::rptWorkerJobCard()
    : Report(QStringLiteral("Job Order"))
{
    PageSize = A5;
    LeftMargin = RightMargin = TopMargin = BottomMargin = mm(12);

    Section& head = addSection(QStringLiteral("Section2"), Band::PageHead, 620);
    paper::company(head, 0, 0, Width, 16);
    paper::rule(head, QStringLiteral("Line1"), 0, 480, Width, paper::Ink).Weight = 20;

    Section& line = addSection(QStringLiteral("Section1"), Band::Detail);
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
    Label& itemCaption = paper::caption(line, QStringLiteral("Label11"), QStringLiteral("Item"),
                                        CaptionWidth + 1020, top, 480);
    Field& item = paper::value(line, QStringLiteral("Text4"), QStringLiteral("ItemSr"),
                               itemCaption.Left + itemCaption.Width, top - 45, 700);
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
    paper::bar(line, QStringLiteral("Shape1"), 0, top, Width, 360);
    Label& specifications =
        paper::caption(line, QStringLiteral("Label8"), QStringLiteral("Specifications"), 120, top + 50, 3000);
    specifications.Bold = true;
    specifications.Color = paper::Ink;
    top += 440;
    Field& names = paper::value(line, QStringLiteral("txtItemDetails"), QStringLiteral("ItemDetails"), 120,
                                top, NameWidth);
    names.FontSize = 11;
    names.LineHeight = MeasureHeight;
    names.CanGrow = true;
    Field& measures = paper::value(line, QStringLiteral("Text1"), QStringLiteral("ItemDetailsValue"),
                                   NameWidth + 240, top, Width - NameWidth - 240);
    measures.FontSize = 11;
    measures.LineHeight = MeasureHeight;
    measures.Bold = true;
    measures.CanGrow = true;

    top += 340;
    paper::rule(line, QStringLiteral("Line2"), 0, top, Width);
    top += 100;
    left("Label9", "Remark:", "Text2", "Remarks", top, Width - CaptionWidth).CanGrow = true;
    top += RowHeight;
    left("Label10", "Client Note :", "Text3", "ClientRemarks", top, Width - CaptionWidth).CanGrow = true;
    line.Height = top + RowHeight;
}

void rptWorkerJobCard::useHindiMeasurements()
{
    Section& line = section(QStringLiteral("Section1"));
    Field& names = line.field(QStringLiteral("txtItemDetails"));
    names.FontFamily = QStringLiteral("Kruti Dev 010");
    names.FontSize = line.field(QStringLiteral("Text1")).FontSize = 14;
}

void rptWorkerJobCard::setLine(Row line)
{
    const QString lineBreak = QStringLiteral("\r\n");
    Section& section1 = section(QStringLiteral("Section1"));
    const Field& nameField = section1.field(QStringLiteral("txtItemDetails"));
    const Field& valueField = section1.field(QStringLiteral("Text1"));
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
