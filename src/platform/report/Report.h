#pragma once

#include "platform/report/Data.h"
#include "platform/values/Literals.h"

#include <QImage>
#include <QSizeF>
#include <memory>

/// Page layouts: a report is a page, and named sections of named controls over rows of data. Lengths are
/// twips, 1440 to the inch; type sizes are points.
namespace report {

inline constexpr int twipsPerInch = 1440;
/// Millimetres in twips.
constexpr int mm(double length) { return int(length * twipsPerInch / 25.4 + 0.5); }

/// A control's place is within its section.
struct Control
{
    explicit Control(const QString& name)
        : Name(name)
    {
    }
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Sets the place; the control itself, for chaining in a layout.
    void place(int left, int top, int width, int height);

    const QString Name;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Visible = true;
    /// In a head of a group: printed again at the top of each page on which the group goes on, as column
    /// titles are.
    bool Repeats = false;
};

/// What texts have in common.
struct TextControl : Control
{
    using Control::Control;

    QString FontFamily; ///< empty: the report's
    double FontSize = 10;
    bool Bold = false;
    bool Italic = false;
    QRgb Color = 0xFF000000;
    Qt::Alignment Alignment = Qt::AlignLeft;
    int LineHeight = 0; ///< from line to line; 0: as the font has it
    /// Takes more lines than its height holds, pushes down what stands below it in its section, and breaks
    /// over pages where it must. Otherwise the text is cut to its width, in one line, with an ellipsis.
    bool CanGrow = false;
};

struct Label : TextControl
{
    using TextControl::TextControl;
    QString Caption;
    /// In the caption "%p" stands for the page's number and "%P" for the number of pages.
    bool CountsPages = false;
};

/// A field of the section's row.
struct Field : TextControl
{
    using TextControl::TextControl;
    QString DataField;
    QString Format;
};

/// A picture, as large as its place allows with its proportions kept.
struct Image : Control
{
    using Control::Control;
    QImage Picture;
};

/// The bars of a text (Code 128), for a scanner that types it.
struct Barcode : Control
{
    using Control::Control;
    QString DataField;
    double Module = 20; ///< width of the narrowest bar, where the place has room: 0.35 mm
};

/// A rule from corner to corner of its place, or a box around it. One that reaches the bottom of its section
/// grows with it.
struct Shape : Control
{
    using Control::Control;
    bool Frame = false; ///< a box instead of a rule
    bool Dashed = false;
    int Weight = 15;
    QRgb Color = 0xFF000000;
    QRgb Fill = 0; ///< of a box; transparent unless set
};

enum class Band {
    ReportHead, ///< once, at the beginning
    PageHead,   ///< at the top of each page
    Head,       ///< for each row of the source, before its details
    Detail,     ///< for each row below it; for each row of the source itself where the source is flat
    Foot,       ///< behind the details of each row
    PageFoot,   ///< at the bottom of each page
    ReportFoot  ///< once, at the end
};

class Section
{
public:
    Section(const QString& name, Band band, int height)
        : Name(name)
        , Kind(band)
        , Height(height)
    {
    }

    /// Add a control to the design.
    Label& addLabel(const QString& name, const QString& caption);
    Field& addField(const QString& name, const QString& dataField, const QString& format = {});
    Image& addImage(const QString& name);
    Shape& addShape(const QString& name);
    Barcode& addBarcode(const QString& name, const QString& dataField);

    /// The control of that name, in any case. Throws std::logic_error when the design has none of the kind.
    Label& label(const QString& name) { return find<Label>(name); }
    Field& field(const QString& name) { return find<Field>(name); }
    Image& image(const QString& name) { return find<Image>(name); }
    Shape& shape(const QString& name) { return find<Shape>(name); }

    const std::vector<std::unique_ptr<Control>>& controls() const { return m_controls; }

    const QString Name;
    const Band Kind;
    int Height; ///< grows with its contents as the report is printed
    bool NewPageBefore = false;
    /// Of a report foot behind a flat source: it never begins a page without the last row, or the end of it.
    bool KeepsRow = false;

private:
    template <typename Kind>
    Kind& add(const QString& name);
    template <typename Kind>
    Kind& find(const QString& name);

    std::vector<std::unique_ptr<Control>> m_controls;
};

/// A report: design and data. What prints it (preview, printer, PDF) asks for its pages.
class Report
{
public:
    explicit Report(const QString& title)
        : Title(title)
    {
    }
    virtual ~Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    Section& addSection(const QString& name, Band band, int height = 0);
    /// The section of that name, in any case. Throws std::logic_error when the design has none.
    Section& section(const QString& name);
    const std::vector<std::unique_ptr<Section>>& sections() const { return m_sections; }

    void setDataSource(std::vector<Row> rows) { m_rows = std::move(rows); }
    const std::vector<Row>& rows() const { return m_rows; }

    QString Title;
    QString Subject; ///< what a file of it is about, for its name; empty: the title
    /// Which of the papers it is, as those count them who remember where each goes; 0 for all without a
    /// place of their own.
    int Kind = 0;
    QSizeF PageSize = {210, 297}; ///< millimetres
    int LeftMargin = 720;
    int TopMargin = 720;
    int RightMargin = 720;
    int BottomMargin = 720;
    QString FontFamily = u"Paper Sans"_s;

    int pageWidth() const { return mm(PageSize.width()); }
    int pageHeight() const { return mm(PageSize.height()); }
    /// The width between the margins: what the design can use.
    int width() const { return pageWidth() - LeftMargin - RightMargin; }

private:
    std::vector<std::unique_ptr<Section>> m_sections;
    std::vector<Row> m_rows;
};

} // namespace report
