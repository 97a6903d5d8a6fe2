#include "media/swSnap.h"

#include "media/Bitmap.h"
#include "media/frmCamFormat.h"
#include "platform/forms/Palette.h"
#include "platform/forms/Pictures.h"
#include "platform/values/Errors.h"

#include <QPainter>

using namespace Qt::StringLiterals;

swSnap::swSnap(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

swSnap::~swSnap() = default;

void swSnap::StartCam()
{
    CloseCam();
    CamWindow = devices::cameras().open(DriverIndex);
    if (!CamWindow)
        return tell(u"No camera was found."_s);
    tell(u"Waiting for the camera …"_s);
    connect(CamWindow.get(), &devices::Camera::frameArrived, this, &swSnap::show);
    connect(CamWindow.get(), &devices::Camera::failed, this, [this](const QString& reason) {
        CloseCam();
        tell(u"The camera gives no picture."_s + u'\n' + reason);
    });
}

/// The camera may be just telling something.
void swSnap::CloseCam()
{
    if (!CamWindow)
        return;
    CamWindow->disconnect(this);
    CamWindow.release()->deleteLater();
    m_seen = {};
    tell({});
}

void swSnap::FormatCam()
{
    if (CamWindow)
        frmCamFormat().choose(*CamWindow);
}

void swSnap::SaveImage()
{
    if (!seesPicture())
        return;
    try {
        bitmap::write(m_seen, FileName);
    } catch (const OperatorError&) {
        return CloseCam();
    }
    CloseCam();
    m_seen = forms::loadPicture(FileName, size() * devicePixelRatioF()).toImage();
    update();
}

void swSnap::show(const QImage& picture)
{
    const bool isFirst = m_seen.isNull();
    m_seen = picture;
    m_note.clear();
    update();
    if (isFirst)
        Q_EMIT picturesChanged();
}

void swSnap::tell(const QString& text)
{
    m_note = text;
    m_seen = {};
    update();
    Q_EMIT picturesChanged();
}

void swSnap::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(palette::panel));
    if (!m_seen.isNull()) {
        QRect place(QPoint(), m_seen.size().scaled(size(), Qt::KeepAspectRatio));
        place.moveCenter(rect().center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, m_seen);
    }
    painter.setPen(QColor(palette::panelInk));
    painter.drawText(rect().adjusted(16, 16, -16, -16), int(Qt::AlignCenter) | Qt::TextWordWrap, m_note);
}
