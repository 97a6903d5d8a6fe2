#include "platform/report/BandLayout.h"

#include "platform/report/Barcode.h"

#include <QCache>
#include <QFontMetricsF>
#include <QHash>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int twipsPerPoint = 20;

/// How a text is set. A list's paper has thousands of cells in one type: what the type says is asked once.
struct Type
{
    QString family;
    double size = 0; ///< points
    bool bold = false;
    bool italic = false;
    bool operator==(const Type&) const = default;
};
size_t qHash(const Type& type, size_t seed = 0)
{
    return qHashMulti(seed, type.family, type.size, type.bold, type.italic);
}

struct SetType
{
    explicit SetType(const Type& type)
        : font(type.family)
    {
        font.setPixelSize(int(type.size * twipsPerPoint + 0.5));
        font.setBold(type.bold);
        font.setItalic(type.italic);
        font.setHintingPreference(QFont::PreferNoHinting);
        height = QFontMetricsF(font).height();
    }
    QFont font;
    double height = 0; ///< twips, from line to line
};

Type typeOf(const TextControl& control, const Report& report)
{
    return {control.FontFamily.isEmpty() ? report.FontFamily : control.FontFamily, control.FontSize,
            control.Bold, control.Italic};
}

const SetType& setType(const Type& type)
{
    thread_local QHash<Type, std::shared_ptr<const SetType>>
        known; // long papers are laid out beside the screens
    std::shared_ptr<const SetType>& set = known[type];
    if (!set)
        set = std::make_shared<SetType>(type);
    return *set;
}

/// A text to be broken into lines.
struct Lines
{
    QString text;
    Type type;
    int width = 0; ///< twips
    bool operator==(const Lines&) const = default;
};
size_t qHash(const Lines& lines, size_t seed)
{
    return qHashMulti(seed, lines.text, lines.type, lines.width);
}

QStringList paragraphs(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\t', u' ');
    QStringList result = text.split(u'\n');
    while (result.size() > 1 && result.last().trimmed().isEmpty())
        result.removeLast();
    return result;
}

QStringList brokenToWidth(const QString& text, const QFont& font, double width)
{
    QStringList lines;
    for (const QString& paragraph : paragraphs(text)) {
        if (paragraph.isEmpty()) {
            lines << QString();
            continue;
        }
        QTextLayout layout(paragraph, font);
        QTextOption wrapping;
        wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(wrapping);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines << paragraph.mid(line.textStart(), line.textLength()).trimmed();
        }
        layout.endLayout();
    }
    return lines;
}

/// One section on its way to pieces.
class BandLayout
{
public:
    BandLayout(const Section& section, const Row& row, const Report& report, Part part)
        : m_section(section)
        , m_row(row)
        , m_report(report)
        , m_part(part)
    {
    }

    PlacedBand run();

private:
    struct Placed
    {
        const Control* control;
        double growth = 0; ///< beyond its designed height
        double shift = 0;  ///< pushed down by longer texts above it
    };

    std::vector<Placed> controlsFromTop() const;
    double shiftOf(const Control& control, size_t before) const;
    double place(const TextControl& control, const QString& text, bool counted, double top);
    double place(const Control& control, double top);

    const Section& m_section;
    const Row& m_row;
    const Report& m_report;
    const Part m_part;
    std::vector<Placed> m_placed;
    PlacedBand m_band;
};

std::vector<BandLayout::Placed> BandLayout::controlsFromTop() const
{
    std::vector<Placed> result;
    for (const auto& control : m_section.controls()) {
        if (control->Visible && (m_part == Part::Whole || control->Repeats))
            result.push_back({control.get()});
    }
    std::stable_sort(result.begin(), result.end(), [](const Placed& one, const Placed& other) {
        return one.control->Top < other.control->Top;
    });
    return result;
}

double BandLayout::shiftOf(const Control& control, size_t before) const
{
    double shift = 0;
    for (size_t i = 0; i < before; ++i) {
        const Placed& above = m_placed[i];
        if (above.control->Top + above.control->Height <= control.Top)
            shift = std::max(shift, above.shift + above.growth);
    }
    return shift;
}

