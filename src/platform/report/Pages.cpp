#include "platform/report/Pages.h"

#include "platform/report/BandLayout.h"
#include "platform/values/Progress.h"

#include <QFontMetricsF>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace report {

namespace {

QRectF& placeOf(Piece& piece)
{
    return std::visit([](auto& any) -> QRectF& { return any.place; }, piece);
}

/// Fills pages from top to bottom, band by band.
class PageFiller
{
public:
    PageFiller(const Report& report, const std::stop_token& stop)
        : m_report(report)
        , m_stop(stop)
        , m_first(report.rows().empty() ? Row() : report.rows().front())
        , m_foot(compose(Band::PageFoot, m_first))
        , m_bottom(report.pageHeight() - report.BottomMargin - m_foot.height)
    {
    }

    std::vector<std::vector<Piece>> fill();

private:
    PlacedBand compose(Band kind, const Row& row, Part part = Part::Whole) const;
    void emitSections(Band kind, const Row& row);
    void emitGroup(const Row& row);
    void emitLastRow(const Row& row);
    void emitBand(PlacedBand band);
    void emitInParts(PlacedBand band);
    void startPage();
    void put(const std::vector<Piece>& pieces, double top);
    void finish();
    bool isFresh() const { return m_y <= m_freshTop; }
    bool isFlat() const;

    const Report& m_report;
    const std::stop_token m_stop;
    const Row m_first;
    const PlacedBand m_foot;
    double m_bottom;
    PlacedBand m_repeated; ///< what the group that is being printed repeats on each page
    double m_y = 0;
    double m_freshTop = 0; ///< where a page without a band of its own ends
    std::vector<std::vector<Piece>> m_pages;
};

/// All sections of a kind, one below the other.
PlacedBand PageFiller::compose(Band kind, const Row& row, Part part) const
{
    PlacedBand all;
    for (const auto& section : m_report.sections()) {
        if (section->Kind != kind)
            continue;
        PlacedBand band = layOut(*section, row, m_report, part);
        for (Piece& piece : band.pieces) {
            placeOf(piece).translate(0, all.height);
            all.pieces.push_back(std::move(piece));
        }
        all.height += band.height;
    }
    return all;
}

/// A source is flat where the design knows no groups.
bool PageFiller::isFlat() const
{
    return std::none_of(m_report.sections().begin(), m_report.sections().end(), [](const auto& section) {
        return section->Kind == Band::Head || section->Kind == Band::Foot;
    });
}

std::vector<std::vector<Piece>> PageFiller::fill()
{
    startPage();
    emitSections(Band::ReportHead, m_first);
    for (const Row& row : m_report.rows()) {
        if (m_stop.stop_requested())
            throw Cancelled();
        if (!isFlat())
            emitGroup(row);
        else if (&row == &m_report.rows().back())
            emitLastRow(row);
        else
            emitSections(Band::Detail, row);
    }
    emitSections(Band::ReportFoot, m_first);
    finish();
    return std::move(m_pages);
}

void PageFiller::emitGroup(const Row& row)
{
    emitSections(Band::Head, row);
    m_repeated = compose(Band::Head, row, Part::Repeated);
    for (const Row& detail : row.details)
        emitSections(Band::Detail, detail);
    m_repeated = {};
    emitSections(Band::Foot, row);
}

/// Leaves room for the foot that is to stand below it.
void PageFiller::emitLastRow(const Row& row)
{
    double kept = 0;
    for (const auto& section : m_report.sections()) {
        if (section->Kind == Band::ReportFoot && section->KeepsRow)
            kept += layOut(*section, m_first, m_report).height;
    }
    m_bottom -= kept;
    emitSections(Band::Detail, row);
    m_bottom += kept;
}

void PageFiller::emitSections(Band kind, const Row& row)
{
    for (const auto& section : m_report.sections()) {
        if (section->Kind != kind)
            continue;
        if (section->NewPageBefore && !isFresh())
            startPage();
        emitBand(layOut(*section, row, m_report));
    }
}

void PageFiller::emitBand(PlacedBand band)
{
    const double whole = m_bottom - m_freshTop;
    if (m_y + band.height > m_bottom && band.height <= whole && !isFresh())
        startPage();
    if (m_y + band.height > m_bottom) {
        emitInParts(std::move(band));
        return;
    }
    put(band.pieces, m_y);
    m_y += band.height;
}

/// A band that no page can hold: line by line onto as many pages as it takes.
void PageFiller::emitInParts(PlacedBand band)
{
    while (true) {
        const double room = m_bottom - m_y;
        std::vector<Piece> here;
        std::vector<Piece> rest;
        for (Piece& piece : band.pieces) {
            QRectF& place = placeOf(piece);
            if (place.bottom() <= room) {
                here.push_back(std::move(piece));
            } else if (std::holds_alternative<ShapePiece>(piece) && place.top() < room) {
                here.push_back(piece);
                placeOf(here.back()).setBottom(room);
                place.setTop(room);
                rest.push_back(std::move(piece));
            } else {
                rest.push_back(std::move(piece));
            }
        }
        const auto isText = [](const Piece& piece) { return !std::holds_alternative<ShapePiece>(piece); };
        // A piece that is taller than an empty page is cut off by it, or there would be no end.
        if (isFresh() && std::none_of(here.begin(), here.end(), isText) && !rest.empty()) {
            here.push_back(std::move(rest.front()));
            rest.erase(rest.begin());
        }
        put(here, m_y);
        if (rest.empty()) {
            m_y = std::min(m_bottom, m_y + band.height);
            return;
        }
        double top = band.height;
        for (Piece& piece : rest)
            top = std::min(top, placeOf(piece).top());
        for (Piece& piece : rest)
            placeOf(piece).translate(0, -top);
        band = {std::move(rest), band.height - top};
        startPage();
    }
}

void PageFiller::startPage()
{
    m_pages.emplace_back();
    m_y = m_report.TopMargin;
    for (const PlacedBand& band : {compose(Band::PageHead, m_first), m_repeated}) {
        put(band.pieces, m_y);
        m_y += band.height;
    }
    m_freshTop = m_y;
}

void PageFiller::put(const std::vector<Piece>& pieces, double top)
{
    for (const Piece& piece : pieces) {
        m_pages.back().push_back(piece);
        placeOf(m_pages.back().back()).translate(m_report.LeftMargin, top);
    }
}

void PageFiller::finish()
{
    const QString count = QString::number(m_pages.size());
    for (size_t page = 0; page < m_pages.size(); ++page) {
        for (Piece piece : m_foot.pieces) {
            placeOf(piece).translate(m_report.LeftMargin, m_bottom);
            m_pages[page].push_back(std::move(piece));
        }
        for (Piece& piece : m_pages[page]) {
            if (auto* text = std::get_if<TextPiece>(&piece); text && text->counted)
                text->text.replace(u"%p"_s, QString::number(page + 1)).replace(u"%P"_s, count);
        }
    }
}

void draw(QPainter& painter, const TextPiece& piece)
{
    const QFontMetricsF metrics(piece.font, painter.device());
    const double spare = piece.place.width() - metrics.horizontalAdvance(piece.text);
    double left = piece.place.left();
    if (piece.alignment & Qt::AlignRight)
        left += spare;
    else if (piece.alignment & Qt::AlignHCenter)
        left += spare / 2;
    painter.setFont(piece.font);
    painter.setPen(QColor::fromRgba(piece.color));
    painter.drawText(QPointF(left, piece.place.top() + metrics.ascent()), piece.text);
}

void draw(QPainter& painter, const ImagePiece& piece)
{
    const QSizeF size = QSizeF(piece.picture.size()).scaled(piece.place.size(), Qt::KeepAspectRatio);
    QRectF place({0, 0}, size);
    place.moveCenter(piece.place.center());
    painter.drawImage(place, piece.picture);
}

/// Sharp edges: what is grey a scanner takes for either.
void draw(QPainter& painter, const BarsPiece& piece)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const QRectF& bar : piece.bars)
        painter.fillRect(bar.translated(piece.place.topLeft()), Qt::black);
    painter.restore();
}

