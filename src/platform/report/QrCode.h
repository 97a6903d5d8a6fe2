#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <vector>

namespace report {

/// A text as a QR code, which any telephone's camera reads: square, black modules on white.
class QrCode
{
public:
    /// Throws OperatorError for a text that no code can hold: up to 2,953 bytes of UTF-8.
    explicit QrCode(const QString& text);

    /// Modules along an edge, without the white around them.
    int size() const { return m_size; }
    bool isBlack(int column, int row) const { return m_black[size_t(row * m_size + column)]; }

    /// The modules of white that a reader needs at each side.
    static constexpr int quiet = 4;

    /// The picture with its white, each module that many pixels wide.
    QImage image(int module) const;
    /// Its black, as rectangles within `place`, which includes the white.
    std::vector<QRectF> modulesIn(const QRectF& place) const;

private:
    int m_size = 0;
    std::vector<bool> m_black; ///< row by row
};

} // namespace report