PlacedBand BandLayout::run()
{
    m_placed = controlsFromTop();
    double growth = 0;
    for (size_t i = 0; i < m_placed.size(); ++i) {
        Placed& placed = m_placed[i];
        placed.shift = shiftOf(*placed.control, i);
        placed.growth = place(*placed.control, placed.control->Top + placed.shift);
        growth = std::max(growth, placed.shift + placed.growth);
    }
    // Rules and boxes that reach the designed bottom of the section reach its real one.
    for (Piece& piece : m_band.pieces) {
        auto* shape = std::get_if<ShapePiece>(&piece);
        if (shape && shape->shape->Height > 0 && shape->shape->Top + shape->shape->Height >= m_section.Height)
            shape->place.setBottom(m_section.Height + growth);
    }
    if (m_part == Part::Whole) {
        m_band.height = m_section.Height + growth;
        return std::move(m_band);
    }
    // What is repeated stands at the top of its page.
    if (m_placed.empty())
        return {};
    const double top = m_placed.front().control->Top + m_placed.front().shift;
    double bottom = top;
    for (Piece& piece : m_band.pieces) {
        QRectF& at = std::visit([](auto& any) -> QRectF& { return any.place; }, piece);
        bottom = std::max(bottom, at.bottom());
        at.translate(0, -top);
    }
    m_band.height = bottom - top;
    return std::move(m_band);
}

/// Places one control and returns by how much it is taller than designed.
double BandLayout::place(const Control& control, double top)
{
    if (const auto* label = dynamic_cast<const Label*>(&control))
        return place(*label, label->Caption, label->CountsPages, top);
    if (const auto* field = dynamic_cast<const Field*>(&control))
        return place(*field, formatted(m_row.value(field->DataField), field->Format), false, top);
    const QRectF at(control.Left, top, control.Width, control.Height);
    if (const auto* shape = dynamic_cast<const Shape*>(&control))
        m_band.pieces.push_back(ShapePiece{at, shape});
    else if (const auto* code = dynamic_cast<const Barcode*>(&control))
        m_band.pieces.push_back(BarsPiece{
            at, barsOf(m_row.value(code->DataField).toString(), QRectF({}, at.size()), code->Module)});
    else if (const auto* image = dynamic_cast<const Image*>(&control); image && !image->Picture.isNull())
        m_band.pieces.push_back(ImagePiece{at, image->Picture});
    return 0;
}

double BandLayout::place(const TextControl& control, const QString& text, bool counted, double top)
{
    const SetType& type = setType(typeOf(control, m_report));
    const QStringList lines = control.CanGrow ? linesOf(text, control, m_report)
                                              : QStringList(QFontMetricsF(type.font).elidedText(
                                                    text.simplified(), Qt::ElideRight, control.Width));
    const double lineHeight = control.LineHeight > 0 ? control.LineHeight : type.height;
    double y = top;
    for (const QString& line : lines) {
        m_band.pieces.push_back(TextPiece{QRectF(control.Left, y, control.Width, lineHeight), line, type.font,
                                          control.Color, control.Alignment, counted});
        y += lineHeight;
    }
    return control.CanGrow ? std::max(0.0, y - top - control.Height) : 0;
}

} // namespace

PlacedBand layOut(const Section& section, const Row& row, const Report& report, Part part)
{
    return BandLayout(section, row, report, part).run();
}

QStringList linesOf(const QString& text, const TextControl& control, const Report& report)
{
    const Lines wanted{text, typeOf(control, report), control.Width};
    thread_local QCache<Lines, QStringList> known(4000); // names and days come again and again
    if (const QStringList* lines = known.object(wanted))
        return *lines;
    QStringList lines = brokenToWidth(text, setType(wanted.type).font, control.Width);
    known.insert(wanted, new QStringList(lines));
    return lines;
}

} // namespace report
