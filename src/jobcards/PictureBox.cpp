#include "jobcards/PictureBox.h"

#include "platform/forms/Pictures.h"

#include <QPainter>

namespace {

constexpr QSize LargestShown(640, 640);

} // namespace

PictureBox::PictureBox(QWidget* parent)
    : QFrame(parent)
{
}

void PictureBox::load(const QString& path)
{
    m_picture = forms::loadPicture(path, LargestShown);
    update();
}

void PictureBox::clear()
{
    m_picture = {};
    update();
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (m_picture.isNull())
        return;
    const QRect place = contentsRect().adjusted(4, 4, -4, -4);
    QRect shown({}, m_picture.size().scaled(place.size(), Qt::KeepAspectRatio));
    shown.moveCenter(place.center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(shown, m_picture);
}
