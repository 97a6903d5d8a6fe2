#pragma once

#include "platform/forms/Palette.h"
#include "platform/report/Report.h"
#include "platform/values/Literals.h"

#include <vector>

/// The hand in which all papers are set. Lengths are twips.
namespace paper {

/// A caption in the smaller, quieter type.
report::Label& caption(report::Section& section, const QString& name, const QString& text, int left, int top,
                       int width);
/// A field on the same base line as a caption of that top.
report::Field& value(report::Section& section, const QString& name, const QString& dataField, int left,
                     int top, int width, const QString& format = {});
/// The name of who issues the paper, in the middle.
report::Label& company(report::Section& section, int left, int top, int width, double fontSize);
/// What paper it is, below that name.
report::Label& subtitle(report::Section& section, const QString& name, const QString& text, int top,
                        int width, double fontSize);
/// A rule across.
report::Shape& rule(report::Section& section, const QString& name, int left, int top, int width,
                    QRgb color = palette::onPaper::hairline);
/// A shaded bar behind titles.
report::Shape& bar(report::Section& section, const QString& name, int left, int top, int width, int height);

/// A text as a QR code, `edge` wide and high with its white, and below it what it is for. Throws
/// OperatorError for a text that no code can hold.
report::Image& qrCode(report::Section& section, const QString& name, const QString& text,
                      const QString& purpose, int left, int top, int edge);

/// A column of a table: its title on a bar, its field in each line.
struct Column
{
    QString titleName;
    QString title;
    QString fieldName;
    QString dataField;
    int left;
    int width;
    QString format = {};
    Qt::Alignment alignment = Qt::AlignLeft;
};
/// Where the parts of a table stand, and in which size.
struct Table
{
    int titleTop; ///< in the section of the titles
    int fieldTop; ///< in the section of the lines
    double titleSize = 9;
    double fieldSize = 9;
};
/// Sets the titles of a table and the fields of its lines. A field that is too long grows.
void table(report::Section& titles, report::Section& lines, const std::vector<Column>& columns,
           const Table& table);

/// The line of a page foot, at its right: "%p" stands for the page's number, "%P" for how many there are.
report::Label& pageNumber(report::Section& foot, const QString& text, int left, int top, int width);
/// At the foot of each page: what the paper is about, the page's number and how many there are.
void numberPages(report::Report& paper, const QString& what);

} // namespace paper
