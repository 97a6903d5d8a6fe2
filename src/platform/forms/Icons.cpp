#include "platform/forms/Icons.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr int iconSize = 24;
constexpr QByteArrayView drawnIn("#334155"); ///< the lines of all drawings

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

/// Draws the icons of a screen's buttons anew when its look has changed. It goes with the screen.
class ButtonIcons : public QObject
{
public:
    ButtonIcons(QWidget& screen, const palette::Tone& tone)
        : QObject(&screen)
        , m_screen(screen)
        , m_tone(tone)
    {
        screen.installEventFilter(this);
        draw();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange && m_drawnIn != palette::look)
            draw();
        return QObject::eventFilter(watched, event);
    }

private:
    void draw()
    {
        m_drawnIn = palette::look;
        const bool common = &m_tone == &palette::icon;
        for (QAbstractButton* button : m_screen.findChildren<QAbstractButton*>()) {
            const QString name = button->property("iconName").toString();
            if (name.isEmpty())
                continue;
            const bool main = common && button->property("primary").toBool();
            button->setIcon(lineIcon(name, main ? palette::onAccent : m_tone));
            button->setIconSize(QSize(iconSize, iconSize));
        }
    }

    QWidget& m_screen;
    const palette::Tone& m_tone;
    palette::Look m_drawnIn;
};

} // namespace

QPixmap picture(const QString& name, int size) { return draw(drawingOf(name), size); }

QIcon lineIcon(const QString& name, const palette::Tone& tone)
{
    QByteArray svg = drawingOf(name);
    if (svg.isEmpty())
        return {};
    svg.replace(drawnIn, QColor(tone).name().toLatin1());
    QIcon icon(draw(svg, iconSize));
    icon.addPixmap(draw(svg, iconSize, 0.35), QIcon::Disabled);
    return icon;
}

void applyIcons(QWidget& screen, const palette::Tone& tone) { new ButtonIcons(screen, tone); }

} // namespace forms
