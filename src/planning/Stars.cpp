#include "planning/Stars.h"

#include "platform/forms/Icons.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int highest = 5;

} // namespace

QPixmap stars(int rating, int height)
{
    if (rating < 0 || rating > highest)
        return {};
    const int step = height + height / 6;
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap row(QSize(highest * step - height / 6, height) * ratio);
    row.setDevicePixelRatio(ratio);
    row.fill(Qt::transparent);
    QPainter painter(&row);
    const QPixmap golden = forms::picture(u"star-golden"_s, height);
    const QPixmap pale = forms::picture(u"star-pale"_s, height);
    for (int star = 0; star < highest; ++star)
        painter.drawPixmap(star * step, 0, star < rating ? golden : pale);
    return row;
}
