#include "platform/forms/BarChart.h"

#include "platform/forms/Palette.h"
#include "platform/values/Literals.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr double swatch = 10;
constexpr double gap = 6;
constexpr double widestBar = 34;
constexpr double shareOfGroup = 0.72; ///< that its bars take
constexpr double rounding = 2;

/// A chart as a screen reader has it: its value is what all bars mean, its description what the chosen one
/// does.
class SpokenChart : public QAccessibleWidget
{
public:
    explicit SpokenChart(BarChart* chart)
        : QAccessibleWidget(chart, QAccessible::Chart)
    {
    }
    QString text(QAccessible::Text what) const override
    {
        if (what != QAccessible::Value)
            return QAccessibleWidget::text(what);
        QStringList bars;
        for (const BarChart::Group& group : static_cast<const BarChart*>(widget())->groups())
            bars << group.meaning;
        return bars.join(u"; "_s);
    }

    static QAccessibleInterface* of(const QString&, QObject* object)
    {
        auto* chart = qobject_cast<BarChart*>(object);
        return chart ? new SpokenChart(chart) : nullptr;
    }
};

} // namespace

BarChart::BarChart(QWidget* parent)
    : QWidget(parent)
{
    [[maybe_unused]] static const bool spoken = (QAccessible::installFactory(&SpokenChart::of), true);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarChart::setSeries(std::vector<Series> series, Bars bars)
{
    m_series = std::move(series);
    m_bars = bars;
    update();
}

void BarChart::setGroups(std::vector<Group> groups)
{
    m_groups = std::move(groups);
    choose(std::min(m_chosen, int(m_groups.size()) - 1));
    update();
}

void BarChart::setMark(double value, const QString& meaning)
{
    m_mark = value;
    m_markMeaning = meaning;
    update();
}

void BarChart::choose(int group)
{
    m_chosen = group;
    setAccessibleDescription(group < 0 ? QString() : m_groups[size_t(group)].meaning);
    update();
}

// Places

QRectF BarChart::barsPlace() const
{
    const double line = fontMetrics().height();
    return QRectF(rect()).adjusted(gap, line + gap + line, -gap, -(line + gap));
}

QRectF BarChart::groupPlace(int group) const
{
    const QRectF bars = barsPlace();
    const double width = bars.width() / double(std::max<size_t>(1, m_groups.size()));
    return {bars.left() + width * group, bars.top(), width, bars.height()};
}

int BarChart::groupAt(const QPointF& point) const
{
    for (int group = 0; group < int(m_groups.size()); ++group) {
        const QRectF place = groupPlace(group);
        if (point.x() >= place.left() && point.x() < place.right())
            return group;
    }
    return -1;
}

/// Of all bars and the mark; never 0.
double BarChart::highest() const
{
    double high = std::max(m_mark, 0.0);
    for (const Group& group : m_groups)
        high = std::max(high, m_bars == Bars::Stacked
                                  ? std::accumulate(group.values.begin(), group.values.end(), 0.0)
                                  : *std::max_element(group.values.begin(), group.values.end()));
    return high > 0 ? high : 1;
}

// Painting

void BarChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintLegend(painter);
    const double top = highest();
    for (int group = 0; group < int(m_groups.size()); ++group)
        paintGroup(painter, group, top);
    const QRectF bars = barsPlace();
    painter.setPen(QPen(QColor(palette::border), 1));
    painter.drawLine(bars.bottomLeft(), bars.bottomRight());
    paintMark(painter, top);
    if (hasFocus()) {
        painter.setPen(QPen(QColor(palette::accent), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
    }
}

/// What the colours and the rule mean; or what the group chosen stands for.
void BarChart::paintLegend(QPainter& painter) const
{
    const QRectF line(gap, gap / 2, width() - 2 * gap, fontMetrics().height());
    double x = line.left();
    const auto write = [&](const QString& text, QRgb colour, Qt::Alignment side) {
        const QRectF place(x, line.top(), line.right() - x, line.height());
        painter.setPen(QColor(colour));
        painter.drawText(place, side | Qt::AlignVCenter,
                         fontMetrics().elidedText(text, Qt::ElideRight, int(place.width())));
    };
    if (m_chosen >= 0) {
        write(m_groups[size_t(m_chosen)].meaning, palette::ink, Qt::AlignLeft);
        return;
    }
    for (const Series& series : m_series) {
        painter.setPen(QPen(QColor(palette::border), 1));
        painter.setBrush(QColor(*series.colour));
        painter.drawRect(QRectF(x, line.center().y() - swatch / 2, swatch, swatch));
        x += swatch + gap;
        write(series.name, palette::quietInk, Qt::AlignLeft);
        x += fontMetrics().horizontalAdvance(series.name) + 2 * gap;
    }
    if (m_mark > 0)
        write(m_markMeaning, palette::ink, Qt::AlignRight);
}

/// Where the labels find no room beside each other, only one of so many groups has its own.
int BarChart::labelStep() const
{
    double widest = 1;
    for (const Group& group : m_groups)
        widest = std::max(widest, double(fontMetrics().horizontalAdvance(group.label)) + gap / 2);
    return int(std::ceil(widest / groupPlace(0).width()));
}

void BarChart::paintGroup(QPainter& painter, int group, double top) const
{
    const Group& shown = m_groups[size_t(group)];
    const QRectF place = groupPlace(group);
    if (group == m_chosen)
        painter.fillRect(place.adjusted(1, 0, -1, 0), QColor(palette::shade));

    const bool stacked = m_bars == Bars::Stacked;
    const double count = stacked ? 1 : double(shown.values.size());
    const double width = std::min(widestBar, place.width() * shareOfGroup / count);
    double x = place.center().x() - width * count / 2;
    double bottom = place.bottom();
    for (size_t i = 0; i < shown.values.size(); ++i) {
        const double height = std::max(0.0, shown.values[i]) / top * place.height();
        if (height > 0) {
            painter.setPen(QPen(QColor(palette::border), 0.5));
            painter.setBrush(QColor(*m_series[i].colour));
            painter.drawRoundedRect(QRectF(x, bottom - height, width, height), rounding, rounding);
        }
        if (stacked)
            bottom -= height;
        else
            x += width;
    }

    const double line = fontMetrics().height();
    if (stacked) {
        const double sum = std::accumulate(shown.values.begin(), shown.values.end(), 0.0);
        painter.setPen(QColor(palette::ink));
        if (sum > 0)
            painter.drawText(QRectF(place.left(), bottom - line - 1, place.width(), line), Qt::AlignCenter,
                             QString::number(sum, 'f', 0));
    }
    const int step = labelStep();
    if (group % step != 0)
        return;
    QFont font = this->font();
    font.setBold(shown.apart);
    painter.setFont(font);
    painter.setPen(QColor(shown.apart ? QRgb(palette::ink) : QRgb(palette::quietInk)));
    painter.drawText(place.adjusted(0, place.height() + gap / 2, place.width() * (step - 1), line + gap),
                     (step > 1 ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignTop, shown.label);
    painter.setFont(this->font());
}

void BarChart::paintMark(QPainter& painter, double top) const
{
    if (m_mark <= 0)
        return;
    const QRectF bars = barsPlace();
    const double y = bars.bottom() - m_mark / top * bars.height();
    painter.setPen(QPen(QColor(palette::ink), 1, Qt::DashLine));
    painter.drawLine(QPointF(bars.left(), y), QPointF(bars.right(), y));
}

// Choosing

void BarChart::keyPressEvent(QKeyEvent* event)
{
    const int last = int(m_groups.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Left:
        choose(std::min(std::max(0, m_chosen - 1), last));
        break;
    case Qt::Key_Right:
        choose(std::min(last, m_chosen + 1));
        break;
    case Qt::Key_Home:
        choose(std::min(0, last));
        break;
    case Qt::Key_End:
        choose(last);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_chosen >= 0)
            Q_EMIT opened(m_chosen);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void BarChart::mouseMoveEvent(QMouseEvent* event) { choose(groupAt(event->position())); }

void BarChart::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    choose(groupAt(event->position()));
    if (m_chosen >= 0)
        Q_EMIT opened(m_chosen);
}

void BarChart::leaveEvent(QEvent*)
{
    if (!hasFocus())
        choose(-1);
}

/// The first arrow key chooses from here.
void BarChart::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    if (m_chosen < 0 && event->reason() != Qt::MouseFocusReason)
        choose(std::min(0, int(m_groups.size()) - 1));
}

/// A list that opened in front comes back to the group that led there.
void BarChart::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason)
        choose(-1);
}

} // namespace forms