void draw(QPainter& painter, const ShapePiece& piece)
{
    const Shape& shape = *piece.shape;
    QPen pen(QColor::fromRgba(shape.Color), shape.Weight, shape.Dashed ? Qt::CustomDashLine : Qt::SolidLine,
             Qt::FlatCap, Qt::MiterJoin);
    if (shape.Dashed)
        pen.setDashPattern({90.0 / shape.Weight, 60.0 / shape.Weight});
    painter.setPen(pen);
    painter.setBrush(QColor::fromRgba(shape.Fill));
    if (shape.Frame)
        painter.drawRect(piece.place);
    else
        painter.drawLine(piece.place.topLeft(), piece.place.bottomRight());
}

} // namespace

Pages::Pages(const Report& report, const std::stop_token& stop)
    : m_size(report.pageWidth(), report.pageHeight())
    , m_pages(PageFiller(report, stop).fill())
{
}

void Pages::paint(QPainter& painter, int page) const
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    for (const Piece& piece : m_pages[size_t(page)])
        std::visit([&painter](const auto& any) { draw(painter, any); }, piece);
    painter.restore();
}

QStringList Pages::texts(int page) const
{
    QStringList result;
    for (const Piece& piece : m_pages[size_t(page)]) {
        if (const auto* text = std::get_if<TextPiece>(&piece))
            result << text->text;
    }
    return result;
}

} // namespace report
