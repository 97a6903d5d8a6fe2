#pragma once

#include "jobcards/ItemColor.h"

#include <QAbstractButton>

/// The box that shows the colour of a cloth. A click, Space or Enter asks to change it.
class ColorBox : public QAbstractButton
{
    Q_OBJECT
public:
    explicit ColorBox(QWidget* parent = nullptr);

    /// The colour as job lines keep it. A number outside the colours stays as it is.
    qint32 number() const { return m_number; }
    void setNumber(qint32 number);
    QColor color() const { return itemcolor::fromNumber(m_number); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    qint32 m_number = itemcolor::White;
};
