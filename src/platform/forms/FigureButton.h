#pragma once

#include <QPushButton>

class QLabel;

namespace forms {

/// A button that shows a figure, large, with what it counts above it and something more about it below; it
/// leads to what has been counted.
class FigureButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
public:
    explicit FigureButton(QWidget* parent = nullptr);

    QString caption() const;
    void setCaption(const QString& caption);
    /// `urgent`: the figure stands in the colour of a warning.
    void show(const QString& figure, const QString& more, bool urgent = false);
    QString figure() const;
    QString more() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    QLabel* m_caption;
    QLabel* m_figure;
    QLabel* m_more;
};

} // namespace forms
