#include "platform/forms/EmptyText.h"

#include "platform/forms/Palette.h"

#include <QAbstractItemView>
#include <QPainter>

namespace forms {

void paintEmptyText(const QAbstractItemView& list)
{
    constexpr int margin = 16;
    QPainter painter(list.viewport());
    painter.setFont(list.font());
    painter.setPen(QColor(palette::quietInk));
    painter.drawText(list.viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, list.property("emptyText").toString());
}

} // namespace forms
