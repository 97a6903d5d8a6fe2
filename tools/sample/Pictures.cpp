#include "sample/Pictures.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace sample {

namespace {

constexpr QSize pictureSize(240, 240);

QImage canvas(const QSize& size, const QColor& ground)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    return image;
}

void save(const QImage& image, const QString& path)
{
    if (!image.save(path, "PNG"))
        qFatal("cannot write %s", qPrintable(path));
}

/// The weaves: plain, stripes, checks, dots.
void weave(QPainter& painter, const QColor& cloth, int kind)
{
    constexpr int step = 20;
    const bool dark = cloth.lightness() < 128;
    const QColor mark = dark ? cloth.lighter(170) : cloth.darker(135);
    painter.setPen(QPen(mark, 2));
    for (int at = step / 2; at < pictureSize.width(); at += step) {
        if (kind == 1 || kind == 2)
            painter.drawLine(at, 0, at, pictureSize.height());
        if (kind == 2)
            painter.drawLine(0, at, pictureSize.width(), at);
        if (kind != 3)
            continue;
        for (int down = step / 2; down < pictureSize.height(); down += step)
            painter.drawEllipse(QPoint(at + (down / step % 2) * step / 2, down), 2, 2);
    }
    painter.setPen(QPen(QColor(0, 0, 0, 14), 1));
    for (int at = 0; at < pictureSize.width(); at += 3)
        painter.drawLine(at, 0, at, pictureSize.height());
}

/// Half of a garment's outline, from the neck's middle down; the other half mirrors it.
QPolygonF halfOf(Shape shape)
{
    switch (shape) {
    case Shape::Legs:
        return {{0, 36}, {34, 36}, {46, 130}, {38, 210}, {16, 210}, {6, 110}, {0, 94}};
    case Shape::Coat:
        return {{0, 60}, {14, 30}, {50, 42}, {66, 150}, {48, 154}, {42, 90}, {42, 196}, {4, 196}, {0, 120}};
    case Shape::Dress:
        return {{0, 46}, {14, 34}, {40, 44}, {52, 88}, {36, 94}, {30, 76}, {24, 112}, {62, 214}, {0, 214}};
    case Shape::Top:
        break;
    }
    return {{0, 44}, {12, 32}, {44, 42}, {66, 92}, {48, 102}, {40, 82}, {40, 180}, {0, 184}};
}

} // namespace

void drawSwatch(const Line& line, const QString& path)
{
    const QColor cloth(line.cloth);
    QImage image = canvas(pictureSize, cloth);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    weave(painter, cloth, line.garment % 4);
    painter.end();
    save(image, path);
}

void drawSketch(const Line& line, const QString& path)
{
    QImage image = canvas(pictureSize, QColor(0xFBF8F1));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(pictureSize.width() / 2, 0);
    painter.setPen(QPen(QColor(0x3A3A44), 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(line.cloth));
    const QPolygonF half = halfOf(line.item().shape);
    QPolygonF whole = half;
    for (auto point = half.rbegin(); point != half.rend(); ++point)
        whole << QPointF(-point->x(), point->y());
    painter.drawPolygon(whole);
    painter.setPen(QPen(QColor(0x3A3A44), 1.5, Qt::DashLine));
    painter.drawLine(QPointF(0, half.first().y() + 6), QPointF(0, half.last().y() - 6));
    painter.end();
    save(image, path);
}

void drawLogo(const QString& path)
{
    constexpr int side = 320;
    QImage image = canvas({side, side}, Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2, side / 2);
    const QColor ink(0x7A1F3D);
    const QColor gold(0xC8963C);
    painter.setPen(QPen(ink, 10));
    painter.drawEllipse(QPoint(0, 0), 148, 148);
    painter.setPen(QPen(gold, 3));
    painter.drawEllipse(QPoint(0, 0), 134, 134);

    // The spool: two rims, the thread wound between them.
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawRoundedRect(-62, -88, 92, 20, 8, 8);
    painter.drawRoundedRect(-62, 66, 92, 20, 8, 8);
    painter.setBrush(gold);
    painter.drawRect(-48, -68, 64, 134);
    painter.setPen(QPen(gold.darker(130), 3));
    for (int turn = -58; turn < 62; turn += 12)
        painter.drawLine(-48, turn + 6, 16, turn);

    // The needle, threaded.
    painter.setPen(QPen(ink, 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(92, -70, 52, 92);
    painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(90, -62, 87, -50);
    QPainterPath thread(QPointF(16, 40));
    thread.cubicTo(60, 70, 20, -90, 89, -56);
    painter.setPen(QPen(gold.darker(115), 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(thread);
    painter.end();
    save(image, path);
}

} // namespace sample
