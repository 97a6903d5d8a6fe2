#include "platform/forms/Icons.h"

#include <QAbstractButton>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int iconSize = 24;

/// The drawing of an icon; empty where there is none.
QByteArray drawingOf(const QString& name)
{
    QFile file(u":/icons/"_s + name + u".svg"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap draw(const QByteArray& svg, int size, qreal opacity = 1)
{
    QSvgRenderer drawing(svg);
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(opacity);
    drawing.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QPixmap picture(const QString& name, int size) { return draw(drawingOf(name), size); }

QIcon lineIcon(const QString& name, const QColor& colour)
{
    QByteArray svg = drawingOf(name);
    if (svg.isEmpty())
        return {};
    svg.replace(iconInk.name().toUpper().toLatin1(), colour.name().toLatin1());
    QIcon icon(draw(svg, iconSize));
    icon.addPixmap(draw(svg, iconSize, 0.35), QIcon::Disabled);
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
