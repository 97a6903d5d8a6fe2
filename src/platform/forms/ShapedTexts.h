#pragma once

#include <QCache>
#include <QFont>
#include <QStaticText>
#include <array>

class QPainter;

namespace forms {

/// Draws the texts of a list's cells, one line each and shortened to their room. The same names, days and
/// states stand in many rows, and come again with every painting: each is laid out once and kept.
class ShapedTexts
{
public:
    /// In the painter's font and colour.
    void draw(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text);

private:
    static constexpr int textsKept = 2000;
    struct Kept
    {
        QFont font;
        QCache<std::pair<QString, int>, QStaticText> texts{textsKept}; ///< by text and width
    };
    std::array<Kept, 2> m_kept; ///< plain and bold
};

} // namespace forms
