#pragma once

#include "platform/report/Report.h"

#include <QFont>
#include <QImage>
#include <QRectF>
#include <stop_token>
#include <variant>

class QPainter;

namespace report {

/// What stands on a page, in twips from its corner.
struct TextPiece
{
    QRectF place; ///< of one line
    QString text;
    QFont font; ///< its pixel size is in twips
    QRgb color;
    Qt::Alignment alignment;
    bool counted = false; ///< "%p" and "%P" stand for numbers of pages
};
struct ImagePiece
{
    QRectF place;
    QImage picture;
};
struct ShapePiece
{
    QRectF place;
    const Shape* shape;
};
struct BarsPiece
{
    QRectF place;
    std::vector<QRectF> bars; ///< from the corner of the place
};
using Piece = std::variant<TextPiece, ImagePiece, ShapePiece, BarsPiece>;

/// The pages of a report as they will stand on paper, whatever paints them: the preview, a printer, a PDF
/// file. Made once; valid as long as the report.
class Pages
{
public:
    /// For any thread. Throws Cancelled when `stop` is asked for.
    explicit Pages(const Report& report, const std::stop_token& stop = {});

    int count() const { return int(m_pages.size()); }
    /// In twips.
    QSizeF size() const { return m_size; }
    /// Draws one page (from 0) with a painter whose unit is a twip.
    void paint(QPainter& painter, int page) const;
    /// The text of a page, line by line as it stands there.
    QStringList texts(int page) const;

private:
    QSizeF m_size;
    std::vector<std::vector<Piece>> m_pages;
};

} // namespace report
