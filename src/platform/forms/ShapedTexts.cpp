#include "platform/forms/ShapedTexts.h"

#include <QFontMetrics>
#include <QPainter>

namespace forms {

void ShapedTexts::draw(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text)
{
    const QFont& font = painter.font();
    Kept& kept = m_kept[font.bold() ? 1 : 0];
    if (kept.font != font) {
        kept.texts.clear();
        kept.font = font;
    }
    const std::pair key(text, room.width());
    QStaticText* shaped = kept.texts.object(key);
    if (!shaped) {
        shaped = new QStaticText(painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
        shaped->setTextFormat(Qt::PlainText);
        shaped->prepare(painter.transform(), font);
        kept.texts.insert(key, shaped);
    }
    const double spare = room.width() - shaped->size().width();
    const double left = alignment.testFlag(Qt::AlignRight)     ? spare
                        : alignment.testFlag(Qt::AlignHCenter) ? spare / 2
                                                               : 0;
    painter.drawStaticText(QPointF(room.left() + std::max(0.0, left),
                                   room.top() + (room.height() - painter.fontMetrics().height()) / 2),
                           *shaped);
}

} // namespace forms
