#include "platform/report/PaperDesign.h"

#include "platform/report/QrCode.h"

using namespace Qt::StringLiterals;

namespace paper {

namespace {

constexpr int LineHeight = 260;
constexpr int TitleHeight = 240;
constexpr double CaptionSize = 9;
constexpr double ValueSize = 10;
constexpr int BaseLineGap = 18; ///< between the tops of the two sizes, for one base line

} // namespace

report::Label& caption(report::Section& section, const QString& name, const QString& text, int left, int top,
                       int width)
{
    report::Label& label = section.addLabel(name, text);
    label.place(left, top + BaseLineGap, width, LineHeight - BaseLineGap);
    label.FontSize = CaptionSize;
    label.Color = palette::onPaper::quietInk;
    return label;
}

report::Field& value(report::Section& section, const QString& name, const QString& dataField, int left,
                     int top, int width, const QString& format)
{
    report::Field& field = section.addField(name, dataField, format);
    field.place(left, top, width, LineHeight);
    field.FontSize = ValueSize;
    field.Color = palette::onPaper::ink;
    return field;
}

report::Label& company(report::Section& section, int left, int top, int width, double fontSize)
{
    constexpr double lineHeight = 25; // twips a point
    report::Label& label = section.addLabel(u"lblCompany"_s, {});
    label.place(left, top, width, int(fontSize * lineHeight));
    label.FontSize = fontSize;
    label.Bold = true;
    label.Color = palette::onPaper::ink;
    label.Alignment = Qt::AlignHCenter;
    label.CanGrow = true;
    return label;
}

report::Shape& rule(report::Section& section, const QString& name, int left, int top, int width, QRgb color)
{
    report::Shape& shape = section.addShape(name);
    shape.place(left, top, width, 0);
    shape.Weight = 10;
    shape.Color = color;
    return shape;
}

report::Shape& bar(report::Section& section, const QString& name, int left, int top, int width, int height)
{
    report::Shape& shape = section.addShape(name);
    shape.place(left, top, width, height);
    shape.Frame = true;
    shape.Fill = palette::onPaper::shade;
    shape.Color = palette::onPaper::shade;
    return shape;
}

report::Label& subtitle(report::Section& section, const QString& name, const QString& text, int top,
                        int width, double fontSize)
{
    constexpr double lineHeight = 27; // twips a point
    report::Label& label = section.addLabel(name, text);
    label.place(0, top, width, int(fontSize * lineHeight));
    label.FontSize = fontSize;
    label.Color = palette::onPaper::quietInk;
    label.Alignment = Qt::AlignHCenter;
    return label;
}

report::Image& qrCode(report::Section& section, const QString& name, const QString& text,
                      const QString& purpose, int left, int top, int edge)
{
    constexpr int dotsOfAModule = 8; // sharp on any printer
    report::Image& image = section.addImage(name);
    image.place(left, top, edge, edge);
    image.Picture = report::QrCode(text).image(dotsOfAModule);
    report::Label& below = caption(section, name + u"Caption"_s, purpose, left, top + edge, edge);
    below.FontSize = 7;
    below.Alignment = Qt::AlignHCenter;
    return image;
}

void table(report::Section& titles, report::Section& lines, const std::vector<Column>& columns,
           const Table& table)
{
    for (const Column& column : columns) {
        report::Label& title = titles.addLabel(column.titleName, column.title);
        title.place(column.left, table.titleTop, column.width, TitleHeight);
        title.FontSize = table.titleSize;
        title.Bold = true;
        title.Color = palette::onPaper::ink;
        report::Field& field = value(lines, column.fieldName, column.dataField, column.left, table.fieldTop,
                                     column.width, column.format);
        field.FontSize = table.fieldSize;
        field.CanGrow = true;
        title.Alignment = field.Alignment = column.alignment;
    }
}

report::Label& pageNumber(report::Section& foot, const QString& text, int left, int top, int width)
{
    report::Label& number = caption(foot, u"lblPage"_s, text, left, top, width);
    number.CountsPages = true;
    number.FontSize = 8;
    number.Alignment = Qt::AlignRight;
    return number;
}

void numberPages(report::Report& paper, const QString& what)
{
    constexpr int gap = 60;
    report::Section& foot = paper.addSection(u"Section3"_s, report::Band::PageFoot, gap + 240);
    pageNumber(foot, what + u" · %p of %P"_s, 0, gap, paper.width());
}

} // namespace paper
