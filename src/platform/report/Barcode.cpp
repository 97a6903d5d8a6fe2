#include "platform/report/Barcode.h"

#include "platform/values/Errors.h"

#include <algorithm>
#include <memory>
#include <zint.h>

namespace report {

namespace {

constexpr int quietModules = 10; ///< of white, at each side

} // namespace

std::vector<QRectF> barsOf(const QString& text, const QRectF& place, double module)
{
    if (text.isEmpty())
        return {};
    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(),
                                                                          &ZBarcode_Delete);
    symbol->symbology = BARCODE_CODE128;
    const QByteArray bytes = text.toUtf8();
    const auto* content = reinterpret_cast<const unsigned char*>(bytes.constData());
    if (ZBarcode_Encode(symbol.get(), content, int(bytes.size())) >= ZINT_ERROR)
        throw OperatorError(QString::fromUtf8(symbol->errtxt));

    const auto isBlack = [&symbol](int at) {
        return at < symbol->width && (symbol->encoded_data[0][at / 8] >> (at % 8) & 1) != 0;
    };
    const double width = std::min(module, place.width() / (symbol->width + 2 * quietModules));
    const double left = place.center().x() - width * symbol->width / 2;
    std::vector<QRectF> bars;
    for (int at = 0; at < symbol->width; ++at) {
        if (!isBlack(at))
            continue;
        const int first = at;
        while (isBlack(at))
            ++at;
        bars.emplace_back(left + first * width, place.top(), (at - first) * width, place.height());
    }
    return bars;
}

} // namespace report
