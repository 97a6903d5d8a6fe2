#include "platform/forms/Icons.h"

#include <QAbstractButton>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

namespace forms {

namespace {

constexpr int iconSize = 24;

QPixmap draw(const QByteArray& svg, qreal ratio, qreal opacity)
{
    QSvgRenderer drawing(svg);
    QPixmap pixmap(QSize(iconSize, iconSize) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(opacity);
    drawing.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QIcon lineIcon(const QString& name, const QColor& colour)
{
    QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = file.readAll();
    svg.replace(iconInk.name().toUpper().toLatin1(), colour.name().toLatin1());
    const qreal ratio = qApp->devicePixelRatio();
    QIcon icon(draw(svg, ratio, 1));
    icon.addPixmap(draw(svg, ratio, 0.35), QIcon::Disabled);
    return icon;
}

void applyIcons(QWidget& screen, const QColor& colour)
{
    for (QAbstractButton* button : screen.findChildren<QAbstractButton*>()) {
        const QString name = button->property("iconName").toString();
        if (name.isEmpty())
            continue;
        button->setIcon(lineIcon(name, colour));
        button->setIconSize(QSize(iconSize, iconSize));
    }
}

} // namespace forms
