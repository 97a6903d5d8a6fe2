#include "platform/forms/Thumbnails.h"

#include "platform/forms/Pictures.h"

#include <QGuiApplication>
#include <QPainter>

namespace forms {

Thumbnails::Thumbnails(const QSize& size, QObject* parent)
    : QObject(parent)
    , m_size(size)
{
    m_reader.setMaxThreadCount(1);
}

Thumbnails::~Thumbnails()
{
    m_reader.clear();
    m_reader.waitForDone();
}

QPixmap Thumbnails::of(const QString& path)
{
    if (const auto known = m_known.constFind(path); known != m_known.constEnd())
        return *known;
    take(path, {});
    const QSize within = m_size * qGuiApp->devicePixelRatio();
    m_reader.start([this, path, within] {
        const QImage image = loadImage(path, within);
        QMetaObject::invokeMethod(
            this,
            [this, path, image] {
                if (image.isNull())
                    return;
                take(path, image);
                Q_EMIT arrived();
            },
            Qt::QueuedConnection);
    });
    return m_known.value(path);
}

void Thumbnails::leave()
{
    m_reader.clear();
    m_known.clear();
}

/// Also of no image: blank.
void Thumbnails::take(const QString& path, const QImage& image)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap thumbnail(m_size * ratio);
    thumbnail.fill(Qt::transparent);
    QPainter(&thumbnail)
        .drawImage((thumbnail.width() - image.width()) / 2, (thumbnail.height() - image.height()) / 2, image);
    thumbnail.setDevicePixelRatio(ratio);
    m_known.insert(path, thumbnail);
}

} // namespace forms
