#pragma once

#include "platform/forms/Palette.h"

#include <QWidget>
#include <vector>

namespace forms {

/// Groups of bars, stacked or side by side, each with a label below it. One group at a time can be chosen, by
/// the pointer or the arrow keys: its meaning stands above the bars; a click or Enter leads to it.
/// The series differ in lightness, so that a black and white print tells them apart.
class BarChart : public QWidget
{
    Q_OBJECT
public:
    enum class Bars { Stacked, SideBySide };
    struct Series
    {
        QString name;
        const palette::Tone* colour;
    };
    struct Group
    {
        QString label;
        std::vector<double> values; ///< one for each series; a negative one has no bar
        QString meaning;            ///< stands above the bars when it is chosen
        bool apart = false;         ///< its label stands out
    };

    explicit BarChart(QWidget* parent = nullptr);

    void setSeries(std::vector<Series> series, Bars bars);
    /// The group chosen stays so.
    void setGroups(std::vector<Group> groups);
    /// A dashed rule across the bars, and what it means; a value of 0 or less has none.
    void setMark(double value, const QString& meaning);

    const std::vector<Group>& groups() const { return m_groups; }
    /// -1: none.
    int chosen() const { return m_chosen; }
    void choose(int group);

    QSize sizeHint() const override { return {360, 180}; }
    QSize minimumSizeHint() const override { return {200, 120}; }

Q_SIGNALS:
    /// The operator asks for what is behind a group.
    void opened(int group);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QRectF barsPlace() const;
    QRectF groupPlace(int group) const;
    int groupAt(const QPointF& point) const;
    double highest() const;
    int labelStep() const;
    void paintLegend(QPainter& painter) const;
    void paintGroup(QPainter& painter, int group, double top) const;
    void paintMark(QPainter& painter, double top) const;

    std::vector<Series> m_series;
    std::vector<Group> m_groups;
    Bars m_bars = Bars::Stacked;
    double m_mark = 0;
    QString m_markMeaning;
    int m_chosen = -1;
};

} // namespace forms
