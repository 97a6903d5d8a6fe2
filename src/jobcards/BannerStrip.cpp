#include "jobcards/BannerStrip.h"

#include <QLabel>
#include <QPainter>
#include <QStaticText>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int Tick = 16; // milliseconds: 60 steps a second
constexpr int Step = 1;  // pixels
constexpr int Padding = 7;
constexpr int widestPicture = 2000; // pixels

/// A label that draws its text once, and not again at each of 60 steps a second. Of a greeting that is
/// thousands of letters long, which would make a huge picture, it lays out the text once.
class Greeting : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (m_laidOut.text() != text()) {
            m_laidOut.setTextFormat(Qt::PlainText);
            m_laidOut.setText(text());
            m_drawn = {};
        }
        QPainter painter(this);
        if (width() > widestPicture) {
            painter.drawStaticText(contentsRect().topLeft(), m_laidOut);
            return;
        }
        if (m_drawn.isNull())
            draw();
        painter.drawPixmap(0, 0, m_drawn);
    }
    /// Type and colour change with the look of the screens, the size with the text.
    void changeEvent(QEvent* event) override
    {
        m_drawn = {};
        QLabel::changeEvent(event);
    }
    void resizeEvent(QResizeEvent* event) override
    {
        m_drawn = {};
        QLabel::resizeEvent(event);
    }

private:
    void draw()
    {
        m_drawn = QPixmap(size() * devicePixelRatio());
        m_drawn.setDevicePixelRatio(devicePixelRatio());
        m_drawn.fill(Qt::transparent);
        QPainter painter(&m_drawn);
        painter.setFont(font());
        painter.setPen(palette().color(foregroundRole()));
        painter.drawStaticText(contentsRect().topLeft(), m_laidOut);
    }

    QStaticText m_laidOut;
    QPixmap m_drawn;
};

} // namespace

BannerStrip::BannerStrip(QWidget* parent)
    : QWidget(parent)
    , lblLastvisit(new Greeting(this))
    , Timer1(new QTimer(this))
{
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    lblLastvisit->setObjectName(u"lblLastvisit"_s);
    lblLastvisit->setTextFormat(Qt::PlainText);
    Timer1->setObjectName(u"Timer1"_s);
    Timer1->setInterval(Tick);
    connect(Timer1, &QTimer::timeout, this, &BannerStrip::step);
}

void BannerStrip::setText(const QString& text)
{
    lblLastvisit->setText(text);
    begin();
}

/// A new text begins its walk where all of it can be read.
void BannerStrip::begin()
{
    lblLastvisit->adjustSize();
    lblLastvisit->move(qMax(0, (width() - lblLastvisit->width()) / 2), Padding);
}

QSize BannerStrip::sizeHint() const { return {0, lblLastvisit->sizeHint().height() + 2 * Padding}; }

void BannerStrip::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    begin();
    Timer1->start();
}

void BannerStrip::hideEvent(QHideEvent* event)
{
    Timer1->stop();
    QWidget::hideEvent(event);
}

void BannerStrip::step()
{
    // Once all of it has left, the text comes in again at the right edge.
    const int left = lblLastvisit->x() < -lblLastvisit->width() ? width() : lblLastvisit->x();
    lblLastvisit->move(left - Step, lblLastvisit->y());
}
