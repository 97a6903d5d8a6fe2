#include "jobcards/PictureBox.h"

#include "platform/forms/Pictures.h"

#include <QPainter>

using namespace Qt::StringLiterals;

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
    m_words = m_picture.isNull() ? u"No preview"_s : QString();
    update();
}

void PictureBox::clear()
{
    m_picture = {};
    m_words.clear();
    update();
}

void PictureBox::showMissing(bool missing)
{
    m_picture = {};
    m_words = missing ? u"The picture is gone"_s : QString();
    update();
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent*) { Q_EMIT dblClicked(); }

void PictureBox::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect place = contentsRect().adjusted(4, 4, -4, -4);
    painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, m_words);
    if (m_picture.isNull())
        return;
    QRect shown({}, m_picture.size().scaled(place.size(), Qt::KeepAspectRatio));
    shown.moveCenter(place.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(shown, m_picture);
}
