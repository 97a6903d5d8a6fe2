#include "platform/report/QrCode.h"

#include "platform/values/Errors.h"

#include <QPainter>
#include <memory>
#include <zint.h>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr int utf8 = 26; ///< the number of that encoding, which the code states for letters beyond ASCII
constexpr int lowestCorrection = 1;
constexpr int mostBytes = 2953;

} // namespace

QrCode::QrCode(const QString& text)
{
    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(),
                                                                          &ZBarcode_Delete);
    const QByteArray bytes = text.toUtf8();
    symbol->symbology = BARCODE_QRCODE;
    symbol->input_mode = UNICODE_MODE;
    symbol->option_1 = lowestCorrection; // larger modules, on a clean screen or paper
    if (bytes.size() != text.size())
        symbol->eci = utf8;
    const auto* content = reinterpret_cast<const unsigned char*>(bytes.constData());
    const int result = ZBarcode_Encode(symbol.get(), content, int(bytes.size()));
    if (result == ZINT_ERROR_TOO_LONG)
        throw OperatorError(u"%1 letters are too many for one QR code. Of plain letters %2 fit, of Hindi "
                            "about %3."_s.arg(text.size())
                                .arg(mostBytes)
                                .arg(mostBytes / 3));
    if (result >= ZINT_ERROR)
        throw OperatorError(QString::fromUtf8(symbol->errtxt));
    m_size = symbol->width;
    m_black.resize(size_t(m_size * m_size));
    for (int row = 0; row < m_size; ++row)
        for (int column = 0; column < m_size; ++column)
            m_black[size_t(row * m_size + column)] =
                (symbol->encoded_data[row][column / 8] >> (column % 8) & 1) != 0;
}

QImage QrCode::image(int module) const
{
    const int edge = (m_size + 2 * quiet) * module;
    QImage image(edge, edge, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (const QRectF& black : modulesIn(image.rect()))
        painter.fillRect(black, Qt::black);
    return image;
}

std::vector<QRectF> QrCode::modulesIn(const QRectF& place) const
{
    const double module = std::min(place.width(), place.height()) / (m_size + 2 * quiet);
    const QPointF start = place.topLeft() + QPointF(quiet * module, quiet * module);
    std::vector<QRectF> found;
    for (int row = 0; row < m_size; ++row)
        for (int column = 0; column < m_size; ++column) {
            const int first = column;
            while (column < m_size && isBlack(column, row))
                ++column;
            if (column > first)
                found.emplace_back(start.x() + first * module, start.y() + row * module,
                                   (column - first) * module, module);
        }
    return found;
}

} // namespace report
